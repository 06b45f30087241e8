#pragma once

#include "vxUnits/Unit.h"
#include "vxUnits/UnitSystem.h"

#include <string>

namespace commandline {

/// The unit in which a number that is kept in a unit of SI is printed.
struct ShownUnit
{
    std::string text; ///< "MPa"; "1" for pure numbers
    vxUnits::Converter convert;
};

/// Returns the unit of a system for numbers in a unit of SI. The text stays `unit` if the numbers do not change, so that a
/// frequency in Hz is not shown in 1/s.
ShownUnit showIn(const vxUnits::UnitSystem& system, const std::string& unit);

/// Returns a number that was given for an option, in the unit `unit` of SI. A number without a unit is in the unit of
/// `system`.
/// \throws Failure with the name of the option if the text is not such a number
double readAmount(const std::string& option, const std::string& text, const std::string& unit,
                  const vxUnits::UnitSystem& system);

} // namespace commandline
