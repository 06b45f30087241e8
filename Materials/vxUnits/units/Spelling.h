#pragma once

#include "units/UnitParser.h"
#include "vxUnits/Dimension.h"

#include <string>
#include <string_view>
#include <vector>

namespace vxUnits {

/// Returns the unit that was probably meant by a folded text that is refused. Corrects the case ("GPa" for "gpa"), a
/// missing blank ("Pa s"), a wrong letter, a missing parenthesis, brackets, words ("square inch", "mph"), and does what
/// suggestTerms does. The unit has the
/// dimension `target`, if it is given. Empty if no unit is near.
std::string suggestUnit(std::string_view folded, const Dimension* target);

/// Returns the unit that was probably meant by terms of the wrong dimension: "W/(m K)" for "W/m K", also for "W/mK", "lbf/in^2" for
/// "lb/in^2", "J/(kg degC)" for "J/(kg C)". Empty if no unit is near.
std::string suggestTerms(const std::vector<Term>& terms, const Dimension& target);

/// Returns the number of letters to add, to remove or to exchange, or to swap with their neighbours, in one text to get the
/// other. Takes the product of their lengths.
std::size_t editDistance(std::string_view one, std::string_view other);

} // namespace vxUnits
