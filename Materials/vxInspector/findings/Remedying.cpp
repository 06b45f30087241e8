#include "findings/Remedying.h"

#include "subject/InspectedMaterial.h"
#include "vxMaterial/gui/MaterialChange.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QCoreApplication>

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

} // namespace

void applyRemedy(const vxUnits::Remedy& remedy, Mat::MaterialObject& object, MatGui::MaterialView* editor)
{
    if (editor != nullptr)
        return applyInEditor(remedy, object, *editor);
    auto before = MatGui::copyOf(*object.getCMaterial());
    vxUnits::applyRemedy(remedy, *object.getCMaterial());
    MatGui::recordChange(object, std::move(before));
}

} // namespace vxInspector
