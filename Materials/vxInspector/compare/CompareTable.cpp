#include "compare/CompareTable.h"

#include "values/ValueText.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/Quantity.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <utility>

namespace vxInspector {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::CompareTable", text);
}

/// A value of one material.
struct ComparedValue
{
    ValueText text;
    std::string exact; ///< the value without rounding, for the comparison; empty if the material lacks the quantity
};

/// The values of one quantity in all materials.
struct ComparedRow
{
    QString name;
    std::vector<ComparedValue> values; ///< one for each material
};

/// The rows in their order: the quantities of the catalogue, other properties, derived values.
using ComparedRows = std::map<std::pair<std::size_t, std::int32_t>, ComparedRow>;

/// Returns the value without rounding. A switch that is held is on, whatever its number.
std::string exactValue(const vxMat::HeldProperty& held)
{
    const vxUnits::Quantity* const quantity = vxUnits::findQuantity(held.slot);
    const bool isSwitch = quantity != nullptr && quantity->form == vxUnits::QuantityForm::Switch;
    return isSwitch ? std::string("on") : vxMat::formatValue(*held.property);
}

class Comparison
{
public:
    Comparison(const std::vector<InspectedMaterial>& materials, const vxUnits::UnitSystem& system)
        : m_count(materials.size()), m_system(system)
    {
        for (std::size_t column = 0; column < m_count; ++column)
            add(materials[column], column);
    }

    const ComparedRows& rows() const { return m_rows; }

private:
    void add(const InspectedMaterial& inspected, std::size_t column)
    {
        for (const vxMat::HeldProperty& held : vxMat::propertiesInCatalogueOrder(*inspected.material))
            valueAt({vxMat::getCataloguePosition(held.slot), held.slot}, column,
                    quantityName(held.slot, held.property->name)) = {valueText(held, inspected.values, m_system),
                                                                     exactValue(held)};
        for (const UnreadRow& unread : inspected.unreadRows)
            valueAt({vxMat::getCataloguePosition(unread.id), unread.id}, column,
                    quantityName(unread.id)) = {{unread.value, {}, unread.reason}, unread.value.toStdString()};
        for (const vxUnits::DerivedValue& derived : vxUnits::derivedValues(inspected.values))
            valueAt({vxMat::catalogueSize + 1, derived.position}, column,
                    tr("%1 (derived)").arg(derivedName(derived))) = {valueText(derived, m_system),
                                                                     vxMat::formatNumber(derived.value)};
    }

    ComparedValue& valueAt(const ComparedRows::key_type& key, std::size_t column, const QString& name)
    {
        ComparedRow& row = m_rows[key];
        row.name = name;
        row.values.resize(m_count);
        return row.values[column];
    }

    std::size_t m_count;
    const vxUnits::UnitSystem& m_system;
    ComparedRows m_rows;
};

/// Returns the unit of all values of a row; empty if their units differ, as those of a creep factor may.
QString commonUnit(const ComparedRow& row)
{
    QString unit;
    bool isFirst = true;
    for (const auto& [text, exact] : row.values) {
        if (exact.empty())
            continue;
        if (!std::exchange(isFirst, false) && text.unit != unit)
            return {};
        unit = text.unit;
    }
    return unit;
}

Cell toCell(const ComparedValue& value, const ComparedValue& first, const QString& commonUnit)
{
    const bool hasOwnUnit = commonUnit.isEmpty() && !value.text.unit.isEmpty();
    ValueText text = value.text;
    if (value.exact.empty())
        text.number = QChar(0x2013);
    Cell cell = valueCell(text);
    if (hasOwnUnit) {
        cell.whole = cell.copied() + QLatin1Char(' ') + text.unit;
        cell.text += QLatin1Char(' ') + text.unit;
    }
    cell.isBold = value.exact != first.exact;
    return cell;
}

Row toRow(const ComparedRow& compared)
{
    const QString unit = commonUnit(compared);
    Row row{{textCell(compared.name), unitCell(unit), {}}};
    for (const ComparedValue& value : compared.values)
        row.cells.push_back(toCell(value, compared.values.front(), unit));
    if (std::any_of(row.cells.begin(), row.cells.end(), [](const Cell& cell) { return cell.isBold; }))
        row.cells[CompareColumn::Difference] = {QString(QChar(0x2260)), tr("The values differ.")};
    return row;
}

/// Returns the labels of the materials in a state, separated by commas.
QString labelsWith(const std::vector<InspectedMaterial>& materials, bool InspectedMaterial::*state)
{
    QStringList labels;
    for (const InspectedMaterial& inspected : materials)
        if (inspected.*state)
            labels << shortened(inspected.label, 40);
    return labels.join(QStringLiteral(", "));
}

} // namespace

TableContent compareTable(const std::vector<InspectedMaterial>& materials, const vxUnits::UnitSystem& system)
{
    TableContent table{{}, {tr("Quantity"), tr("Unit"), QString(QChar(0x2260))}, {}};
    for (const InspectedMaterial& inspected : materials)
        table.headers << shortened(inspected.label, 40);
    std::size_t different = 0;
    const Comparison comparison(materials, system);
    for (const auto& [key, compared] : comparison.rows()) {
        table.rows.push_back(toRow(compared));
        different += table.rows.back().cells[CompareColumn::Difference].text.isEmpty() ? 0 : 1;
    }
    table.sentence = different == 0 ? tr("The materials have the same values.")
                                    : tr("Different in %1 of %2 quantities.").arg(different).arg(table.rows.size());
    const auto tell = [&](const QString& text, bool InspectedMaterial::*state) {
        if (const QString labels = labelsWith(materials, state); !labels.isEmpty())
            table.sentence += QLatin1Char(' ') + text.arg(labels);
    };
    tell(tr("With changes that are not applied: %1."), &InspectedMaterial::hasUnappliedRows);
    tell(tr("Suppressed: %1."), &InspectedMaterial::isSuppressed);
    return table;
}

} // namespace vxInspector
