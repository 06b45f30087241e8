#include "values/ValueText.h"

#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/Quantity.h"
#include "vxUnits/Writing.h"

#include <QCoreApplication>
#include <QLocale>

namespace vxInspector {

namespace {

constexpr int shownDigits = 8; ///< enough to tell materials apart, few enough for a narrow column

/// Numbers in SI are the stored ones; conversions are exact to 15 digits.
int allDigitsIn(const vxUnits::UnitSystem& system)
{
    constexpr int exact = 15;
    return system == vxUnits::UnitSystem::si() ? vxUnits::shortestDigits : exact;
}

/// Returns a number with its exponent if it was rounded before the decimal point: the zeros of 206842720000 look exact.
QString withoutRoundedZeros(const QString& number)
{
    const bool isInteger = !number.contains(QLatin1Char('.')) && !number.contains(QLatin1Char('e'));
    if (!isInteger || number.size() <= shownDigits + 1) // with the sign
        return number;
    return QLocale::c().toString(number.toDouble(), 'e', QLocale::FloatingPointShortest);
}

/// Returns a number without a small exponent, since 200000 is easier to read than 2e+05.
QString withoutSmallExponent(const std::string& number)
{
    constexpr int most = 6;
    QString text = QString::fromStdString(number);
    const int mark = text.indexOf(QLatin1String("e+"));
    const int exponent = mark > 0 ? text.mid(mark + 2).toInt() : 0;
    const int point = text.indexOf(QLatin1Char('.'));
    const int decimals = point > 0 ? mark - point - 1 : 0;
    if (exponent == 0 || exponent > most || decimals > exponent)
        return text;
    text.truncate(mark);
    return text.remove(QLatin1Char('.')) + QString(exponent - decimals, QLatin1Char('0'));
}

void append(QString& list, const QString& number)
{
    list += (list.isEmpty() ? QString() : QStringLiteral(", ")) + number;
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
        const auto shown = vxUnits::writeQuantity(id, number, system, exponents, shownDigits);
        const auto whole = vxUnits::writeQuantity(id, number, system, exponents, allDigitsIn(system));
        if (!shown || !whole)
            return unconverted(numbers, (shown ? whole : shown).failure());
        append(texts.number, withoutRoundedZeros(withoutSmallExponent(shown->number)));
        append(texts.whole, withoutSmallExponent(whole->number));
        texts.unit = QString::fromStdString(shown->unit);
    }
    if (texts.whole == texts.number)
        texts.whole.clear();
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
    ValueText text{withoutSmallExponent(vxUnits::writeNumber(derived.value, unit, digits)),
                   derived.dimension.isNone() ? QString() : QString::fromStdString(unit.text()),
                   {},
                   withoutSmallExponent(vxUnits::writeNumber(derived.value, unit, allDigitsIn(system)))};
    if (text.whole == text.number)
        text.whole.clear();
    return text;
}

Cell valueCell(const ValueText& value)
{
    Cell cell = textCell(value.number);
    if (!value.whole.isEmpty()) {
        cell.whole = value.whole;
        cell.toolTip =
            shortened(value.unit.isEmpty() ? value.whole : value.whole + QLatin1Char(' ') + value.unit, mostInToolTip);
    }
    if (!value.note.isEmpty())
        cell.toolTip = value.note;
    return cell;
}

Cell unitCell(const QString& unit)
{
    constexpr int mostInLine = 12; // characters; a longer unit would take the room of the numbers
    Cell cell{unit};
    cell.isInOneLine = unit.size() <= mostInLine;
    return cell;
}

QString derivedName(const vxUnits::DerivedValue& derived)
{
    return translatedWord(derived.name);
}

} // namespace vxInspector
