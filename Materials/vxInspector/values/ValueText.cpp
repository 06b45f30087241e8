#include "values/ValueText.h"

#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/Quantity.h"
#include "vxUnits/Writing.h"

#include <QCoreApplication>

namespace vxInspector {

namespace {

/// Numbers in SI are the stored ones; others are rounded, since they are not exact anyway.
int digitsIn(const vxUnits::UnitSystem& system)
{
    constexpr int enough = 10;
    return system == vxUnits::UnitSystem::si() ? vxUnits::shortestDigits : enough;
}

/// Returns the numbers of a quantity in the unit that they are stored in, if the unit is not known.
ValueText unconverted(const std::vector<double>& numbers, const vxUnits::Failure& failure)
{
    return {QString::fromStdString(vxMat::formatNumberList(numbers)), {}, translated(failure)};
}

/// Returns a note if the number of a switch looks as if the switch were off.
QString noteOnSwitch(const vxMat::MaterialProperty& property)
{
    if (property.value != 0.0)
        return {};
    return QCoreApplication::translate("vxInspector::ValueTable",
                                       "A switch is on if the material has it, whatever its number. Remove the "
                                       "quantity to switch it off.");
}

} // namespace

QString quantityName(std::int32_t id, const std::string& otherName)
{
    const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(id);
    return record != nullptr ? QCoreApplication::translate("vxMat::PropertyName", record->name)
                             : QString::fromStdString(otherName);
}

std::vector<double> numbersOf(const vxMat::HeldProperty& held)
{
    const vxUnits::Quantity* const quantity = vxUnits::findQuantity(held.slot);
    if (quantity == nullptr || !quantity->hasNumber())
        return {};
    return quantity->form == vxUnits::QuantityForm::NumberList ? held.property->values
                                                               : std::vector<double>{held.property->value};
}

ValueText numbersText(std::int32_t id, const std::vector<double>& numbers, const vxUnits::MaterialValues& values,
                      const vxUnits::UnitSystem& system)
{
    const auto exponents = values.creepExponents();
    ValueText texts;
    for (const double number : numbers) {
        const auto written = vxUnits::writeQuantity(id, number, system, exponents, digitsIn(system));
        if (!written)
            return unconverted(numbers, written.failure());
        texts.number += (texts.number.isEmpty() ? "" : ", ") + QString::fromStdString(written->number);
        texts.unit = QString::fromStdString(written->unit);
    }
    return texts;
}

ValueText valueText(const vxMat::HeldProperty& held, const vxUnits::MaterialValues& values,
                    const vxUnits::UnitSystem& system)
{
    const vxUnits::Quantity* const quantity = vxUnits::findQuantity(held.slot);
    if (quantity != nullptr && quantity->form == vxUnits::QuantityForm::Switch)
        return {QCoreApplication::translate("vxInspector::ValueTable", "on"), {}, noteOnSwitch(*held.property)};
    if (quantity == nullptr || !quantity->hasNumber())
        return {QString::fromStdString(vxMat::formatValue(*held.property)), {}, {}};
    return numbersText(held.slot, numbersOf(held), values, system);
}

ValueText valueText(const vxUnits::DerivedValue& derived, const vxUnits::UnitSystem& system)
{
    constexpr int digits = 5;
    const vxUnits::Unit unit = system.unitOf(derived.dimension);
    return {QString::fromStdString(vxUnits::writeNumber(derived.value, unit, digits)),
            derived.dimension.isNone() ? QString() : QString::fromStdString(unit.text()),
            {}};
}

QString derivedName(const vxUnits::DerivedValue& derived)
{
    return translatedWord(derived.name);
}

} // namespace vxInspector
