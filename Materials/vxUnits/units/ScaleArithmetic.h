#pragma once

#include "units/DoubleDouble.h"
#include "vxUnits/Unit.h"

#include <cstdint>

namespace vxUnits {

/// Returns exactly numerator / denominator * 10^exponent. Both must be above 0.
Scale makeScale(std::uint64_t numerator, std::uint64_t denominator, int exponent);

Scale operator*(const Scale& one, const Scale& other);
Scale operator/(const Scale& one, const Scale& other);

/// Returns a power of a scale, with all digits for a whole exponent, and about 18 digits for others. The
/// result is not a number if the exponent is not between -10000 and 10000.
Scale power(const Scale& scale, double exponent);

/// Returns whether the scale is a power of ten and nothing else.
bool isPowerOfTen(const Scale& scale);

/// Returns the double next to a scale; infinite or 0 if it is out of range.
double toDouble(const Scale& scale);

/// Returns number * scale.
DoubleDouble times(const DoubleDouble& number, const Scale& scale);
/// Returns number / scale.
DoubleDouble dividedBy(const DoubleDouble& number, const Scale& scale);

} // namespace vxUnits
