#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Plausibility.h"
#include "vxUnits/Reading.h"
#include "vxUnits/UnitSystem.h"
#include "vxUnits/Writing.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

using vxUnits::quantities;
using vxUnits::Quantity;
using vxUnits::readQuantity;
using vxUnits::readQuantityList;
using vxUnits::Unit;
using vxUnits::UnitSystem;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// What is read is finite and shown so that it reads back; what is refused has a message, and a suggestion that is taken.
void checkNumber(const Quantity& quantity, std::string_view text)
{
    const vxUnits::ReadingContext context{nullptr, vxUnits::CreepExponents{4.5, -0.25}};
    const auto reading = readQuantity(quantity.id, text, context);
    if (!reading) {
        require(!reading.failure().message.text().empty());
        const std::string& suggestion = reading.failure().suggestion;
        require(suggestion.empty() || readQuantity(quantity.id, suggestion, context).hasValue());
        return;
    }
    require(std::isfinite(reading->value));
    const std::string& understood = reading->understood;
    const std::size_t sign = understood.find(" = ");
    const std::string result = sign == std::string::npos ? understood : understood.substr(sign + 3);
    require(readQuantity(quantity.id, result, context)->value == reading->value);
}

void checkList(const Quantity& quantity, std::string_view text)
{
    const auto list = readQuantityList(quantity.id, text);
    if (list)
        return;
    const std::string& suggestion = list.failure().suggestion;
    require(suggestion.empty() || readQuantityList(quantity.id, suggestion).hasValue());
}

/// A unit is written so that it reads as the same unit, and numbers in it read back.
void checkUnit(std::string_view text)
{
    const auto unit = Unit::parse(text);
    if (!unit)
        return;
    const auto again = Unit::parse(unit->text());
    require(again.hasValue() && again->dimension() == unit->dimension() && again->text() == unit->text());
    const double factor = unit->factor();
    if (!(factor > 1e-200 && factor < 1e200) || unit->isTemperatureScale())
        return;
    const Unit coherent = UnitSystem::si().unitOf(unit->dimension());
    const std::string written = vxUnits::writeNumber(7850.0, *unit);
    const auto back = vxUnits::readNumber(written + " " + unit->text(), coherent);
    require(!back.hasValue() || back->value == 7850.0); // parts that cancel each other may be too many to read
}

void checkSystem(std::string_view text)
{
    const auto system = UnitSystem::parse(text);
    if (system)
        require(UnitSystem::parse(system->text())->text() == system->text());
}

/// Makes a material of the bytes: a quantity by one byte and its number by the eight bytes of a double, so that infinities
/// and other wild numbers occur.
vxUnits::MaterialValues makeValues(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t step = 1 + sizeof(double);
    vxUnits::MaterialValues values;
    for (; size >= step; data += step, size -= step) {
        const Quantity& quantity = quantities()[data[0] % quantities().size()];
        double number = 0.0;
        std::memcpy(&number, data + 1, sizeof number);
        if (quantity.form == vxUnits::QuantityForm::Number)
            values.setNumber(quantity.id, number);
        else if (quantity.form == vxUnits::QuantityForm::NumberList)
            values.setList(quantity.id, {0.0, number});
        else
            values.setSwitch(quantity.id);
    }
    return values;
}

/// A check ends, every doubt has a text, and every remedy can be applied.
void checkDoubts(vxUnits::MaterialValues values)
{
    for (const vxUnits::Doubt& doubt : checkPlausibility(values)) {
        require(!doubt.text().empty() && vxUnits::findQuantity(doubt.id) != nullptr);
        if (doubt.remedy)
            applyRemedy(*doubt.remedy, values);
    }
    const auto unit = unitOfQuantity(vxMat::PropertyId::CreepModulusA, UnitSystem::si(), values.creepExponents());
    require(!unit || !unit->text().empty());
}

} // namespace

/// The first byte chooses the quantity, the rest is typed. All bytes are the numbers of a material, too.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const Quantity& quantity = quantities()[data[0] % quantities().size()];
    const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
    checkNumber(quantity, text);
    checkList(quantity, text);
    checkUnit(text);
    checkSystem(text);
    checkDoubts(makeValues(data, size));
    return 0;
}
