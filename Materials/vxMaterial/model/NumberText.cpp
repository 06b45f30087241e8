#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <stdexcept>
#include <utility>

namespace vxMat {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

char toUpper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string_view withoutBlanksAround(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// Returns the locale that writes numbers with a point. It lives as long as the program.
locale_t classicLocale()
{
    static const locale_t classic = newlocale(LC_ALL_MASK, "C", nullptr);
    return classic;
}

/// The number at the start of a text.
struct ReadPrefix
{
    double number = 0.0;
    std::size_t length = 0;    ///< with the blanks in front; 0 if the text does not begin with a number
    bool isOutOfRange = false; ///< a double cannot hold it; `number` is then infinite or 0
};

/// Reads the longest number at the start of a text, after blanks.
ReadPrefix readPrefix(std::string_view text)
{
    const std::string terminated(text);
    char* end = nullptr;
    const int errorBefore = std::exchange(errno, 0);
    ReadPrefix prefix;
    prefix.number = strtod_l(terminated.c_str(), &end, classicLocale());
    prefix.length = static_cast<std::size_t>(end - terminated.c_str());
    // Numbers below the normal range are reported too, though a double holds them.
    prefix.isOutOfRange = errno == ERANGE && (std::isinf(prefix.number) || prefix.number == 0.0);
    errno = errorBefore;
    return prefix;
}

/// Returns the end of the digits of `text` from `at` on.
std::size_t endOfDigits(std::string_view text, std::size_t at)
{
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

/// Returns the end of the number of a list that begins at `begin`; `begin` itself if no number begins there.
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

/// Formats by to_chars, which does not depend on the locale. The largest double has 309 digits before it.
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
    return readLeadingNumber(text).number;
}

LeadingNumber readLeadingNumber(std::string_view text)
{
    const ReadPrefix prefix = readPrefix(text);
    if (prefix.length == 0)
        throw std::invalid_argument("invalid stod argument");
    if (prefix.isOutOfRange)
        throw std::out_of_range("stod argument out of range");
    return {prefix.number, text.substr(prefix.length)};
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
    if (prefix.length == 0 || prefix.length != text.size())
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
