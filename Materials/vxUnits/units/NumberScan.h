#pragma once

#include "units/DoubleDouble.h"
#include "vxUnits/Result.h"
#include "vxUnits/Unit.h"

#include <optional>
#include <string>
#include <string_view>

namespace vxUnits {

/// A decimal number as it was typed, and the text after it.
struct ScannedNumber
{
    std::string mantissa;  ///< sign, digits and point, without the exponent: "-2.1"
    int exponent = 0;      ///< power of ten that the mantissa is multiplied by; limited to what cannot matter
    std::string_view rest; ///< what follows the number, without blanks around it

    /// Returns the number times a scale, correctly rounded; absent if a double cannot hold it. Uses 19 digits of a longer
    /// number, unless the scale is a power of ten.
    std::optional<double> times(const Scale& scale) const;

    /// Returns the number with about 31 digits, of which the first 19 are typed.
    DoubleDouble exact() const;
};

/// Reads the number at the start of a folded text. Accepts "210", "2.1e11", "2.1*10^11" and "10^6". Refuses, with the
/// nearest spelling: decimal commas, thousands separators, several numbers, exponents without digits or with D,
/// nan, inf, hexadecimals. Messages quote `typed`, the text before it was folded; without it, they quote `text`.
Result<ScannedNumber> scanNumber(std::string_view text, std::string_view typed = {});

} // namespace vxUnits
