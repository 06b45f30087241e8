#include "vxUnits/Writing.h"

#include "units/NumberScan.h"
#include "units/ScaleArithmetic.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace vxUnits {

using vxMat::formatNumber;

namespace {

constexpr int mostDigits = 17;
constexpr int spareDigits = 18; ///< one more, since the logarithm may count one too few
constexpr int safeDigits = 15;  ///< every decimal number of so many digits survives a double

/// Returns the number in `text` times `scale`.
std::optional<double> readBack(const std::string& text, const Scale& scale)
{
    const auto scanned = scanNumber(text);
    return scanned ? scanned->times(scale) : std::nullopt;
}

/// Returns the digits of number * 10^shift, with the point after the first one and without trailing zeros: "2.1e11".
std::string scientific(const DoubleDouble& number, int digits, int shift = 0)
{
    int exponent = static_cast<int>(std::floor(std::log10(std::abs(number.high))));
    const DoubleDouble shifted = timesPowerOfTen(number.high < 0.0 ? -number : number, digits - 1 - exponent);
    const auto integer = static_cast<std::uint64_t>(std::llround(shifted.high) + std::llround(shifted.low));
    std::string text = std::to_string(integer);
    exponent += static_cast<int>(text.size()) - digits; // 9.99 may have become 10.0
    text.erase(std::max<std::size_t>(text.find_last_not_of('0') + 1, 1));
    if (text.size() > 1)
        text.insert(1, ".");
    return (number.high < 0.0 ? "-" : "") + text + "e" + std::to_string(exponent + shift);
}

/// Returns the text that formatNumber writes for the number in `text`, if it reads back to the same value.
std::string asUsual(const std::string& text, const Scale& scale)
{
    const auto number = readBack(text, Scale());
    if (!number)
        return text;
    std::string usual = formatNumber(*number);
    return readBack(usual, scale) == readBack(text, scale) ? usual : text;
}

std::string shortest(double number, const DoubleDouble& converted, const Scale& scale)
{
    std::string text = formatNumber(converted.high);
    const auto significant =
        std::count_if(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(std::min(text.find('e'), text.size())),
                      [](char c) { return c >= '0' && c <= '9'; });
    if (significant <= safeDigits && readBack(text, scale) == number)
        return text;
    for (int digits = safeDigits; digits <= spareDigits; ++digits) {
        const std::string candidate = scientific(converted, digits);
        if (readBack(candidate, scale) == number)
            return asUsual(candidate, scale);
    }
    return text;
}

} // namespace

std::string writeNumber(double number, const Unit& unit, int digits)
{
    if (!std::isfinite(number) || number == 0.0)
        return formatNumber(number);
    const DoubleDouble converted = dividedBy({number, 0.0}, unit.scale());
    if (!std::isfinite(converted.high) || converted.high == 0.0) // no double holds it in this unit, but a text does
        return scientific(DoubleDouble{number, 0.0} / DoubleDouble{unit.scale().high, unit.scale().low}, mostDigits,
                          -unit.scale().exponent);
    if (digits == shortestDigits)
        return shortest(number, converted, unit.scale());
    return asUsual(scientific(converted, std::clamp(digits, 1, mostDigits)), Scale());
}

Result<WrittenQuantity> writeQuantity(std::int32_t id, double value, const UnitSystem& system,
                                      const std::optional<CreepExponents>& creep, int digits)
{
    const auto stored = unitOfQuantity(id, UnitSystem::si(), creep);
    const auto shown = unitOfQuantity(id, system, creep);
    if (!stored || !shown)
        return stored ? shown.failure() : stored.failure();
    return WrittenQuantity{writeNumber(value, *shown, digits), shown->text() == "1" ? "" : shown->text()};
}

} // namespace vxUnits
