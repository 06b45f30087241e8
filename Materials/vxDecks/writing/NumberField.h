#pragma once

#include <cmath>
#include <cstddef>
#include <string>

namespace vxDecks {

/// Returns the shortest text of a finite number with at most `longest` characters. If the number needs more, its last digits
/// are rounded, as few as possible. 20 characters suffice for at least 13 digits of any number.
std::string writeWithin(double number, std::size_t longest);

/// Returns the shortest text of a finite number as a real number of bulk data with at most `longest` characters: with a decimal
/// point, and with the exponent behind its sign, "2.1+11". If the number needs more, its last digits are rounded.
std::string writeBulkReal(double number, std::size_t longest);

/// Returns the number in a text of writeBulkReal.
double readBulkReal(const std::string& text);

/// Returns a calculated number with the 15 digits that errors of rounding do not reach: 1e5 for 99999.99999999999.
double withoutRoundingError(double calculated);

/// Returns whether a number differs from another one by no more than the rounding of a calculation.
inline bool isSameNumber(double one, double other)
{
    constexpr double rounding = 1e-14;
    return std::abs(one - other) <= rounding * std::abs(other);
}

} // namespace vxDecks
