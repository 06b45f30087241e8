#pragma once

#include <cmath>
#include <cstdint>

namespace vxUnits {

/// An unevaluated sum of two doubles, `low` at most half a unit in the last place of `high`: about 31 digits, so that
/// products of exact definitions of units are correctly rounded (Dekker, Numerische Mathematik 18, 1971).
struct DoubleDouble
{
    double high = 0.0;
    double low = 0.0;
};

inline DoubleDouble quickTwoSum(double larger, double smaller)
{
    const double sum = larger + smaller;
    return {sum, smaller - (sum - larger)};
}

inline DoubleDouble twoSum(double one, double other)
{
    const double sum = one + other;
    const double part = sum - one;
    return {sum, (one - (sum - part)) + (other - part)};
}

inline DoubleDouble operator+(const DoubleDouble& one, const DoubleDouble& other)
{
    const DoubleDouble high = twoSum(one.high, other.high);
    const DoubleDouble low = twoSum(one.low, other.low);
    const DoubleDouble sum = quickTwoSum(high.high, high.low + low.high);
    return quickTwoSum(sum.high, sum.low + low.low);
}

inline DoubleDouble operator-(const DoubleDouble& number)
{
    return {-number.high, -number.low};
}

inline DoubleDouble operator*(const DoubleDouble& one, const DoubleDouble& other)
{
    const double product = one.high * other.high;
    const double rest = std::fma(one.high, other.high, -product);
    return quickTwoSum(product, rest + (one.high * other.low + one.low * other.high));
}

inline DoubleDouble operator/(const DoubleDouble& one, const DoubleDouble& other)
{
    const double first = one.high / other.high;
    const DoubleDouble rest = one + -(other * DoubleDouble{first, 0.0});
    const double second = rest.high / other.high;
    const DoubleDouble last = rest + -(other * DoubleDouble{second, 0.0});
    return quickTwoSum(first, second) + DoubleDouble{last.high / other.high, 0.0};
}

/// Returns an integer exactly, up to 19 digits.
inline DoubleDouble toDoubleDouble(std::uint64_t integer)
{
    // Halves of 32 bits are exact doubles.
    const auto high = static_cast<double>(integer >> 32U) * 4294967296.0;
    return quickTwoSum(high, static_cast<double>(integer & 0xFFFFFFFFU));
}

/// Returns 10^exponent for exponents from 0 to 300.
inline DoubleDouble powerOfTen(int exponent)
{
    DoubleDouble result{1.0, 0.0};
    DoubleDouble square{10.0, 0.0};
    for (int rest = exponent; rest > 0; rest /= 2) {
        if (rest % 2 == 1)
            result = result * square;
        if (rest > 1)
            square = square * square;
    }
    return result;
}

/// Returns number * 10^exponent; infinite or 0 if it is out of range, with fewer digits below 1e-290. A number that is not
/// finite does not change.
inline DoubleDouble timesPowerOfTen(DoubleDouble number, int exponent)
{
    constexpr int step = 150; // each step stays far inside the range of a double
    if (!std::isfinite(number.high))
        return number;
    while (exponent > 0 && number.high != 0.0) {
        const int taken = exponent < step ? exponent : step;
        const DoubleDouble larger = number * powerOfTen(taken);
        if (!std::isfinite(larger.high))
            return {std::copysign(HUGE_VAL, number.high), 0.0};
        number = larger;
        exponent -= taken;
    }
    while (exponent < 0 && number.high != 0.0) {
        const int taken = -exponent < step ? -exponent : step;
        number = number / powerOfTen(taken);
        exponent += taken;
    }
    return number;
}

} // namespace vxUnits
