#include "findings/FindingTable.h"

#include "curves/ConstitutiveTexts.h"
#include "findings/Remedying.h"
#include "values/ValueText.h"
#include "vxConstitutive/ModelDoubts.h"
#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/gui/FindingText.h"
#include "vxMaterial/model/MaterialCheck.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/Plausibility.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>
#include <utility>

namespace vxInspector {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::FindingTable", text);
}

/// Makes the rows of one material.
class Findings
{
public:
    /// The models are not examined if `cache` is null.
    Findings(const InspectedMaterial& inspected, const vxUnits::UnitSystem& system, CurveCache* cache)
        : m_inspected(inspected), m_system(system), m_cache(cache)
    {}

    std::vector<Row> rows() const
    {
        std::vector<Row> all;
        for (const UnreadRow& unread : m_inspected.unreadRows)
            all.push_back(row(tr("Error"), unread.id, textOf(unread)));
        std::set<std::int32_t> wrong;
        for (const vxMat::MaterialFinding& finding : vxMat::checkMaterial(*m_inspected.material)) {
            if (missesUnread(finding))
                continue;
            all.push_back(row(kindOf(finding), idIn(finding.slot), MatGui::findingText(finding)));
            wrong.insert(finding.slot);
        }
        for (vxUnits::Doubt& doubt : vxUnits::checkPlausibility(m_inspected.values, m_system))
            if (doubt.remedy || doubt.severity != vxUnits::Severity::Impossible || wrong.count(doubt.id) == 0)
                all.push_back(doubtRow(doubt)); // otherwise an error says the same
        for (const vxConstitutive::ModelDoubt& doubt : modelDoubts())
            if (wrong.count(doubt.propertyId) == 0)
                all.push_back(row(tr("Doubt"), idIn(doubt.propertyId), translated(doubt.finding, m_system)));
        return all;
    }

private:
    std::vector<vxConstitutive::ModelDoubt> modelDoubts() const
    {
        if (m_cache == nullptr)
            return {};
        const vxMat::MaterialBase& material = *m_inspected.material;
        return vxConstitutive::doubtsAboutModels(
            material, [&](const auto& model, const auto& request) { return m_cache->curve(material, model, request); });
    }

    /// Returns whether a finding says that a quantity is missing whose row cannot be read, which is a finding already.
    bool missesUnread(const vxMat::MaterialFinding& finding) const
    {
        return std::any_of(m_inspected.unreadRows.begin(), m_inspected.unreadRows.end(), [&](const UnreadRow& unread) {
            const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(unread.id);
            const auto names = [record](const vxMat::FindingArgument& argument) {
                return record != nullptr && argument.kind == vxMat::FindingArgument::Kind::QuantityName &&
                       argument.text == record->name;
            };
            return m_inspected.material->findProperty(unread.id) == nullptr &&
                   std::any_of(finding.arguments.begin(), finding.arguments.end(), names);
        });
    }

    static QString kindOf(const vxMat::MaterialFinding& finding)
    {
        return finding.severity == vxMat::FindingSeverity::Error ? tr("Error") : tr("Warning");
    }

    static QString textOf(const UnreadRow& unread)
    {
        return tr(R"(Row %1: The value "%2" of "%3" cannot be read: %4)")
            .arg(QString::number(unread.number), shortened(unread.value), quantityName(unread.id), unread.reason);
    }

    /// Returns the id by which the editor knows the property in a slot.
    std::int32_t idIn(std::int32_t slot) const
    {
        const vxMat::MaterialProperty* const property = m_inspected.material->findProperty(slot);
        return property != nullptr ? property->id : slot;
    }

    Row row(const QString& kind, std::int32_t id, const QString& text) const
    {
        Cell finding = textCell(text);
        finding.text = shortened(text, 600);
        return {{{kind}, finding, {}, textCell(m_inspected.label)}, {m_inspected.projectId, m_inspected.objectId, id}};
    }

    Row doubtRow(vxUnits::Doubt& doubt) const
    {
        // The remedy has its own cell.
        std::optional<vxUnits::Remedy> remedy = std::exchange(doubt.remedy, std::nullopt);
        Row made = row(tr("Doubt"), idIn(doubt.id), translated(doubt));
        if (remedy)
            made.cells[FindingColumn::Remedy] = {
                translated(remedy->message), changesText(*remedy, m_inspected.values, m_system, QStringLiteral("\n"))};
        made.remedy = std::move(remedy);
        return made;
    }

    const InspectedMaterial& m_inspected;
    const vxUnits::UnitSystem& m_system;
    CurveCache* m_cache;
};

} // namespace

TableContent findingTable(const std::vector<InspectedMaterial>& materials, const vxUnits::UnitSystem& system)
{
    CurveCache none;
    return findingTable(materials, system, none);
}

TableContent findingTable(const std::vector<InspectedMaterial>& materials, const vxUnits::UnitSystem& system,
                          CurveCache& cache)
{
    cache.begin();
    TableContent table{{}, {tr("Kind"), tr("Finding"), tr("Remedy"), tr("Material")}, {}};
    std::size_t more = 0;
    std::size_t seen = 0;
    for (const InspectedMaterial& inspected : materials)
        for (Row& row : Findings(inspected, system, seen++ < mostExamined ? &cache : nullptr).rows())
            if (table.rows.size() < mostFindings)
                table.rows.push_back(std::move(row));
            else
                ++more;
    if (materials.size() == 1)
        table.headers.removeAt(FindingColumn::Material);
    table.sentence = table.rows.empty() ? tr("Nothing is found.") : tr("Findings: %1.").arg(table.rows.size() + more);
    if (more != 0)
        table.sentence += QLatin1Char(' ') + tr("The last %1 are not listed.").arg(more);
    if (materials.size() > mostExamined)
        table.sentence +=
            QLatin1Char(' ') + tr("Only the models of the first %1 materials are examined.").arg(mostExamined);
    return table;
}

void markFindings(const TableContent& findings, TableContent& values)
{
    // The tool tip has them in their order.
    for (auto finding = findings.rows.rbegin(); finding != findings.rows.rend(); ++finding) {
        const auto row = std::find_if(values.rows.begin(), values.rows.end(), [&finding](const Row& one) {
            return one.place.isSet() && one.place == finding->place;
        });
        if (row == values.rows.end())
            continue;
        Cell& name = row->cells.front();
        const QString text = finding->cells[FindingColumn::Finding].text;
        name.toolTip = name.toolTip.isEmpty() ? text : text + QStringLiteral("\n\n") + name.toolTip;
        name.hasSign = true;
    }
}

bool hasErrors(const InspectedMaterial& inspected)
{
    return !inspected.unreadRows.empty() || !vxMat::checkMaterial(*inspected.material).empty();
}

} // namespace vxInspector
