#include "vxConstitutive/fit/EstimateText.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace vxConstitutive {

std::string roundedText(double number, int digits)
{
    if (!std::isfinite(number))
        return vxMat::formatGeneral(number);
    char text[32];
    const auto written =
        std::to_chars(std::begin(text), std::end(text), number, std::chars_format::scientific, digits - 1);
    double value = number;
    std::from_chars(std::begin(text), written.ptr, value);
    return vxMat::formatGeneral(value);
}

std::string estimateText(double value, const std::optional<double>& standardError)
{
    constexpr int least = 2;
    constexpr int most = 6;
    const bool isKnown = standardError && *standardError > 0.0 && std::isfinite(*standardError);
    if (!isKnown || value == 0.0 || !std::isfinite(value))
        return vxMat::formatGeneral(value);
    const double orders = std::floor(std::log10(std::fabs(value))) - std::floor(std::log10(*standardError));
    const double digits = std::clamp(orders + errorDigits, static_cast<double>(least), static_cast<double>(most));
    return roundedText(value, static_cast<int>(digits));
}

} // namespace vxConstitutive
