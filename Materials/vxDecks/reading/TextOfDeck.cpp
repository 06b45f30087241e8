#include "reading/TextOfDeck.h"

#include "texts/ReadingTexts.h"
#include "vxDecks/DeckReading.h"
#include "vxMaterial/json/Utf8.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <cmath>

namespace vxDecks {

namespace {

constexpr const char* blanks = " \t\v\f\r\n";

/// The longest text that is read as a number; zeros beyond it have no use.
constexpr std::size_t longestNumber = 400;

bool isOfDecimalNumber(char c)
{
    return (c >= '0' && c <= '9') || c == '.' || c == '+' || c == '-' || c == 'e' || c == 'E';
}

} // namespace

std::string_view withoutMark(std::string_view text)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return text.substr(0, mark.size()) == mark ? text.substr(mark.size()) : text;
}

bool DeckLines::next()
{
    using Traits = std::streambuf::traits_type;
    m_line.clear();
    m_isCut = false;
    auto read = m_file.sbumpc();
    if (Traits::eq_int_type(read, Traits::eof()))
        return false;
    ++m_number;
    for (; !Traits::eq_int_type(read, Traits::eof()); read = m_file.sbumpc()) {
        const char character = Traits::to_char_type(read);
        if (character == '\n')
            return true;
        if (character == '\r') {
            if (Traits::eq_int_type(m_file.sgetc(), Traits::to_int_type('\n')))
                m_file.sbumpc();
            return true;
        }
        keep(character);
    }
    return true;
}

void DeckLines::keep(char character)
{
    if (character == '\0')
        throw DeckError(makeMessage(ReadText::Binary), m_number);
    if (m_line.size() < longest)
        m_line += character;
    else
        m_isCut = true;
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::optional<double> readDeckNumber(std::string_view text)
{
    std::string number(trimmed(text));
    if (number.size() > longestNumber)
        return std::nullopt;
    std::replace_if(
        number.begin(), number.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
    if (!std::all_of(number.begin(), number.end(), isOfDecimalNumber))
        return std::nullopt;
    const auto read = vxMat::readWholeNumber(number);
    return read && std::isfinite(*read) ? read : std::nullopt;
}

std::optional<double> readFortranNumber(std::string_view text)
{
    std::string number(trimmed(text));
    const std::size_t sign = number.find_last_of("+-");
    const bool hasExponent = sign != std::string::npos && sign > 0;
    const auto isDigitOrPoint = [](char c) { return (c >= '0' && c <= '9') || c == '.'; };
    if (hasExponent && isDigitOrPoint(number[sign - 1]))
        number.insert(number.begin() + static_cast<std::ptrdiff_t>(sign), 'e');
    return readDeckNumber(number);
}

std::string toUtf8(std::string_view text)
{
    const bool isUtf8 = vxjson::lengthOfUtf8(text) == text.size();
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F) {
            result += ' ';
        } else if (byte < 0x80 || isUtf8) {
            result += c;
        } else {
            result += static_cast<char>(0xC0U | (byte >> 6U));
            result += static_cast<char>(0x80U | (byte & 0x3FU));
        }
    }
    return result;
}

} // namespace vxDecks
