#pragma once

#include "vxConstitutive/ConstitutiveExport.h"

#include <optional>
#include <string>

namespace vxConstitutive {

/// Returns the text of an estimate with the digits that its standard error justifies, down to the second digit of the error, and at
/// least 2 and at most 6 digits: 406123 with the error 1234 is "406100". Six digits without an error or if it is 0. The decimal
/// sign is a point.
VXCONSTITUTIVE_EXPORT std::string estimateText(double value, const std::optional<double>& standardError);

/// The digits of standard errors and of percentages of errors.
inline constexpr int errorDigits = 2;

/// The digits of residuals.
inline constexpr int residualDigits = 3;

/// Returns the text of a number that is rounded to significant digits, at most 6: 1234 with 2 digits is "1200".
VXCONSTITUTIVE_EXPORT std::string roundedText(double number, int digits);

} // namespace vxConstitutive
