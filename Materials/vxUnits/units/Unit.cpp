#include "vxUnits/Unit.h"

#include "units/DoubleDouble.h"
#include "units/FoldedText.h"
#include "units/NumberScan.h"
#include "units/ScaleArithmetic.h"
#include "units/Spelling.h"
#include "units/Texts.h"
#include "units/UnitParser.h"
#include "units/UnitReading.h"
#include "vxMaterial/model/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>

namespace vxUnits {

namespace {

/// Returns the decimals of a number times a scale, rounded once; absent if a double cannot hold the result.
std::optional<double> scaled(double number, const Scale& scale)
{
    const std::string text = vxMat::formatNumber(number);
    const auto decimals = scanNumber(text);
    return decimals ? decimals->times(scale) : std::nullopt;
}

/// Returns a number with at most as many digits as people type.
double roundedAsTyped(double number)
{
    constexpr int digits = 12;
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::scientific, digits - 1);
    const std::string_view written(text.data(), static_cast<std::size_t>(end.ptr - text.data()));
    return vxMat::readWholeNumber(written).value_or(number);
}

} // namespace

Unit::Unit() : m_text("1") {}

Result<Unit> Unit::parse(std::string_view text)
{
    const FoldedText folded = fold(text);
    if (folded.fault != FoldedText::Fault::None)
        return failureOf(folded, text);
    ParsedUnit parsed = parseUnit(folded.text, text);
    if (parsed.valid)
        return UnitBuilder::build(parsed.terms);
    parsed.failure.suggestion = suggestUnit(folded.text, nullptr);
    return std::move(parsed.failure);
}

double Unit::factor() const
{
    return toDouble(m_scale);
}

Unit Unit::named(std::string text) const
{
    Unit unit = *this;
    unit.m_text = std::move(text);
    return unit;
}

void Converter::convert(const double* from, std::size_t count, double* to) const
{
    for (std::size_t i = 0; i < count; ++i)
        to[i] = (*this)(from[i]);
}

Result<Converter> Converter::between(const Unit& from, const Unit& to, TemperatureMeaning meaning)
{
    if (from.dimension() != to.dimension())
        return makeFailure(FaultCode::WrongDimension, Text::WrongDimension,
                           {from.text(), measureOf(from.dimension()), to.text()});
    const bool scales = from.isTemperatureScale() || to.isTemperatureScale();
    if (scales && meaning == TemperatureMeaning::Refused)
        return makeFailure(FaultCode::TemperatureScale, Text::TemperatureScale, {from.text()});
    const Scale ratio = from.scale() / to.scale();
    constexpr int largestExactPower = 22;
    Converter converter;
    if (isPowerOfTen(ratio) && ratio.exponent < 0 && ratio.exponent >= -largestExactPower)
        converter.m_divisor = toDouble({1.0, 0.0, -ratio.exponent});
    else
        converter.m_factor = toDouble(ratio);
    if (scales && meaning == TemperatureMeaning::Absolute)
        converter.m_offset = (times(exactZero(from), ratio) + -exactZero(to)).high;
    return converter;
}

const std::vector<Unit>& builtInUnits()
{
    static const std::vector<Unit> units = [] {
        std::vector<Unit> built;
        for (Atom& atom : builtInAtoms())
            built.push_back(UnitBuilder::build({{std::move(atom), 1.0, false}}));
        return built;
    }();
    return units;
}

double convertNumber(double number, const Unit& from, const Unit& to)
{
    const Scale ratio = from.scale() / to.scale();
    const auto converted = scaled(number, ratio);
    if (!converted)
        return number * toDouble(ratio);
    if (isPowerOfTen(ratio))
        return *converted;
    const double typed = roundedAsTyped(*converted);
    return scaled(typed, to.scale() / from.scale()) == number ? typed : *converted;
}

} // namespace vxUnits
