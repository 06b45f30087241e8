#include "values/ValueTable.h"

#include "values/ValueText.h"
#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/DerivedValues.h"
#include "vxUnits/Quantity.h"

#include <QCoreApplication>

#include <cstddef>
#include <map>
#include <utility>

namespace vxInspector {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::ValueTable", text);
}

Cell rangeCell(const vxMat::HeldProperty& held, const vxUnits::UnitSystem& system)
{
    const vxUnits::Quantity* const quantity = vxUnits::findQuantity(held.slot);
    Cell cell;
    if (quantity == nullptr || !quantity->hasNumber())
        return cell;
    cell.bar = rangeBar(*quantity, numbersOf(held));
    if (cell.bar) {
        cell.text = rangeText(*cell.bar);
        cell.toolTip = cell.text + QLatin1Char('\n') + rangeToolTip(*quantity, system);
    }
    return cell;
}

Cell nameCell(std::int32_t id, const std::string& otherName)
{
    const vxUnits::Quantity* const quantity = vxUnits::findQuantity(id);
    Cell cell = textCell(quantityName(id, otherName));
    if (quantity != nullptr && cell.whole.isEmpty())
        cell.toolTip = translatedWord(quantity->meaning);
    return cell;
}

Row heldRow(const InspectedMaterial& inspected, const vxMat::HeldProperty& held, const vxUnits::UnitSystem& system)
{
    const ValueText text = valueText(held, inspected.values, system);
    return {{nameCell(held.slot, held.property->name), valueCell(text), unitCell(text.unit), rangeCell(held, system)},
            {inspected.projectId, inspected.objectId, held.property->id}};
}

Row unreadRow(const InspectedMaterial& inspected, const UnreadRow& unread)
{
    Cell value = textCell(unread.value);
    value.toolTip = unread.reason;
    Cell reason = textCell(tr("cannot be read: %1").arg(unread.reason));
    reason.toolTip = unread.reason;
    return {{nameCell(unread.id, {}), value, {}, reason}, {inspected.projectId, inspected.objectId, unread.id}};
}

/// Returns the rows of the quantities, in the order of the catalogue. A row that cannot be read keeps its place.
std::multimap<std::size_t, Row> rowsByPosition(const InspectedMaterial& inspected, const vxUnits::UnitSystem& system)
{
    std::multimap<std::size_t, Row> rows;
    for (const vxMat::HeldProperty& held : vxMat::propertiesInCatalogueOrder(*inspected.material))
        rows.emplace(vxMat::getCataloguePosition(held.slot), heldRow(inspected, held, system));
    for (const UnreadRow& unread : inspected.unreadRows)
        rows.emplace(vxMat::getCataloguePosition(unread.id), unreadRow(inspected, unread));
    return rows;
}

Row derivedRow(const vxUnits::DerivedValue& derived, const vxUnits::UnitSystem& system)
{
    const ValueText text = valueText(derived, system);
    const QString formula = tr("%1 = %2").arg(QString::fromUtf8(derived.symbol), QString::fromUtf8(derived.formula));
    Cell value = valueCell(text);
    value.toolTip = value.toolTip.isEmpty() ? formula : formula + QLatin1Char('\n') + value.toolTip;
    return {{{tr("%1 (derived)").arg(derivedName(derived)), formula}, value, unitCell(text.unit), {}}};
}

} // namespace

QString materialSentence(const InspectedMaterial& inspected)
{
    QString sentence =
        inspected.hasUnappliedRows ? tr("\"%1\", with the changes in its editor that are not applied.") : tr("\"%1\".");
    sentence = sentence.arg(shortened(inspected.label));
    if (inspected.isSuppressed)
        sentence += QLatin1Char(' ') + tr("It is suppressed.");
    return sentence;
}

TableContent valueTable(const InspectedMaterial& inspected, const vxUnits::UnitSystem& system)
{
    TableContent table{materialSentence(inspected), {tr("Quantity"), tr("Value"), tr("Unit"), tr("Range")}, {}};
    for (auto& [position, row] : rowsByPosition(inspected, system))
        table.rows.push_back(std::move(row));
    for (const vxUnits::DerivedValue& derived : vxUnits::derivedValues(inspected.values))
        table.rows.push_back(derivedRow(derived, system));
    if (table.rows.empty())
        table.sentence += QLatin1Char(' ') + tr("It has no quantities yet.");
    return table;
}

} // namespace vxInspector
