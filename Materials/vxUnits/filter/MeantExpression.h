#pragma once

#include "filter/QuantityNames.h"
#include "vxUnits/Reading.h"

#include <string>
#include <string_view>

namespace vxUnits {

/// Returns the expression that a user probably means by one that can be read, but whose words for labels look like parts of
/// conditions: "E = 200 GPa" for "E 200 GPa", "steel and E > 5" for "steel & E > 5". It can be read. Empty if no words do, and
/// for an expression that is longer than 200 bytes.
std::string meantExpression(std::string_view text, const ReadingContext& context, const QuantityNames& names);

} // namespace vxUnits
