#include "findings/Remedying.h"

#include "Gui/MainWindow.h"
#include "Obj/Project.h"
#include "subject/InspectedMaterial.h"
#include "table/TableContent.h"
#include "values/ValueText.h"
#include "vxMaterial/gui/MaterialChange.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMsg/MessageProxy.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace vxInspector {

namespace {

QString stepText()
{
    return QCoreApplication::translate("vxInspector::Remedying", "Apply remedy");
}

/// Returns the slots of the quantities in the rows of an editor. Only an applied material can hold a property in another
/// slot than that of its id: the acoustic library materials hold the speed of sound as a second density.
std::vector<std::int32_t> slotsOf(const InspectedMaterial& shown, const MatGui::SheetTableView& table)
{
    std::vector<std::int32_t> ids;
    if (shown.hasUnappliedRows) {
        for (const MatGui::SheetRow& row : table.rows())
            ids.push_back(row.id);
        return ids;
    }
    for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(*shown.material))
        if (table.isCatalogued(property->id))
            ids.push_back(slot);
    return ids;
}

void applyInEditor(const vxUnits::Remedy& remedy, const Mat::MaterialObject& object, MatGui::MaterialView& editor)
{
    editor.finishEditing();
    const InspectedMaterial shown = inspect(object, &editor);
    vxUnits::applyRemedy(remedy, *shown.material);
    const std::vector<std::int32_t> ids = slotsOf(shown, *editor.findChild<MatGui::SheetTableView*>());
    std::map<int, QString> values;
    for (std::size_t row = 0; row < ids.size(); ++row)
        for (const vxUnits::Change& change : remedy.changes)
            if (const auto* const property = shown.material->findProperty(ids[row]); change.id == ids[row] && property)
                values[static_cast<int>(row)] = QString::fromStdString(vxMat::formatValue(*property));
    editor.setValues(values, stepText());
}

/// Says what a remedy has changed, since no editor shows it.
void announce(const Mat::MaterialObject& object, const QString& changes)
{
    const QString text = QCoreApplication::translate("vxInspector::Remedying", "The remedy was applied to \"%1\": %2.");
    Gui::MainWindow::announce(text.arg(shortened(QString::fromStdString(object.label.getValue())), changes),
                              Kelta::LogMessage::Severity::Information,
                              {object.get_project()->getProjectId(), object.getObjectId(), 0});
}

/// Returns the number of a quantity, or its list, in a unit system.
ValueText textOf(std::int32_t id, const vxUnits::MaterialValues& values, const vxUnits::UnitSystem& system)
{
    constexpr int most = 60;
    const std::vector<double>& list = values.list(id);
    ValueText text =
        numbersText(id, list.empty() ? std::vector<double>{values.number(id).value_or(0.0)} : list, values, system);
    text.number = shortened(text.number, most);
    return text;
}

} // namespace

QString changesText(const vxUnits::Remedy& remedy, const vxUnits::MaterialValues& before,
                    const vxUnits::UnitSystem& system, const QString& separator)
{
    vxUnits::MaterialValues after = before;
    vxUnits::applyRemedy(remedy, after);
    QStringList changes;
    for (const vxUnits::Change& change : remedy.changes) {
        if (!before.has(change.id))
            continue;
        const QString old = textOf(change.id, before, system).number;
        const ValueText now = textOf(change.id, after, system);
        if (now.number == old)
            continue; // the two units are the same
        changes << QCoreApplication::translate("vxInspector::Remedying", "%1: %2 becomes %3")
                       .arg(quantityName(change.id), old,
                            now.unit.isEmpty() ? now.number : now.number + QLatin1Char(' ') + now.unit);
    }
    return changes.join(separator);
}

void applyRemedy(const vxUnits::Remedy& remedy, Mat::MaterialObject& object, MatGui::MaterialView* editor,
                 const vxUnits::UnitSystem& system)
{
    if (editor != nullptr)
        return applyInEditor(remedy, object, *editor);
    auto before = MatGui::copyOf(*object.getCMaterial());
    const QString changes = changesText(remedy, vxUnits::MaterialValues(*before), system, QStringLiteral("; "));
    vxUnits::applyRemedy(remedy, *object.getCMaterial());
    const vxMsg::MessageProxy::Group step{stepText()};
    if (MatGui::recordChange(object, std::move(before)))
        announce(object, changes);
}

} // namespace vxInspector
