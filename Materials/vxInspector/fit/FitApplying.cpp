#include "fit/FitApplying.h"

#include "vxConstitutive/record/Measurements.h"
#include "vxMaterial/gui/MaterialChange.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMsg/MessageProxy.h"

#include <QCoreApplication>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace vxInspector {

namespace {

using MatGui::SheetRow;
using vxConstitutive::MaterialChange;
using vxConstitutive::PropertyValue;

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::FitApplying", text);
}

std::string textOf(const PropertyValue& value)
{
    if (!value.values.empty())
        return vxMat::formatNumberList(value.values);
    return value.text.empty() ? vxMat::formatNumber(value.value) : value.text;
}

void applyToMaterial(const MaterialChange& change, vxMat::MaterialBase& material)
{
    for (const std::int32_t id : change.remove)
        material.removeProperty(material.findProperty(id));
    for (const PropertyValue& value : change.set)
        if (const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(value.propertyId))
            material.addProperty(value.propertyId, record->name, textOf(value), record->key, record->description);
    vxMat::restoreCatalogueTexts(material);
}

/// Returns the row of a quantity that the table does not have yet.
SheetRow newRow(const vxMat::PropertyRecord& record)
{
    const auto property = record.create();
    SheetRow row;
    row.id = record.id;
    row.name = QString::fromStdString(property->name);
    row.description = QString::fromStdString(property->description);
    row.key = QString::fromStdString(property->key);
    row.unit = QString::fromStdString(property->unit);
    return row;
}

SheetRow& rowOf(std::vector<SheetRow>& rows, const vxMat::PropertyRecord& record)
{
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&record](const SheetRow& row) { return row.id == record.id; });
    if (found != rows.end())
        return *found;
    rows.push_back(newRow(record));
    return rows.back();
}

void applyInEditor(const MaterialChange& change, MatGui::MaterialView& editor)
{
    editor.finishEditing();
    std::vector<SheetRow> rows = editor.findChild<MatGui::SheetTableView*>()->rows();
    const auto isRemoved = [&change](const SheetRow& row) {
        return std::find(change.remove.begin(), change.remove.end(), row.id) != change.remove.end();
    };
    rows.erase(std::remove_if(rows.begin(), rows.end(), isRemoved), rows.end());
    for (const PropertyValue& value : change.set)
        if (const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(value.propertyId))
            rowOf(rows, *record).value = QString::fromStdString(textOf(value));
    editor.setRows(rows, tr("Apply fit"));
}

void changeMaterial(const MaterialChange& change, Mat::MaterialObject& object)
{
    auto before = MatGui::copyOf(*object.getCMaterial());
    applyToMaterial(change, *object.getCMaterial());
    MatGui::recordChange(object, std::move(before));
}

} // namespace

void applyFit(const AppliedFit& fit, Mat::MaterialObject& object, MatGui::MaterialView* editor)
{
    const vxMsg::MessageProxy::Group step(
        tr("Apply fit to \"%1\"").arg(QString::fromStdString(object.label.getValue())));
    if (editor != nullptr)
        applyInEditor(fit.change, *editor);
    else
        changeMaterial(fit.change, object);
    if (fit.measurements)
        vxMsg::MessageProxy::instance().setSetting(object, vxConstitutive::measurementsSetting, *fit.measurements);
}

void setMeasurements(Mat::MaterialObject& object, const std::string& text, const QString& step)
{
    const vxMsg::MessageProxy::Group group(step);
    vxMsg::MessageProxy::instance().setSetting(object, vxConstitutive::measurementsSetting, text);
}

} // namespace vxInspector
