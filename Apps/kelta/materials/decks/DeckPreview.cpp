#include "decks/DeckPreview.h"

#include "MaterialCheck.h"

#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/MaterialValues.h"
#include "vxUnits/Plausibility.h"
#include "vxUnits/Quantity.h"
#include "vxUnits/SystemFit.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <set>
#include <stdexcept>

namespace desktop {

namespace {

using vxDecks::ReadDeck;
using vxInspector::DeckFinding;
using vxInspector::DeckLine;
using vxUnits::MaterialValues;
using vxUnits::UnitSystem;
using Id = vxMat::PropertyId;

constexpr std::size_t mostQuantities = 4;

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::DeckPreview", text);
}

void stopIf(const std::atomic<bool>& isStopped)
{
    if (isStopped)
        throw std::runtime_error("stopped");
}

/// Returns the first doubt about the materials of a deck in a system that is none in the fitting system, with the name of its
/// material; empty if there is none.
QString firstDoubt(const ReadDeck& asIs, const UnitSystem& system, const std::string& fitting)
{
    const auto parsed = UnitSystem::parse(fitting);
    const UnitSystem other = parsed ? *parsed : UnitSystem::si();
    for (const vxDecks::ReadMaterial& one : asIs.materials) {
        const auto unfit = vxUnits::checkPlausibilityIn(other, *one.material);
        for (const vxUnits::Doubt& doubt : vxUnits::checkPlausibilityIn(system, *one.material)) {
            const bool isInBoth =
                std::any_of(unfit.begin(), unfit.end(), [&doubt](const auto& two) { return two.id == doubt.id; });
            if (!isInBoth)
                return QString::fromStdString(one.name) + QStringLiteral(": ") + vxInspector::translated(doubt.message);
        }
    }
    return {};
}

/// Finds the system that the numbers fit: another one than SI, or SI if they would be unusual in mm-t-s.
void findFittingSystem(SurveyedDeck& survey)
{
    for (const UnitSystem& assumed : {UnitSystem::si(), UnitSystem::builtIn()[1]}) {
        survey.fitting = fittingSystem(survey.asIs, assumed);
        if (survey.fitting.empty())
            continue;
        survey.reason =
            tr("In %1, they would be unusual. %2")
                .arg(QString::fromStdString(assumed.text()), firstDoubt(survey.asIs, assumed, survey.fitting));
        return;
    }
}

/// Returns the quantities of a deck that show its units best, and after them the others that have a unit.
std::vector<std::int32_t> shownQuantities(const ReadDeck& deck)
{
    std::set<std::int32_t> all;
    for (const vxDecks::ReadMaterial& one : deck.materials)
        for (const std::int32_t id : MaterialValues(*one.material).numericIds())
            all.insert(id);
    std::vector<std::int32_t> shown;
    const auto add = [&all, &shown](std::int32_t id) {
        if (shown.size() < mostQuantities && all.erase(id) > 0)
            shown.push_back(id);
    };
    for (const std::int32_t id : {Id::YoungsModulus, Id::PoissonsRatio, Id::Density, Id::ThermalConductivity})
        add(id);
    while (shown.size() < mostQuantities && !all.empty())
        add(*all.begin());
    return shown;
}

QString unitOf(std::int32_t id, const MaterialValues& values, const UnitSystem& system)
{
    const auto unit = vxUnits::unitOfQuantity(id, system, values.creepExponents());
    const QString text = unit ? QString::fromStdString(unit->text()) : QString();
    return text == QLatin1String("1") ? QString() : text;
}

/// Returns the number of a quantity as it stands in the file, or the first number of a list.
QString valueText(std::int32_t id, const MaterialValues& values, const std::optional<UnitSystem>& units)
{
    const std::vector<double>& list = values.list(id);
    const auto number = list.empty() ? values.number(id) : std::optional(list.front());
    if (!number)
        return {};
    QString text = QString::fromStdString(vxMat::formatNumber(*number));
    if (list.size() > 1)
        text += QStringLiteral("; ") + QChar(0x2026);
    const QString unit = units ? unitOf(id, values, *units) : QString();
    return unit.isEmpty() ? text : text + QLatin1Char(' ') + unit;
}

/// Returns the numbers of findings and doubts about a material: "Findings: 2, doubts: 1"; empty if there are none.
QString countsText(std::size_t findings, std::size_t doubts)
{
    if (findings > 0 && doubts > 0)
        return tr("Findings: %1, doubts: %2").arg(findings).arg(doubts);
    if (findings > 0)
        return tr("Findings: %1").arg(findings);
    return doubts > 0 ? tr("Doubts: %1").arg(doubts) : QString();
}

/// Returns the findings and doubts about the materials that were read, and counts them beside their values.
std::vector<std::vector<DeckFinding>> check(DeckPreview& preview, const UnitSystem& shown,
                                            const std::atomic<bool>& isStopped)
{
    std::vector<std::vector<DeckFinding>> all;
    const auto findings = findingsOf(preview.deck);
    for (std::size_t i = 0; i < std::min(findings.size(), preview.values.materials.size()); ++i) {
        stopIf(isStopped);
        const auto doubts = doubtsBesides(findings[i], *preview.deck.materials[i].material, shown);
        QStringList texts;
        std::vector<DeckFinding>& lines = all.emplace_back();
        for (const CheckedValue& one : findings[i])
            lines.push_back({DeckLine::Kind::Finding, one.text});
        for (const CheckedValue& one : doubts)
            lines.push_back({DeckLine::Kind::Doubt, one.text});
        for (const DeckFinding& one : lines)
            texts << one.text;
        ValuesOfDeck::Material& row = preview.values.materials[i];
        row.findings = countsText(findings[i].size(), doubts.size());
        row.findingTexts = texts.join(QLatin1Char('\n'));
        preview.withFindings += findings[i].empty() ? 0 : 1;
        preview.withDoubts += doubts.empty() ? 0 : 1;
    }
    return all;
}

} // namespace

FileState stateOf(const QString& path)
{
    const QFileInfo file(path);
    return file.exists() ? FileState{file.size(), file.lastModified()} : FileState();
}

std::shared_ptr<const SurveyedDeck> surveyDeck(const DeckFile& file, const std::atomic<bool>& isStopped)
{
    auto survey = std::make_shared<SurveyedDeck>();
    survey->state = stateOf(file.path);
    survey->asIs = readDeckFile(file, UnitSystem::si(), &isStopped);
    requireMaterials(file, survey->asIs);
    stopIf(isStopped);
    if (!vxDecks::hasOwnUnits(file.format))
        findFittingSystem(*survey);
    return survey;
}

ValuesOfDeck valuesOf(const SurveyedDeck& survey, const std::optional<UnitSystem>& units)
{
    ValuesOfDeck table;
    const std::vector<std::int32_t> ids = shownQuantities(survey.asIs);
    for (const std::int32_t id : ids)
        table.quantities << QCoreApplication::translate("vxMat::PropertyName", vxMat::findPropertyRecord(id)->name);
    for (const vxDecks::ReadMaterial& one : survey.asIs.materials) {
        const MaterialValues values(*one.material);
        ValuesOfDeck::Material& row = table.materials.emplace_back();
        row.name = QString::fromStdString(one.name);
        for (const std::int32_t id : ids)
            row.values << valueText(id, values, units);
    }
    return table;
}

std::shared_ptr<DeckPreview> previewDeck(const DeckFile& file, const SurveyedDeck& survey,
                                         const std::optional<UnitSystem>& units, const std::atomic<bool>& isStopped)
{
    auto preview = std::make_shared<DeckPreview>();
    preview->deck = readDeckFile(file, units, &isStopped);
    preview->summary = vxInspector::deckSummary(preview->deck.report);
    const UnitSystem shown = units.value_or(UnitSystem::si());
    preview->values = valuesOf(survey, shown);
    preview->lines = vxInspector::deckLines(preview->deck.report, check(*preview, shown, isStopped));
    const std::string fitting = units ? fittingSystem(survey.asIs, shown) : std::string();
    if (!fitting.empty())
        preview->doubt = tr("The numbers look like %1. In %2, they would be unusual. %3")
                             .arg(QString::fromStdString(fitting), QString::fromStdString(shown.text()),
                                  firstDoubt(survey.asIs, shown, fitting));
    return preview;
}

} // namespace desktop
