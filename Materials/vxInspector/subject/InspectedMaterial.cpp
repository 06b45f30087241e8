#include "subject/InspectedMaterial.h"

#include "Obj/Project.h"
#include "values/ValueText.h"
#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxMaterial/model/PropertyRules.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxUnits/Reading.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <stdexcept>
#include <utility>

namespace vxInspector {

namespace {

using MatGui::SheetRow;

/// Adds a property with a value text to a material. Returns whether the text can be read.
bool add(vxMat::MaterialBase& material, const SheetRow& row, const std::string& value)
{
    try {
        material.addProperty(row.id, row.name.toStdString(), value, row.key.toStdString(),
                             row.description.toStdString());
        return true;
    } catch (const std::invalid_argument&) {
        return false;
    } catch (const std::out_of_range&) {
        return false;
    }
}

/// Adds a row as Apply reads it. Returns false for a value of which Apply would ignore a part.
bool addPlain(vxMat::MaterialBase& material, const SheetRow& row)
{
    const std::string value = row.value.toStdString();
    return !vxMat::findIgnoredText(row.id, value) && add(material, row, value);
}

/// Adds the value of a row with units. Returns the reason if it cannot be read.
std::optional<QString> addWithUnits(vxMat::MaterialBase& material, const SheetRow& row,
                                    const std::optional<vxUnits::CreepExponents>& creep)
{
    const std::string value = row.value.toStdString();
    const vxUnits::ReadingContext context{nullptr, creep};
    if (vxMat::getValueKind(row.id) == vxMat::ValueKind::NumberList) {
        const auto list = vxUnits::readQuantityList(row.id, value, context);
        if (!list)
            return translated(list.failure());
        add(material, row, vxMat::formatNumberList(list->values));
        return std::nullopt;
    }
    const auto reading = vxUnits::readQuantity(row.id, value, context);
    if (!reading)
        return translated(reading.failure());
    add(material, row, vxMat::formatNumber(reading->value));
    return std::nullopt;
}

bool isExponent(std::int32_t id)
{
    return id == vxMat::PropertyId::CreepModulusN || id == vxMat::PropertyId::CreepModulusM;
}

/// Returns the exponents of a creep law: NaN for those whose rows cannot be read.
std::optional<vxUnits::CreepExponents> exponentsOf(const InspectedMaterial& inspected)
{
    auto exponents = vxUnits::creepExponents(*inspected.material);
    for (const UnreadRow& unread : inspected.unreadRows) {
        if (!isExponent(unread.id))
            continue;
        exponents = exponents.value_or(vxUnits::CreepExponents());
        (unread.id == vxMat::PropertyId::CreepModulusN ? exponents->n : exponents->m) = std::nan("");
    }
    return exponents;
}

/// Returns the rows of an editor that are not applied; absent if it shows the applied material.
std::optional<std::vector<SheetRow>> unappliedRows(const MatGui::MaterialView& editor)
{
    const auto* const table = editor.findChild<MatGui::SheetTableView*>();
    if (table == nullptr)
        return std::nullopt;
    std::vector<SheetRow> typed = table->rowsWithTypedText();
    if (!editor.isWindowModified() && typed == table->rows())
        return std::nullopt;
    return typed;
}

} // namespace

void readRows(const std::vector<SheetRow>& rows, InspectedMaterial& into)
{
    into.material->clearProperties();
    std::vector<std::size_t> others; // whose units may depend on the plain numbers, such as those of a creep law
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (!addPlain(*into.material, rows[i]))
            others.push_back(i);
    std::stable_partition(others.begin(), others.end(), [&rows](std::size_t i) { return isExponent(rows[i].id); });
    for (const std::size_t i : others)
        if (auto reason = addWithUnits(*into.material, rows[i], exponentsOf(into)))
            into.unreadRows.push_back({rows[i].id, static_cast<int>(i) + 1, rows[i].value, std::move(*reason)});
    std::sort(into.unreadRows.begin(), into.unreadRows.end(),
              [](const UnreadRow& one, const UnreadRow& other) { return one.number < other.number; });
    vxMat::restoreCatalogueTexts(*into.material);
}

InspectedMaterial inspect(const Mat::MaterialObject& object, const MatGui::MaterialView* editor)
{
    InspectedMaterial inspected;
    inspected.projectId = object.get_project()->getProjectId();
    inspected.objectId = object.getObjectId();
    inspected.label = QString::fromStdString(object.label.getValue());
    inspected.isSuppressed = object.isSuppressed();
    inspected.material = std::make_unique<vxMat::CMaterial>();
    const auto rows = editor != nullptr ? unappliedRows(*editor) : std::nullopt;
    if (rows)
        readRows(*rows, inspected);
    else
        inspected.material->copyAllFrom(*object.getCMaterial());
    inspected.hasUnappliedRows = rows.has_value();
    inspected.material->name = object.label.getValue();
    inspected.values = vxUnits::MaterialValues(*inspected.material);
    return inspected;
}

} // namespace vxInspector
