#include "TextSource.h"

#include "projectfile/ProjectFile.h"
#include "vxMaterial/exchange/JsonText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>
#include <utility>

namespace projectfile::detail {

namespace {

constexpr std::size_t deepestNesting = 1000;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool isContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Whether a byte of a text stands for itself: no quote, no backslash, no control character, no start of a longer
/// character.
bool isPlain(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x20U && byte < 0x80U && c != '"' && c != '\\';
}

/// The length of the number, by the grammar of JSON, that `text` begins with; 0 when it begins with none.
std::size_t lengthOfNumber(std::string_view text)
{
    std::size_t at = 0;
    const auto has = [&](std::string_view letters) {
        return at < text.size() && letters.find(text[at]) != std::string_view::npos;
    };
    const auto takeDigits = [&] {
        const std::size_t begin = at;
        while (at < text.size() && isDigit(text[at]))
            ++at;
        return at > begin;
    };
    at += has("-") ? 1 : 0;
    if (has("0"))
        ++at;
    else if (!takeDigits())
        return 0;
    if (has(".") && (++at, !takeDigits()))
        return 0;
    if (has("eE")) {
        ++at;
        at += has("+-") ? 1 : 0;
        if (!takeDigits())
            return 0;
    }
    return at;
}

/// What a wrong value or number looks like in a message: up to the next delimiter.
std::string_view wordOf(std::string_view text)
{
    return text.substr(0, std::max<std::size_t>(1, std::min(text.find_first_of(" \t\r\n,:[]{}\""), text.size())));
}

void appendUtf8(std::string& text, unsigned codePoint)
{
    const auto add = [&text](unsigned byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    const auto addContinuation = [&](unsigned shift) { add(0x80U | ((codePoint >> shift) & 0x3FU)); };
    if (codePoint < 0x80U) {
        add(codePoint);
    } else if (codePoint < 0x800U) {
        add(0xC0U | (codePoint >> 6U));
        addContinuation(0);
    } else if (codePoint < 0x10000U) {
        add(0xE0U | (codePoint >> 12U));
        addContinuation(6);
        addContinuation(0);
    } else {
        add(0xF0U | (codePoint >> 18U));
        addContinuation(12);
        addContinuation(6);
        addContinuation(0);
    }
}

} // namespace

TextSource::TextSource(std::string_view text) : m_text(text)
{
    if (m_text.substr(0, byteOrderMark.size()) == byteOrderMark)
        m_at = byteOrderMark.size();
}

void TextSource::fail(std::size_t at, const std::string& message) const
{
    const std::string_view before = m_text.substr(0, at);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    std::string_view inLine = before.substr(before.rfind('\n') + 1); // the whole when there is no line before
    if (line == 1 && inLine.substr(0, byteOrderMark.size()) == byteOrderMark)
        inLine.remove_prefix(byteOrderMark.size());
    // Editors count characters, not bytes.
    const auto column = std::count_if(inLine.begin(), inLine.end(), [](char c) { return !isContinuation(c); }) + 1;
    throw ProjectFileError("line " + std::to_string(line) + ", column " + std::to_string(column) + ": " + message);
}

void TextSource::skipBlanks()
{
    while (m_at < m_text.size() &&
           (m_text[m_at] == ' ' || m_text[m_at] == '\n' || m_text[m_at] == '\r' || m_text[m_at] == '\t'))
        ++m_at;
}

bool TextSource::take(char c)
{
    if (m_at >= m_text.size() || m_text[m_at] != c)
        return false;
    ++m_at;
    return true;
}

void TextSource::expect(char c, const char* message)
{
    if (take(c))
        return;
    fail(m_at, m_at < m_text.size() ? message : "the text ends in the middle");
}

void TextSource::enter()
{
    if (m_path.depth() >= deepestNesting)
        fail(m_at, "nested more than " + std::to_string(deepestNesting) + " levels deep");
    ++m_at;
    m_path.enter();
}

JsonKind TextSource::kind()
{
    skipBlanks();
    m_valueAt = m_at;
    if (m_at >= m_text.size())
        fail(m_at, m_path.depth() == 0 ? "the text is empty" : "the text ends in the middle");
    const std::string_view rest = m_text.substr(m_at);
    switch (rest.front()) {
    case '{':
        return JsonKind::Object;
    case '[':
        return JsonKind::Array;
    case '"':
        return JsonKind::Text;
    default:
        break;
    }
    const std::string_view word = wordOf(rest);
    if (word == "true" || word == "false")
        return JsonKind::Boolean;
    if (word == "null")
        return JsonKind::Null;
    if (isDigit(rest.front()) || rest.front() == '-')
        return JsonKind::Number;
    fail(m_at, vxCAE::lengthOfUtf8(word) == word.size() ? "'" + shortened(word) + "' is not a JSON value"
                                                        : "the text is not UTF-8");
}

bool TextSource::readBoolean()
{
    const bool value = m_text[m_at] == 't';
    m_at += value ? 4 : 5;
    return value;
}

std::string_view TextSource::readNumberToken()
{
    const std::string_view rest = m_text.substr(m_at);
    const std::size_t length = lengthOfNumber(rest);
    const std::string_view word = wordOf(rest);
    if (length != word.size())
        fail(m_at, "'" + shortened(word) + "' is not a number");
    m_at += length;
    return word;
}

double TextSource::toDouble(std::string_view token) const
{
    double number = 0.0;
    const auto result = std::from_chars(token.data(), token.data() + token.size(), number);
    if (result.ec != std::errc())
        fail(m_at - token.size(), "'" + shortened(token) + "' is beyond the range of a double");
    return number;
}

double TextSource::readNumber()
{
    return toDouble(readNumberToken());
}

std::optional<std::int64_t> TextSource::readWhole()
{
    const std::string_view token = readNumberToken();
    std::int64_t whole = 0;
    const auto result = std::from_chars(token.data(), token.data() + token.size(), whole);
    if (result.ec == std::errc() && result.ptr == token.data() + token.size())
        return whole;
    // 1e3 and 5.0 are whole numbers too.
    const double number = toDouble(token);
    constexpr double tooLarge = 9223372036854775808.0;
    if (number != std::floor(number) || number < -tooLarge || number >= tooLarge)
        return std::nullopt;
    return static_cast<std::int64_t>(number);
}

/// What stands between the quotes of the text ahead when all of it stands for itself, and nothing otherwise.
std::string_view TextSource::readPlainText()
{
    std::size_t end = m_at + 1;
    while (end < m_text.size() && isPlain(m_text[end]))
        ++end;
    const std::string_view plain = m_text.substr(m_at + 1, end - m_at - 1);
    m_at = end;
    return plain;
}

void TextSource::readText(std::string& text)
{
    text = readPlainText();
    while (!take('"')) {
        if (m_at >= m_text.size())
            fail(m_at, "the text ends in the middle");
        const auto byte = static_cast<unsigned char>(m_text[m_at]);
        if (byte < 0x20U)
            fail(m_at, byte == '\n' || byte == '\r' ? "a text must end in the line that it begins in"
                                                    : "a control character stands in a text");
        if (byte == '\\') {
            readEscape(text);
            continue;
        }
        // Up to the next byte that means something else; in one go, since a long text may have no ASCII at all.
        std::size_t end = m_at;
        while (end < m_text.size() && (isPlain(m_text[end]) || static_cast<unsigned char>(m_text[end]) >= 0x80U))
            ++end;
        const std::string_view run = m_text.substr(m_at, end - m_at);
        if (const std::size_t utf8 = vxCAE::lengthOfUtf8(run); utf8 < run.size())
            fail(m_at + utf8, "the text is not UTF-8");
        text += run;
        m_at = end;
    }
}

void TextSource::readEscape(std::string& text)
{
    static constexpr std::string_view letters = "\"\\/bfnrt";
    static constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
    const char letter = m_at + 1 < m_text.size() ? m_text[m_at + 1] : '\0';
    if (letter == 'u') {
        appendUtf8(text, readCodePoint());
        return;
    }
    const std::size_t which = letters.find(letter);
    if (which == std::string_view::npos)
        fail(m_at, "a backslash that begins no escape of JSON");
    text += meanings[which];
    m_at += 2;
}

unsigned TextSource::readFourHexDigits()
{
    constexpr std::size_t length = 6; // with the backslash and the u
    const std::string_view escape = m_text.substr(m_at, length);
    unsigned unit = 0;
    const char* const end = escape.data() + escape.size();
    const bool begins = escape.size() == length && escape.substr(0, 2) == "\\u";
    if (!begins || std::from_chars(escape.data() + 2, end, unit, 16).ptr != end)
        fail(m_at, "four hexadecimal digits must follow \\u");
    m_at += length;
    return unit;
}

unsigned TextSource::readCodePoint()
{
    const std::size_t begin = m_at;
    const unsigned first = readFourHexDigits();
    const bool isHigh = first >= 0xD800U && first < 0xDC00U;
    const bool isLow = first >= 0xDC00U && first < 0xE000U;
    if (!isHigh && !isLow)
        return first;
    const bool hasSecond = isHigh && m_text.substr(m_at, 2) == "\\u";
    const unsigned second = hasSecond ? readFourHexDigits() : 0U;
    if (second < 0xDC00U || second >= 0xE000U)
        fail(begin, "half of a surrogate pair, which is no character");
    return 0x10000U + ((first - 0xD800U) << 10U) + (second - 0xDC00U);
}

std::string_view TextSource::readName()
{
    skipBlanks();
    if (m_at >= m_text.size() || m_text[m_at] != '"')
        fail(m_at,
             m_at < m_text.size() ? "the name of a member, in quotes, is missing" : "the text ends in the middle");
    const std::size_t begin = m_at;
    std::string_view name = readPlainText();
    const bool isPlainName = m_at < m_text.size() && m_text[m_at] == '"';
    m_at = isPlainName ? m_at + 1 : begin;
    if (!isPlainName) {
        readText(m_name);
        name = m_name;
    }
    m_path.setName(m_text.substr(begin + 1, m_at - begin - 2));
    skipBlanks();
    expect(':', "the colon behind the name of a member is missing");
    return name;
}

void TextSource::readEnd()
{
    skipBlanks();
    if (m_at < m_text.size())
        fail(m_at, "there is more behind the end of the document");
}

std::string TextSource::shown() const
{
    const std::string_view rest = m_text.substr(m_valueAt);
    if (rest.front() == '{')
        return "an object";
    if (rest.front() == '[')
        return "an array";
    if (rest.front() != '"')
        return shortened(wordOf(rest));
    std::size_t end = 1;
    while (end < rest.size() && rest[end] != '"')
        end += rest[end] == '\\' ? 2 : 1;
    return shortened(rest.substr(0, end + 1));
}

Json::Value TextSource::readAnyNumber()
{
    const std::string_view token = readNumberToken();
    const char* const end = token.data() + token.size();
    Json::Value::LargestInt whole = 0;
    if (const auto result = std::from_chars(token.data(), end, whole);
        result.ptr == end && result.ec == std::errc() && token != "-0")
        return whole;
    Json::Value::LargestUInt large = 0;
    if (const auto result = std::from_chars(token.data(), end, large); result.ptr == end && result.ec == std::errc())
        return large;
    return toDouble(token);
}

Json::Value TextSource::readAnyObject()
{
    Json::Value object(Json::objectValue);
    readObject([&](std::string_view name) {
        if (object.find(name.data(), name.data() + name.size()) != nullptr)
            throw ProjectFileError("\"" + path() + "\" stands there twice");
        const std::string kept(name);
        object[kept] = readAny();
    });
    return object;
}

Json::Value TextSource::readAny() // NOLINT(misc-no-recursion): the nesting is limited
{
    switch (kind()) {
    case JsonKind::Object:
        return readAnyObject();
    case JsonKind::Array: {
        Json::Value array(Json::arrayValue);
        readArray([&] { array.append(readAny()); });
        return array;
    }
    case JsonKind::Text: {
        std::string text;
        readText(text);
        return text;
    }
    case JsonKind::Number:
        return readAnyNumber();
    case JsonKind::Boolean:
        return readBoolean();
    case JsonKind::Null:
        m_at += 4;
        break;
    }
    return {};
}

} // namespace projectfile::detail
