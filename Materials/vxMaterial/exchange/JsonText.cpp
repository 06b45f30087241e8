#include "vxMaterial/exchange/JsonText.h"

#include "JsonScanner.h"

#include "vxMaterial/model/NumberText.h"

#include <json/reader.h>
#include <json/writer.h>

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cmath>
#include <locale>
#include <memory>
#include <utility>

namespace vxCAE {

namespace {

constexpr int deepestNesting = 1000;

/// The JSON library reads numbers through streams, which take the decimal point from the global C++ locale. Setting
/// that one sets the C locale too, so both are put back.
class ClassicLocale
{
public:
    ClassicLocale()
    {
        if (m_before == std::locale::classic())
            return;
        m_cLocaleBefore = std::setlocale(LC_ALL, nullptr);
        std::locale::global(std::locale::classic());
    }
    ClassicLocale(const ClassicLocale&) = delete;
    ClassicLocale& operator=(const ClassicLocale&) = delete;
    ~ClassicLocale()
    {
        if (m_before == std::locale::classic())
            return;
        std::locale::global(m_before);
        std::setlocale(LC_ALL, m_cLocaleBefore.c_str());
    }

private:
    std::locale m_before;
    std::string m_cLocaleBefore;
};

/// The number that stands behind `word` in a report of the JSON library; 0 when there is none.
int numberBehind(std::string_view report, std::string_view word)
{
    int number = 0;
    const std::size_t at = report.find(word);
    if (at != std::string_view::npos)
        std::from_chars(report.data() + at + word.size(), report.data() + report.size(), number);
    return number;
}

/// A text short enough for a line: its middle is left out when it is long.
std::string shortened(std::string_view text)
{
    constexpr std::size_t most = 200;
    constexpr std::size_t kept = 80;
    if (text.size() <= most)
        return std::string(text);
    return std::string(text.substr(0, kept)) + "..." + std::string(text.substr(text.size() - kept));
}

/// The first error of a report such as "* Line 2, Column 8\n  Syntax error: ...\n".
JsonError firstError(std::string_view report)
{
    JsonError error;
    const std::size_t lineEnd = report.find('\n');
    const std::string_view place = report.substr(0, lineEnd);
    error.line = numberBehind(place, "Line ");
    error.column = numberBehind(place, "Column ");
    if (lineEnd != std::string_view::npos)
        report.remove_prefix(lineEnd + 1);
    report = report.substr(0, report.find('\n'));
    report.remove_prefix(std::min(report.find_first_not_of(' '), report.size()));
    error.message = shortened(report);
    return error;
}

/// An error at a place of a text.
JsonError errorAt(std::string_view text, std::size_t offset, std::string message)
{
    const std::string_view before = text.substr(0, offset);
    const std::size_t lineStart = before.rfind('\n') + 1; // 0 when there is no line before
    JsonError error;
    error.line = static_cast<int>(std::count(before.begin(), before.end(), '\n')) + 1;
    error.column = static_cast<int>(before.size() - lineStart) + 1;
    error.message = std::move(message);
    return error;
}

/// What is wrong with a token that begins like a number; empty when nothing is.
std::string faultOfNumber(std::string_view token)
{
    constexpr std::size_t harmless = 15; // digits, which neither overflow nor lose anything
    if (token.size() <= harmless && token[0] != '0' && token.find_first_not_of("0123456789") == std::string_view::npos)
        return {};
    const std::string shown = "'" + shortened(token) + "'";
    if (!detail::isJsonNumber(token))
        return shown + " is not a number";
    const double number = vxMat::readWholeNumber(token).value_or(0.0);
    const std::string_view mantissa = token.substr(0, token.find_first_of("eE"));
    const bool written = mantissa.find_first_of("123456789") != std::string_view::npos;
    if (std::isinf(number) || (number == 0.0 && written))
        return shown + " is beyond the range of a double";
    return {};
}

/// The code unit that an escape such as \u00e4 at `at` stands for; 0 when none is there.
unsigned codeUnitAt(std::string_view token, std::size_t at)
{
    constexpr std::size_t length = 6;
    const std::string_view escape = token.substr(std::min(at, token.size()), length);
    unsigned unit = 0;
    if (escape.size() == length && escape.substr(0, 2) == "\\u")
        std::from_chars(escape.data() + 2, escape.data() + length, unit, 16);
    return unit;
}

/// Whether a text value has an escape for half of a surrogate pair, which is no character. The library makes bytes of
/// it that are not UTF-8.
bool hasHalfOfPair(std::string_view token)
{
    constexpr std::size_t length = 6;
    const auto isHigh = [](unsigned unit) { return unit >= 0xD800U && unit < 0xDC00U; };
    const auto isLow = [](unsigned unit) { return unit >= 0xDC00U && unit < 0xE000U; };
    for (std::size_t at = token.find('\\'); at != std::string_view::npos; at = token.find('\\', at)) {
        const unsigned unit = codeUnitAt(token, at);
        if (isLow(unit) || (isHigh(unit) && !isLow(codeUnitAt(token, at + length))))
            return true;
        at += isHigh(unit) ? 2 * length : 2;
    }
    return false;
}

/// Looks at each token of a text for what the JSON library would take or throw for: numbers that it turns into others,
/// nesting that it does not follow, and, in the strict dialect, comments, which it takes in some places though it was
/// told not to, and halves of characters.
class TokenCheck
{
public:
    TokenCheck(std::string_view text, JsonDialect dialect) : m_text(text), m_isStrict(dialect == JsonDialect::Strict) {}

    std::optional<JsonError> check(const detail::Token& token)
    {
        using detail::TokenKind;
        if (auto comment = findComment(token.offset))
            return comment;
        m_end = token.offset + token.text.size();
        const bool ends = token.kind == TokenKind::EndArray || token.kind == TokenKind::EndObject;
        const bool begins = token.kind == TokenKind::BeginArray || token.kind == TokenKind::BeginObject;
        const bool separates = token.kind == TokenKind::Comma || token.kind == TokenKind::Colon;
        if (!ends && !separates && m_depth >= deepestNesting)
            return errorAt(m_text, token.offset, "nested more than " + std::to_string(deepestNesting) + " levels deep");
        m_depth += begins ? 1 : ends ? -1 : 0;
        if (token.kind == TokenKind::Other && token.text.find_first_of("0123456789+-.") == 0) {
            if (std::string fault = faultOfNumber(token.text); !fault.empty())
                return errorAt(m_text, token.offset, std::move(fault));
        }
        if (m_isStrict && token.kind == TokenKind::Text && hasHalfOfPair(token.text))
            return errorAt(m_text, token.offset, "an escape for half of a surrogate pair, which is no character");
        return std::nullopt;
    }

    /// A comment between the last token and `offset`.
    std::optional<JsonError> findComment(std::size_t offset) const
    {
        const std::size_t at = m_isStrict ? m_text.substr(0, offset).find('/', m_end) : std::string_view::npos;
        if (at == std::string_view::npos)
            return std::nullopt;
        return errorAt(m_text, at, "a comment, which a file of this kind has not");
    }

private:
    std::string_view m_text;
    bool m_isStrict;
    int m_depth = 0;
    std::size_t m_end = 0; ///< of the token before
};

/// What the JSON library would take or throw for: bytes that are not UTF-8 or end its reading, and what TokenCheck
/// finds.
std::optional<JsonError> findWhatTheLibraryOverlooks(std::string_view text, JsonDialect dialect)
{
    const std::size_t utf8 = lengthOfUtf8(text);
    if (utf8 < text.size())
        return errorAt(text, utf8, "the text is not UTF-8");
    if (const std::size_t zero = text.find('\0'); zero != std::string_view::npos)
        return errorAt(text, zero, "a zero byte");

    TokenCheck check(text, dialect);
    detail::JsonScanner scanner(text);
    while (const auto token = scanner.next()) {
        if (auto error = check.check(*token))
            return error;
    }
    return check.findComment(text.size());
}

} // namespace

std::string describe(const JsonError& error)
{
    if (error.line == 0)
        return error.message;
    return "line " + std::to_string(error.line) + ", column " + std::to_string(error.column) + ": " + error.message;
}

JsonReading readJsonText(std::string_view text, JsonDialect dialect)
{
    JsonReading reading;
    reading.error = findWhatTheLibraryOverlooks(text, dialect);
    if (reading.error)
        return reading;

    Json::CharReaderBuilder builder;
    if (dialect == JsonDialect::Strict)
        Json::CharReaderBuilder::strictMode(&builder.settings_);
    builder["failIfExtra"] = true;
    builder["allowTrailingCommas"] = false;
    builder["stackLimit"] = deepestNesting;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());

    const ClassicLocale classicLocale;
    std::string report;
    try {
        if (!reader->parse(text.data(), text.data() + text.size(), &reading.document, &report))
            reading.error = firstError(report);
    } catch (const Json::Exception& error) {
        // The library throws for texts that are too long for it.
        reading.error = JsonError{0, 0, error.what()};
    }
    if (reading.error)
        reading.document = Json::Value();
    return reading;
}

std::string toStyledText(const Json::Value& document)
{
    // Files have been written by this writer from the start and are compared byte by byte; what is to replace
    // it indents otherwise.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    Json::StyledWriter writer;
    return writer.write(document);
#pragma GCC diagnostic pop
}

} // namespace vxCAE
