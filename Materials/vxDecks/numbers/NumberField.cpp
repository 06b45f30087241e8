#include "numbers/NumberField.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace vxDecks {

namespace {

/// Removes the sign and the zeros in front of an exponent that have no meaning: "1e-09" becomes "1e-9", "2e+11" "2e11".
std::string withShortExponent(const std::string& text)
{
    const std::size_t e = text.find('e');
    if (e == std::string::npos)
        return text;
    const bool negative = text[e + 1] == '-';
    const std::size_t digits = text.find_first_not_of("+-0", e + 1);
    return text.substr(0, e + 1) + (negative ? "-" : "") + text.substr(digits);
}

/// Returns a finite number with a precision as printf does, in any locale with a decimal point.
std::string inDigits(double number, std::chars_format format, int precision)
{
    std::array<char, 64> text{};
    char* const end = std::to_chars(text.data(), text.data() + text.size(), number, format, precision).ptr;
    return {text.data(), end};
}

std::string rounded(double number, int digits)
{
    return withShortExponent(inDigits(number, std::chars_format::general, digits));
}

/// Returns the digits of a number without a point and without zeros at the end, and sets the exponent of the first digit.
struct Digits
{
    std::string sign;
    std::string digits;
    int exponent = 0;
};

Digits digitsOf(double number, int count)
{
    const std::string written = inDigits(std::abs(number), std::chars_format::scientific, count - 1);
    const std::size_t e = written.find('e');
    std::string digits = written.substr(0, 1) + (count > 1 ? written.substr(2, e - 2) : std::string());
    digits.erase(std::max<std::size_t>(digits.find_last_not_of('0') + 1, 1));
    return {number < 0.0 ? "-" : "", digits, std::stoi(written.substr(e + 1))};
}

/// Returns "2.1+11".
std::string withExponent(const Digits& all)
{
    const std::string exponent = (all.exponent < 0 ? "" : "+") + std::to_string(all.exponent);
    return all.sign + all.digits.substr(0, 1) + "." + all.digits.substr(1) + exponent;
}

/// Returns "7850." or ".3".
std::string withoutExponent(const Digits& all)
{
    const auto count = static_cast<int>(all.digits.size());
    if (all.exponent < 0)
        return all.sign + "." + std::string(static_cast<std::size_t>(-all.exponent - 1), '0') + all.digits;
    const auto whole = static_cast<std::size_t>(all.exponent) + 1;
    if (all.exponent + 1 >= count)
        return all.sign + all.digits + std::string(whole - all.digits.size(), '0') + ".";
    return all.sign + all.digits.substr(0, whole) + "." + all.digits.substr(whole);
}

std::string shortestOf(const Digits& all)
{
    constexpr int mostZeros = 17; // more would be longer than an exponent
    std::string text = withExponent(all);
    if (std::abs(all.exponent) > mostZeros)
        return text;
    const std::string plain = withoutExponent(all);
    return plain.size() <= text.size() ? plain : text;
}

/// Returns the number of digits from which a double can be read back.
int neededDigits(double number)
{
    constexpr int most = 17;
    const std::string text = vxMat::formatNumber(number);
    const std::size_t end = std::min(text.find('e'), text.size());
    const auto digits = std::count_if(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end),
                                      [](char c) { return c >= '0' && c <= '9'; });
    return std::clamp(static_cast<int>(digits), 1, most);
}

} // namespace

double readWritten(const std::string& text)
{
    return vxMat::readWholeNumber(text).value_or(std::nan(""));
}

std::string writeBulkReal(double number, std::size_t longest)
{
    if (number == 0.0)
        return "0.";
    std::string text;
    for (int digits = neededDigits(number); digits > 0; --digits) {
        text = shortestOf(digitsOf(number, digits));
        if (text.size() <= longest)
            break;
    }
    return text;
}

double readBulkReal(const std::string& text)
{
    std::string number = text;
    const std::size_t sign = number.find_last_of("+-");
    if (sign != std::string::npos && sign > 0)
        number.insert(sign, "e");
    return readWritten(number);
}

double withoutRoundingError(double calculated)
{
    constexpr int safeDigits = 15;
    return std::isfinite(calculated) ? readWritten(rounded(calculated, safeDigits)) : calculated;
}

std::string writeWithin(double number, std::size_t longest)
{
    std::string text = withShortExponent(vxMat::formatNumber(number));
    for (int digits = 16; text.size() > longest && digits > 0; --digits)
        text = rounded(number, digits);
    return text;
}

} // namespace vxDecks
