#include "vxConstitutive/response/Langevin.h"

#include <array>
#include <cmath>
#include <limits>

namespace vxConstitutive {

namespace {

/// Returns L and its derivative by their series, for small arguments, for which coth(b) - 1/b loses digits.
ValueAndSlope langevinNearZero(double b)
{
    constexpr std::array<double, 6> coefficients{1.0 / 3.0,     -1.0 / 45.0,   2.0 / 945.0,
                                                 -1.0 / 4725.0, 2.0 / 93555.0, -1382.0 / 638512875.0};
    ValueAndSlope sum;
    double power = 1.0;
    double degree = 1.0;
    for (const double coefficient : coefficients) {
        sum.value += coefficient * power * b;
        sum.slope += coefficient * degree * power;
        power *= b * b;
        degree += 2.0;
    }
    return sum;
}

ValueAndSlope langevin(double b)
{
    constexpr double seriesLimit = 0.2;
    if (b < seriesLimit)
        return langevinNearZero(b);
    const double sinh = std::sinh(b);
    return {1.0 / std::tanh(b) - 1.0 / b, 1.0 / (b * b) - 1.0 / (sinh * sinh)};
}

} // namespace

ValueAndSlope inverseLangevin(double x)
{
    if (!(std::fabs(x) < 1.0))
        return {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN()};
    const double a = std::fabs(x);
    // From this rational approximation, whose error is 1 %, Newton's method needs three steps.
    double b = a * (3.0 - 2.6 * a + 0.7 * a * a) / ((1.0 - a) * (1.0 + 0.1 * a));
    for (int step = 0; step < 6; ++step) {
        const ValueAndSlope l = langevin(b);
        const double change = (l.value - a) / l.slope;
        b -= change;
        if (std::fabs(change) <= 1e-15 * b)
            break;
    }
    return {std::copysign(b, x), 1.0 / langevin(b).slope};
}

} // namespace vxConstitutive
