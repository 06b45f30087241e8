#include "plugin/TabContents.h"

#include "cards/CardTable.h"
#include "compare/CompareTable.h"
#include "findings/FindingTable.h"
#include "subject/SubjectWatch.h"
#include "values/ValueTable.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace vxInspector {

namespace {

using Kind = Subject::Kind;

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::TabContents", text);
}

QString emptySentence(const Subject& subject)
{
    if (subject.kind == Kind::Project)
        return tr("The project has no materials yet.");
    return subject.kind == Kind::OtherObjects ? tr("The selection contains no materials.")
                                              : tr("Select a material in the project explorer, or open its editor.");
}

InspectedMaterial inspect(const Mat::MaterialObject& object)
{
    return vxInspector::inspect(object, SubjectWatch::editorOf(object));
}

/// Returns the first materials of a subject.
std::vector<InspectedMaterial> inspectFirst(const Subject& subject, std::size_t most)
{
    std::vector<InspectedMaterial> inspected;
    for (std::size_t i = 0; i < std::min(subject.materials.size(), most); ++i)
        inspected.push_back(inspect(*subject.materials[i]));
    return inspected;
}

/// Adds a sentence if a table does not show all materials of a subject.
void tellLimit(TableContent& table, const Subject& subject, std::size_t most, const char* sentence)
{
    if (subject.materials.size() > most)
        table.sentence += QLatin1Char(' ') + tr(sentence).arg(most).arg(subject.materials.size());
}

/// Adds a sentence if a table shows only the first of several materials.
void tellFirst(TableContent& table, const Subject& subject)
{
    if (subject.materials.size() > 1)
        table.sentence = tr("%1 materials are selected; this is the first. Compare shows them side by side.")
                             .arg(subject.materials.size()) +
                         QLatin1Char(' ') + table.sentence;
}

/// Returns the number of materials, and how many of them are suppressed, not ready, or have doubtful values.
TableContent projectTable(const Subject& subject)
{
    const std::vector<InspectedMaterial> checked = inspectFirst(subject, mostChecked);
    const auto number = [](auto count) { return Cell{QString::number(count)}; };
    const auto count = [&checked](auto matches) { return std::count_if(checked.begin(), checked.end(), matches); };
    const auto isSuppressed = [](const Mat::MaterialObject* object) { return object->isSuppressed(); };
    const auto isDoubtful = [](const InspectedMaterial& one) {
        return !vxUnits::checkPlausibility(one.values).empty();
    };
    TableContent table{
        tr("A project is selected. Select a material to see its values."), {tr("Materials"), tr("Number")}, {}};
    table.rows = {
        {{{tr("In the project")}, number(subject.materials.size())}},
        {{{tr("Suppressed")}, number(std::count_if(subject.materials.begin(), subject.materials.end(), isSuppressed))}},
        {{{tr("Not ready")}, number(count(hasErrors))}},
        {{{tr("With doubtful values")}, number(count(isDoubtful))}}};
    tellLimit(table, subject, mostChecked,
              QT_TRANSLATE_NOOP("vxInspector::TabContents", "Only the first %1 of %2 materials are checked."));
    return table;
}

} // namespace

TableContent valuesTab(const Subject& subject, const vxUnits::UnitSystem& system, const TableContent& findings)
{
    if (subject.materials.empty())
        return {emptySentence(subject), {}, {}};
    if (subject.kind == Kind::Project)
        return projectTable(subject);
    TableContent table = valueTable(inspect(*subject.materials.front()), system);
    markFindings(findings, table);
    tellFirst(table, subject);
    return table;
}

TableContent findingsTab(const Subject& subject, const vxUnits::UnitSystem& system, std::size_t most, CurveCache& cache)
{
    if (subject.materials.empty())
        return {emptySentence(subject), {}, {}};
    TableContent table = findingTable(inspectFirst(subject, most), system, cache);
    tellLimit(table, subject, most,
              QT_TRANSLATE_NOOP("vxInspector::TabContents", "Only the first %1 of %2 materials are checked."));
    return table;
}

TableContent cardsTab(const Subject& subject, const std::optional<DeckForm>& form, const vxUnits::UnitSystem& system)
{
    if (subject.materials.empty())
        return {emptySentence(subject), {}, {}};
    if (subject.kind == Kind::Project)
        return {tr("Select a material to see its cards."), {}, {}};
    const InspectedMaterial inspected = inspect(*subject.materials.front());
    TableContent table = form ? deckTable(inspected, *form, system) : cardTable(inspected);
    tellFirst(table, subject);
    return table;
}

TableContent compareTab(const Subject& subject, const vxUnits::UnitSystem& system)
{
    if (subject.materials.empty())
        return {emptySentence(subject), {}, {}};
    if (subject.materials.size() == 1)
        return {tr("Select two or more materials to compare them."), {}, {}};
    TableContent table = compareTable(inspectFirst(subject, mostCompared), system);
    tellLimit(table, subject, mostCompared,
              QT_TRANSLATE_NOOP("vxInspector::TabContents", "Only the first %1 of %2 materials are compared."));
    return table;
}

DrawnMaterials drawnMaterials(const Subject& subject, MeasurementsCache& cache)
{
    if (subject.materials.empty())
        return {emptySentence(subject)};
    if (subject.kind == Kind::Project)
        return {tr("A project is selected. Select one or more materials to see their curves.")};
    DrawnMaterials drawn;
    for (std::size_t i = 0; i < std::min(subject.materials.size(), mostDrawn); ++i) {
        const Mat::MaterialObject& object = *subject.materials[i];
        drawn.materials.push_back(
            {inspect(object), cache.read(object.getSetting(vxConstitutive::measurementsSetting))});
    }
    if (subject.materials.size() > mostDrawn)
        drawn.limit = tr("Only the first %1 of %2 materials are shown.").arg(mostDrawn).arg(subject.materials.size());
    return drawn;
}

} // namespace vxInspector
