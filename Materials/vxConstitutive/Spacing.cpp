#include "Spacing.h"

#include "vxConstitutive/Curve.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>

namespace vxConstitutive {

namespace {

double rounded(double value, int digits)
{
    char text[32];
    const auto written =
        std::to_chars(std::begin(text), std::end(text), value, std::chars_format::scientific, digits - 1);
    double result = value;
    std::from_chars(std::begin(text), written.ptr, result);
    return result;
}

/// Rounds all values but the first and the last.
std::vector<double> roundedInside(std::vector<double> values, int digits)
{
    for (std::size_t i = 1; i + 1 < values.size(); ++i)
        values[i] = rounded(values[i], digits);
    return values;
}

} // namespace

std::vector<double> spread(double from, double to, std::size_t count)
{
    // The terms of a value that is 0 cancel but for their rounding.
    const double resolution = 2.0 * std::numeric_limits<double>::epsilon() * std::max(std::fabs(from), std::fabs(to));
    std::vector<double> values(count, from);
    for (std::size_t i = 1; i < count; ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(count - 1);
        values[i] = from * (1.0 - part) + to * part; // exact at both ends, and without overflow between them
        if (i + 1 < count && std::fabs(values[i]) <= resolution)
            values[i] = 0.0;
    }
    return values;
}

std::vector<double> spreadByFactor(double from, double to, std::size_t count)
{
    if (!(from * to > 0.0))
        return {};
    std::vector<double> values = spread(std::log(std::fabs(from)), std::log(std::fabs(to)), count);
    for (double& value : values)
        value = std::copysign(std::exp(value), from);
    if (count > 0)
        values.front() = from;
    if (count > 1)
        values.back() = to;
    return values;
}

std::vector<double> evenlySpaced(double from, double to, std::size_t count)
{
    return roundedInside(spread(from, to, count), 15);
}

std::vector<double> spacedByFactor(double from, double to, std::size_t count)
{
    return roundedInside(spreadByFactor(from, to, count), 13);
}

} // namespace vxConstitutive
