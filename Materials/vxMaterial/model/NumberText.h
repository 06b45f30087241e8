#pragma once

#include "vxMaterial/model/ModelExport.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Numbers as text, always with a decimal point, independently of the locale of the user or the host. Texts of any
/// length are read in linear time.
namespace vxMat {

/// Returns the number at the start of `text`, as `std::stod` does in the C locale: blanks in front are skipped, the
/// longest prefix that is a number is read (decimal, hexadecimal, "inf" or "nan", in any case), the rest is ignored:
/// "7850 kg" gives 7850. Unlike std::stod it reads subnormal numbers.
///
/// \throws std::invalid_argument ("invalid stod argument") if the text does not begin with a number
/// \throws std::out_of_range ("stod argument out of range") if a double cannot hold it: 1e999, 1e-999
VXMAT_MODEL_EXPORT double readNumber(std::string_view text);

/// A number at the start of a text, and the text after it.
struct LeadingNumber
{
    double number;
    std::string_view rest;
};

/// Returns the number at the start of `text`, as readNumber does, and the text after it, which readNumber ignores:
/// " GPa" of "210 GPa".
///
/// \throws std::invalid_argument, std::out_of_range as readNumber does
VXMAT_MODEL_EXPORT LeadingNumber readLeadingNumber(std::string_view text);

/// Returns a list of numbers in the form that users type: every decimal number in `text` from left to right, with any
/// text between them. "450, 608;679" gives three numbers, "abc" gives no number. A sign belongs to the number that
/// follows it, and an exponent counts only if it has digits: "1e" is 1.
///
/// \throws std::out_of_range ("stod argument out of range") if a double cannot hold one of them
VXMAT_MODEL_EXPORT std::vector<double> readNumberList(std::string_view text);

/// Returns the number if `text` is one decimal number, "inf" or "nan", with only ASCII blanks around it; absent
/// otherwise. A number above the range of a double is infinite and a number below it is 0, so that a comparison with a
/// bound is still right.
VXMAT_MODEL_EXPORT std::optional<double> readWholeNumber(std::string_view text);

/// Returns the shortest decimal text that reads back to exactly the same double: 7850, 0.3, 2e+11,
/// 1.7976931348623157e+308, inf, nan.
VXMAT_MODEL_EXPORT std::string formatNumber(double number);

/// Returns the numbers of a list, each by formatNumber, joined by ", ".
VXMAT_MODEL_EXPORT std::string formatNumberList(const std::vector<double>& numbers);

/// Returns the number in fixed notation with six decimals, as C's "%f": 200000000000.000000, 0.300000.
VXMAT_MODEL_EXPORT std::string formatFixed(double number);

/// Returns the number in general notation with six significant digits, as C's "%g": 0, 0.1, 500, 1e+06, 2e+11.
VXMAT_MODEL_EXPORT std::string formatGeneral(double number);

/// Returns `text` with the letters a to z changed to A to Z, and all other characters unchanged.
VXMAT_MODEL_EXPORT std::string toUpperAscii(std::string_view text);

/// Returns whether two texts are equal apart from the case of the letters a to z.
VXMAT_MODEL_EXPORT bool equalIgnoringAsciiCase(std::string_view one, std::string_view other);

} // namespace vxMat
