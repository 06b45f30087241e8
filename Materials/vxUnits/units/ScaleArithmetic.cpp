#include "units/ScaleArithmetic.h"

#include <cmath>

namespace vxUnits {

namespace {

DoubleDouble rest(const Scale& scale)
{
    return {scale.high, scale.low};
}

/// Moves powers of ten to the exponent, so that the rest is from 1 to 10 and its powers stay in range. The rest of a power
/// of ten is exactly 1.
Scale normalised(DoubleDouble number, int exponent)
{
    if (number.high == 1.0 && number.low == 0.0)
        return {1.0, 0.0, exponent};
    if (!(number.high > 0.0) || !std::isfinite(number.high))
        return {number.high, 0.0, 0}; // no power of ten can be taken out
    const int shift = static_cast<int>(std::floor(std::log10(number.high)));
    number = timesPowerOfTen(number, -shift);
    return {number.high, number.low, exponent + shift};
}

Scale wholePower(const Scale& scale, int exponent)
{
    Scale result;
    Scale square = scale;
    for (int left = std::abs(exponent); left > 0; left /= 2) {
        if (left % 2 == 1)
            result = result * square;
        if (left > 1)
            square = square * square;
    }
    return exponent < 0 ? Scale() / result : result;
}

/// Uses the extended precision of the processor, if it has one. Rounds the exponent to nine decimals, as it was typed,
/// because 1.2 is not a double, and its error would be multiplied by the logarithm of the scale.
Scale brokenPower(const Scale& scale, double exponent)
{
    constexpr long double decimals = 1e9L;
    const long double typed = std::round(static_cast<long double>(exponent) * decimals);
    const long double tens = static_cast<long double>(scale.exponent) * typed / decimals;
    const long double whole = std::floor(tens);
    const long double base = static_cast<long double>(scale.high) + static_cast<long double>(scale.low);
    const long double result = std::pow(base, typed / decimals) * std::pow(10.0L, tens - whole);
    const auto high = static_cast<double>(result);
    const auto low = static_cast<double>(result - static_cast<long double>(high));
    return normalised({high, low}, static_cast<int>(whole));
}

} // namespace

Scale makeScale(std::uint64_t numerator, std::uint64_t denominator, int exponent)
{
    return normalised(toDoubleDouble(numerator) / toDoubleDouble(denominator), exponent);
}

Scale operator*(const Scale& one, const Scale& other)
{
    return normalised(rest(one) * rest(other), one.exponent + other.exponent);
}

Scale operator/(const Scale& one, const Scale& other)
{
    return normalised(rest(one) / rest(other), one.exponent - other.exponent);
}

Scale power(const Scale& scale, double exponent)
{
    constexpr double largest = 10000.0; // an int holds the power of ten of the result
    if (!(std::abs(exponent) <= largest))
        return {std::nan(""), 0.0, 0};
    const bool whole = exponent == std::floor(exponent);
    return whole ? wholePower(scale, static_cast<int>(exponent)) : brokenPower(scale, exponent);
}

bool isPowerOfTen(const Scale& scale)
{
    return scale.high == 1.0 && scale.low == 0.0;
}

double toDouble(const Scale& scale)
{
    return times({1.0, 0.0}, scale).high;
}

DoubleDouble times(const DoubleDouble& number, const Scale& scale)
{
    return timesPowerOfTen(number * rest(scale), scale.exponent);
}

DoubleDouble dividedBy(const DoubleDouble& number, const Scale& scale)
{
    return timesPowerOfTen(number / rest(scale), -scale.exponent);
}

} // namespace vxUnits
