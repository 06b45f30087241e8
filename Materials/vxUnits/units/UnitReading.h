#pragma once

#include "units/DoubleDouble.h"
#include "units/FoldedText.h"
#include "vxUnits/Reading.h"
#include "vxUnits/Unit.h"

#include <optional>
#include <string>
#include <string_view>

namespace vxUnits {

/// Returns the failure of a text that cannot be folded.
Failure failureOf(const FoldedText& folded, std::string_view text);

/// Returns the name of a dimension, or its SI unit if it has no name: "mass", "kg^2/m".
std::string measureOf(const Dimension& dimension);

/// Returns Unit::zero with all digits, because 273.15 is not a double.
DoubleDouble exactZero(const Unit& unit);

/// The purpose for which a number is read.
struct ReadingTarget
{
    Unit unit;  ///< of the result
    Unit plain; ///< of numbers without a unit
    TemperatureMeaning meaning = TemperatureMeaning::Refused;
    std::string name;                 ///< of the quantity, for messages; may be empty
    std::optional<Failure> unitFault; ///< the reason why the unit of the quantity is not known; absent if it is known
};

/// Reads one number. The suggestion of a failure is a text that can be read.
Result<Reading> readFor(const ReadingTarget& target, std::string_view text);

/// Reads a list of numbers in the same way.
Result<ListReading> readListFor(const ReadingTarget& target, std::string_view text);

} // namespace vxUnits
