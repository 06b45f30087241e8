#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <stdexcept>
#include <system_error>

namespace vxMat {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isHexDigit(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

char toUpper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string_view withoutLeadingBlanks(std::string_view text)
{
    const auto* const begin = std::find_if_not(text.begin(), text.end(), isBlank);
    return text.substr(static_cast<std::size_t>(begin - text.begin()));
}

std::string_view withoutBlanksAround(std::string_view text)
{
    text = withoutLeadingBlanks(text);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

enum class Outcome
{
    Read,
    NoNumber,
    TooLarge,
    TooSmall
};

/// What stands at the start of a text: its outcome, the number where there is one, and the length it takes.
struct ReadPrefix
{
    Outcome outcome = Outcome::NoNumber;
    double number = 0.0;
    std::size_t length = 0;
};

bool startsHexadecimal(std::string_view digits)
{
    if (digits.size() < 3 || digits[0] != '0' || toUpper(digits[1]) != 'X')
        return false;
    return isHexDigit(digits[2]) || (digits[2] == '.' && digits.size() > 3 && isHexDigit(digits[3]));
}

/// Hexadecimal digits up to an exponent with two signs, which the library's from_chars takes for one.
std::string_view withoutDoublySignedExponent(std::string_view digits)
{
    const std::size_t exponent = digits.find_first_of("pP");
    const bool doublySigned = exponent != std::string_view::npos && digits.substr(exponent + 1, 2) == "+-";
    return doublySigned ? digits.substr(0, exponent) : digits;
}

/// Whether a number that from_chars found out of range was too small rather than too large: whether its first digit
/// that is not zero, shifted by its exponent, stands behind the point.
bool isTooSmall(std::string_view digits, bool hexadecimal)
{
    const std::size_t mark = digits.find_first_of(hexadecimal ? "pP" : "eE");
    const std::string_view mantissa = digits.substr(0, mark);
    long long exponent = 0;
    if (mark != std::string_view::npos) {
        std::string_view text = digits.substr(mark + 1);
        if (text.front() == '+')
            text.remove_prefix(1);
        const auto read = std::from_chars(text.data(), text.data() + text.size(), exponent);
        if (read.ec == std::errc::result_out_of_range)
            return text.front() == '-';
    }
    const auto point = static_cast<long long>(std::min(mantissa.find('.'), mantissa.size()));
    const auto leading = static_cast<long long>(mantissa.find_first_not_of("0."));
    const long long shift = (point - leading) * (hexadecimal ? 4 : 1);
    return exponent < -shift; // not as a sum, which the largest exponents would overflow
}

/// Reads the longest number at the start of `text`, which has no blanks in front.
ReadPrefix readPrefix(std::string_view text)
{
    std::string_view digits = text;
    const bool negative = !digits.empty() && digits.front() == '-';
    if (!digits.empty() && (digits.front() == '+' || digits.front() == '-'))
        digits.remove_prefix(1);
    if (digits.empty() || digits.front() == '-')
        return {};

    const bool hexadecimal = startsHexadecimal(digits);
    if (hexadecimal)
        digits = withoutDoublySignedExponent(digits.substr(2));

    ReadPrefix prefix;
    const auto format = hexadecimal ? std::chars_format::hex : std::chars_format::general;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), prefix.number, format);
    if (read.ec == std::errc::invalid_argument)
        return {};

    prefix.length = static_cast<std::size_t>(read.ptr - text.data());
    prefix.outcome = Outcome::Read;
    if (read.ec == std::errc::result_out_of_range) {
        const auto length = static_cast<std::size_t>(read.ptr - digits.data());
        const bool small = isTooSmall(digits.substr(0, length), hexadecimal);
        prefix.outcome = small ? Outcome::TooSmall : Outcome::TooLarge;
        prefix.number = small ? 0.0 : std::numeric_limits<double>::infinity();
    }
    if (negative)
        prefix.number = -prefix.number;
    return prefix;
}

/// Where the digits of `text` from `at` on end.
std::size_t endOfDigits(std::string_view text, std::size_t at)
{
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

/// Where the number of a list that begins at `begin` ends; `begin` itself when no number begins there.
std::size_t endOfListNumber(std::string_view text, std::size_t begin)
{
    const auto at = [text](std::size_t index) { return index < text.size() ? text[index] : '\0'; };

    std::size_t end = begin;
    if (at(end) == '+' || at(end) == '-')
        ++end;
    const std::size_t firstDigit = at(end) == '.' ? end + 1 : end;
    if (!isDigit(at(firstDigit)))
        return begin;

    end = endOfDigits(text, end);
    if (at(end) == '.')
        end = endOfDigits(text, end + 1);
    if (at(end) == 'e' || at(end) == 'E') {
        std::size_t exponent = end + 1;
        if (at(exponent) == '+' || at(exponent) == '-')
            ++exponent;
        if (isDigit(at(exponent)))
            end = endOfDigits(text, exponent);
    }
    return end;
}

/// Formats by to_chars, which takes its point from no locale. The largest double has 309 digits before it.
template <class... Format>
std::string formatBy(double number, Format... format)
{
    std::array<char, 512> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, format...);
    return {buffer.data(), written.ptr};
}

} // namespace

double readNumber(std::string_view text)
{
    const ReadPrefix prefix = readPrefix(withoutLeadingBlanks(text));
    if (prefix.outcome == Outcome::NoNumber)
        throw std::invalid_argument("invalid stod argument");
    if (prefix.outcome != Outcome::Read)
        throw std::out_of_range("stod argument out of range");
    return prefix.number;
}

std::vector<double> readNumberList(std::string_view text)
{
    std::vector<double> numbers;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = endOfListNumber(text, at);
        if (end == at) {
            ++at;
            continue;
        }
        numbers.push_back(readNumber(text.substr(at, end - at)));
        at = end;
    }
    return numbers;
}

std::optional<double> readWholeNumber(std::string_view text)
{
    text = withoutBlanksAround(text);
    const bool decimal = text.find_first_not_of("0123456789.+-eE") == std::string_view::npos;
    const bool word = equalIgnoringAsciiCase(text, "nan") || equalIgnoringAsciiCase(text, "inf") ||
                      equalIgnoringAsciiCase(text, "+inf") || equalIgnoringAsciiCase(text, "-inf");
    const ReadPrefix prefix = decimal || word ? readPrefix(text) : ReadPrefix();
    if (prefix.outcome == Outcome::NoNumber || prefix.length != text.size())
        return std::nullopt;
    return prefix.number;
}

std::string formatNumber(double number)
{
    return formatBy(number);
}

std::string formatNumberList(const std::vector<double>& numbers)
{
    std::string text;
    for (const double number : numbers) {
        if (!text.empty())
            text += ", ";
        text += formatNumber(number);
    }
    return text;
}

std::string formatFixed(double number)
{
    return formatBy(number, std::chars_format::fixed, 6);
}

std::string formatGeneral(double number)
{
    return formatBy(number, std::chars_format::general, 6);
}

std::string toUpperAscii(std::string_view text)
{
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), toUpper);
    return upper;
}

bool equalIgnoringAsciiCase(std::string_view one, std::string_view other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return toUpper(a) == toUpper(b); });
}

} // namespace vxMat
