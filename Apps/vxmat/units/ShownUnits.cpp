#include "units/ShownUnits.h"

#include "program/Answer.h"
#include "vxUnits/Reading.h"

#include <stdexcept>

namespace commandline {

namespace {

/// Returns a unit that the program itself names.
vxUnits::Unit unitOf(const std::string& text)
{
    auto unit = vxUnits::Unit::parse(text);
    if (!unit)
        throw std::logic_error(unit.failure().text());
    return *std::move(unit);
}

} // namespace

ShownUnit showIn(const vxUnits::UnitSystem& system, const std::string& unit)
{
    const vxUnits::Unit kept = unitOf(unit);
    const vxUnits::Unit shown = system.unitOf(kept.dimension());
    const auto converter = vxUnits::Converter::between(kept, shown);
    if (!converter || (*converter)(1.0) == 1.0)
        return {unit, {}};
    return {shown.text(), *converter};
}

double readAmount(const std::string& option, const std::string& text, const std::string& unit,
                  const vxUnits::UnitSystem& system)
{
    const vxUnits::Unit kept = unitOf(unit);
    const vxUnits::Unit plain = system.unitOf(kept.dimension());
    const auto reading = vxUnits::readNumber(text, plain);
    if (!reading)
        throw Failure(option + ": " + reading.failure().text());
    return vxUnits::convertNumber(reading->value, plain, kept);
}

} // namespace commandline
