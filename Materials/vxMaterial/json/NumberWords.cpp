#include "vxMaterial/json/NumberWords.h"

#include <cmath>
#include <limits>

namespace vxjson {

namespace {

constexpr std::string_view infinity = "Infinity";
constexpr std::string_view minusInfinity = "-Infinity";
constexpr std::string_view notANumber = "NaN";

} // namespace

std::string_view wordOfNumber(double number)
{
    if (std::isfinite(number))
        return {};
    if (std::isnan(number))
        return notANumber;
    return number > 0.0 ? infinity : minusInfinity;
}

std::optional<double> numberOfWord(std::string_view word)
{
    using Limits = std::numeric_limits<double>;
    if (word == infinity)
        return Limits::infinity();
    if (word == minusInfinity)
        return -Limits::infinity();
    if (word == notANumber)
        return Limits::quiet_NaN();
    return std::nullopt;
}

} // namespace vxjson
