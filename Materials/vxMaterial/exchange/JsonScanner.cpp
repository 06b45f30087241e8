#include "JsonScanner.h"

#include "vxMaterial/exchange/JsonText.h"

#include <algorithm>

namespace vxCAE::detail {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

/// Whether a character ends a number or a word.
bool isDelimiter(char c)
{
    return isBlank(c) || c == ',' || c == ':' || c == '[' || c == ']' || c == '{' || c == '}' || c == '"' || c == '/';
}

/// The length of the comment that `text` begins with; 0 when it begins with none.
std::size_t lengthOfComment(std::string_view text)
{
    const bool toLineEnd = text.substr(0, 2) == "//";
    const bool toMark = text.substr(0, 2) == "/*";
    if (!toLineEnd && !toMark)
        return 0;
    const std::size_t end = toLineEnd ? text.find('\n') : text.find("*/", 2);
    return end == std::string_view::npos ? text.size() : end + (toLineEnd ? 0 : 2);
}

/// The length of the text value that `text` begins with, quotes included.
std::size_t lengthOfText(std::string_view text)
{
    std::size_t end = 1;
    std::size_t quote = text.find('"', end);
    while (quote != std::string_view::npos) {
        // Most texts have no escapes, and are searched as a whole.
        const std::size_t escape = text.substr(0, quote).find('\\', end);
        if (escape == std::string_view::npos)
            return quote + 1;
        end = escape + 2;
        if (end > quote)
            quote = text.find('"', end);
    }
    return text.size();
}

TokenKind kindOf(char first)
{
    switch (first) {
    case '[':
        return TokenKind::BeginArray;
    case ']':
        return TokenKind::EndArray;
    case '{':
        return TokenKind::BeginObject;
    case '}':
        return TokenKind::EndObject;
    case ',':
        return TokenKind::Comma;
    case ':':
        return TokenKind::Colon;
    case '"':
        return TokenKind::Text;
    default:
        return TokenKind::Other;
    }
}

std::size_t countDigits(std::string_view text)
{
    return std::min(text.find_first_not_of("0123456789"), text.size());
}

/// Takes one of `letters` from the start of `text`, if one is there.
bool take(std::string_view& text, std::string_view letters)
{
    if (text.empty() || letters.find(text.front()) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    return true;
}

bool takeDigits(std::string_view& text)
{
    const std::size_t count = countDigits(text);
    text.remove_prefix(count);
    return count > 0;
}

bool isContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

bool isAscii(std::string_view text)
{
    unsigned all = 0;
    for (const char c : text)
        all |= static_cast<unsigned char>(c);
    return all < 0x80U;
}

/// The length of the UTF-8 character that `text` begins with; 0 when it begins with none.
std::size_t lengthOfCharacter(std::string_view text)
{
    const auto at = [text](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
    const unsigned first = at(0);
    std::size_t length = 1;
    if (first >= 0xC2U && first < 0xE0U)
        length = 2;
    else if (first >= 0xE0U && first < 0xF0U)
        length = 3;
    else if (first >= 0xF0U && first < 0xF5U)
        length = 4;
    else if (first >= 0x80U)
        return 0;

    for (std::size_t i = 1; i < length; ++i) {
        if (i >= text.size() || !isContinuation(text[i]))
            return 0;
    }
    const unsigned second = at(1);
    const bool overlong = (first == 0xE0U && second < 0xA0U) || (first == 0xF0U && second < 0x90U);
    const bool surrogate = first == 0xEDU && second >= 0xA0U;
    const bool beyondUnicode = first == 0xF4U && second >= 0x90U;
    return overlong || surrogate || beyondUnicode ? 0 : length;
}

} // namespace

void JsonScanner::skipBlanksAndComments()
{
    while (m_at < m_text.size()) {
        while (m_at < m_text.size() && isBlank(m_text[m_at]))
            ++m_at;
        const std::size_t comment = lengthOfComment(m_text.substr(m_at));
        if (comment == 0)
            return;
        m_at += comment;
    }
}

std::optional<Token> JsonScanner::next()
{
    skipBlanksAndComments();
    if (m_at >= m_text.size())
        return std::nullopt;
    const std::size_t begin = m_at;
    const TokenKind kind = kindOf(m_text[begin]);
    std::size_t length = 1;
    if (kind == TokenKind::Text)
        length = lengthOfText(m_text.substr(begin));
    else if (kind == TokenKind::Other)
        while (begin + length < m_text.size() && !isDelimiter(m_text[begin + length]))
            ++length;
    m_at = begin + length;
    return Token{kind, begin, m_text.substr(begin, length)};
}

bool isJsonNumber(std::string_view token)
{
    take(token, "-");
    if (!take(token, "0") && !takeDigits(token))
        return false;
    if (take(token, ".") && !takeDigits(token))
        return false;
    if (take(token, "eE")) {
        take(token, "+-");
        if (!takeDigits(token))
            return false;
    }
    return token.empty();
}

} // namespace vxCAE::detail

namespace vxCAE {

std::size_t lengthOfUtf8(std::string_view text)
{
    constexpr std::size_t block = 64;
    std::size_t length = 0;
    while (length < text.size()) {
        const std::size_t blockEnd = std::min(length + block, text.size());
        // Most texts are ASCII for long stretches, which go by blocks.
        if (detail::isAscii(text.substr(length, block)))
            length = blockEnd;
        while (length < blockEnd) {
            const std::size_t character = detail::lengthOfCharacter(text.substr(length));
            if (character == 0)
                return length;
            length += character;
        }
    }
    return length;
}

} // namespace vxCAE
