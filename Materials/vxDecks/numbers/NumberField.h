#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

namespace vxDecks {

/// A real number of a card, and the quantity that it is made of; 0 if it is made of none.
struct Real
{
    // Not explicit, because most numbers of a card are made of no quantity.
    Real(double number, std::int32_t quantity = 0) : value(number), id(quantity) {}

    double value;
    std::int32_t id;

    bool operator==(const Real& other) const { return value == other.value && id == other.id; }
};

/// Returns the shortest text of a finite number with at most `longest` characters. If the number needs more, its last digits
/// are rounded, as few as possible. 20 characters suffice for at least 13 digits of any number.
std::string writeWithin(double number, std::size_t longest);

/// Returns the number in a text of writeWithin. It is infinite or 0 if rounding has taken it out of the range of a double.
double readWritten(const std::string& text);

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
