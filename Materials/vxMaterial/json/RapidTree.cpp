#include "RapidTree.h"

#include "SyntaxFault.h"

#include "vxMaterial/json/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <rapidjson/reader.h>
#include <system_error>
#include <utility>

/// The standard library reads the numbers, since RapidJSON rounds some of them wrongly and reads 1e-999 as 0.
namespace vxjson::detail {

namespace {

using Reader = rapidjson::GenericReader<Encoding, Encoding, ThrowingAllocator>;
using Names = std::vector<std::string_view>;

constexpr const char* beyondRange = QT_TRANSLATE_NOOP("vxjson::JsonError", "'%1' is beyond the range of a double");
constexpr const char* halfOfPair =
    QT_TRANSLATE_NOOP("vxjson::JsonError", "an escape for half of a surrogate pair, which is not a character");

/// Returns the names that occur more than once from `from` to the end: each once, at its second occurrence.
Names findRepeated(const Names& names, std::size_t from)
{
    constexpr std::size_t few = 16;
    Names repeated;
    const auto begin = names.begin() + static_cast<std::ptrdiff_t>(from);
    if (names.size() - from <= few) {
        for (auto name = begin; name != names.end(); ++name) {
            if (std::count(begin, name, *name) == 1)
                repeated.push_back(*name);
        }
        return repeated;
    }
    Names sorted(begin, names.end());
    std::sort(sorted.begin(), sorted.end(), [](std::string_view a, std::string_view b) {
        const int order = a.compare(b);
        return order != 0 ? order < 0 : a.data() < b.data();
    });
    for (std::size_t i = 1; i < sorted.size(); ++i) {
        if (sorted[i] == sorted[i - 1] && (i == 1 || sorted[i] != sorted[i - 2]))
            repeated.push_back(sorted[i]);
    }
    std::sort(repeated.begin(), repeated.end(),
              [](std::string_view a, std::string_view b) { return a.data() < b.data(); });
    return repeated;
}

/// Returns whether a text contains half of a surrogate pair, which comes from an escape: the JSON text is UTF-8.
bool hasHalfOfPair(std::string_view text)
{
    constexpr char lead = '\xED';
    for (std::size_t at = text.find(lead); at != std::string_view::npos; at = text.find(lead, at + 1)) {
        if (static_cast<unsigned char>(text[at + 1]) >= 0xA0U)
            return true;
    }
    return false;
}

/// Passes the values from RapidJSON to its document, and makes the checks that RapidJSON lacks: the range of numbers,
/// the depth, repeated members, and halves of surrogate pairs.
class Builder
{
public:
    using Ch = char;

    /// `buffer` is the copy of `text` that is parsed in place.
    Builder(std::string_view text, const char* buffer, JsonDialect dialect)
        : m_text(text),
          m_buffer(buffer),
          m_isStrict(dialect == JsonDialect::Strict),
          m_mayHaveHalves(text.find("\\ud") != std::string_view::npos || text.find("\\uD") != std::string_view::npos)
    {}

    void buildIn(Document& document) { m_document = &document; }
    std::optional<JsonError> takeError() { return std::move(m_error); }
    std::vector<std::string> takeRepeatedMembers() { return std::move(m_repeatedMembers); }

    bool Null() { return value() && m_document->Null(); }
    bool Bool(bool flag) { return value() && m_document->Bool(flag); }
    bool String(const char* begin, rapidjson::SizeType length, bool /*copy*/)
    {
        return value() && text({begin, length}) && m_document->String(begin, length, false);
    }
    bool Key(const char* begin, rapidjson::SizeType length, bool /*copy*/)
    {
        m_names.emplace_back(begin, length);
        return text(m_names.back()) && m_document->Key(begin, length, false);
    }
    bool RawNumber(const char* begin, rapidjson::SizeType length, bool copy);
    bool StartObject() { return value() && open(true) && m_document->StartObject(); }
    bool StartArray() { return value() && open(false) && m_document->StartArray(); }
    bool EndObject(rapidjson::SizeType count) { return checkNames() && close() && m_document->EndObject(count); }
    bool EndArray(rapidjson::SizeType count) { return close() && m_document->EndArray(count); }

    // The parser passes numbers as texts.
    static bool Int(int /*number*/) { return false; }
    static bool Uint(unsigned /*number*/) { return false; }
    static bool Int64(std::int64_t /*number*/) { return false; }
    static bool Uint64(std::uint64_t /*number*/) { return false; }
    static bool Double(double /*number*/) { return false; }

private:
    /// An array or object whose end is not read yet.
    struct Level
    {
        bool isObject;
        std::size_t firstName; ///< index in m_names
        std::size_t count;     ///< number of values so far
    };

    /// Stops the parser with an error at a place of the copy.
    bool fail(const char* place, const char* reason, std::string_view shown)
    {
        m_error = errorAt(m_text, static_cast<std::size_t>(place - m_buffer), reason, shown);
        return false;
    }
    bool value()
    {
        if (!m_levels.empty())
            ++m_levels.back().count;
        return true;
    }
    bool open(bool isObject)
    {
        m_levels.push_back({isObject, m_names.size(), 0});
        return m_levels.size() <= deepestNesting;
    }
    bool close()
    {
        m_names.resize(m_levels.back().firstName);
        m_levels.pop_back();
        return true;
    }
    bool text(std::string_view characters)
    {
        if (!m_mayHaveHalves || !hasHalfOfPair(characters))
            return true;
        return fail(characters.data() - 1, halfOfPair, {});
    }
    bool checkNames();
    std::string path(std::string_view lastName) const;

    std::string_view m_text;
    const char* m_buffer;
    bool m_isStrict;
    bool m_mayHaveHalves;
    Document* m_document = nullptr;
    std::vector<Level> m_levels;
    Names m_names; ///< names of the members so far in all open objects
    std::optional<JsonError> m_error;
    std::vector<std::string> m_repeatedMembers;
};

bool Builder::RawNumber(const char* begin, rapidjson::SizeType length, bool /*copy*/)
{
    value();
    const char* const end = begin + length;
    std::int64_t whole = 0;
    if (const auto read = std::from_chars(begin, end, whole); read.ptr == end && read.ec == std::errc())
        return m_document->Int64(whole);
    std::uint64_t large = 0;
    if (const auto read = std::from_chars(begin, end, large); read.ptr == end && read.ec == std::errc())
        return m_document->Uint64(large);
    double number = 0.0;
    if (std::from_chars(begin, end, number).ec == std::errc())
        return m_document->Double(number);
    return fail(begin, beyondRange, {begin, length});
}

bool Builder::checkNames()
{
    for (const std::string_view name : findRepeated(m_names, m_levels.back().firstName)) {
        if (m_isStrict)
            return fail(name.data() - 1,
                        QT_TRANSLATE_NOOP("vxjson::JsonError", "the member \"%1\" occurs more than once"), name);
        if (m_repeatedMembers.size() < mostRepeatedMembers)
            m_repeatedMembers.push_back(path(name));
    }
    return true;
}

std::string Builder::path(std::string_view lastName) const
{
    std::string path = "$";
    for (std::size_t i = 0; i + 1 < m_levels.size(); ++i) {
        const Level& level = m_levels[i];
        if (level.isObject)
            path.append(".").append(m_names[m_levels[i + 1].firstName - 1]);
        else
            path.append("[").append(std::to_string(level.count - 1)).append("]");
    }
    return shortened(path.append(".").append(lastName));
}

/// The missing syntax for an error of RapidJSON.
struct Lack
{
    rapidjson::ParseErrorCode code;
    Expected expected;
};

constexpr std::array lacks{
    Lack{rapidjson::kParseErrorDocumentRootNotSingular, Expected::End},
    Lack{rapidjson::kParseErrorObjectMissName, Expected::MemberName},
    Lack{rapidjson::kParseErrorObjectMissColon, Expected::Colon},
    Lack{rapidjson::kParseErrorObjectMissCommaOrCurlyBracket, Expected::CommaOrBrace},
    Lack{rapidjson::kParseErrorArrayMissCommaOrSquareBracket, Expected::CommaOrBracket},
    Lack{rapidjson::kParseErrorValueInvalid, Expected::Value},
    Lack{rapidjson::kParseErrorNumberMissFraction, Expected::Value},
    Lack{rapidjson::kParseErrorNumberMissExponent, Expected::Value},
};

/// The message for an error of RapidJSON.
struct Fault
{
    rapidjson::ParseErrorCode code;
    const char* reason;
};

constexpr std::array faults{
    Fault{rapidjson::kParseErrorDocumentEmpty, QT_TRANSLATE_NOOP("vxjson::JsonError", "there is no value in the text")},
    Fault{rapidjson::kParseErrorStringUnicodeEscapeInvalidHex,
          QT_TRANSLATE_NOOP("vxjson::JsonError", "the escape \\u needs four hexadecimal digits")},
    Fault{rapidjson::kParseErrorStringUnicodeSurrogateInvalid, halfOfPair},
    Fault{rapidjson::kParseErrorStringMissQuotationMark,
          QT_TRANSLATE_NOOP("vxjson::JsonError", "the closing quote of a text is missing")},
    // The builder has a message for every other value that it refuses.
    Fault{rapidjson::kParseErrorTermination,
          QT_TRANSLATE_NOOP("vxjson::JsonError", "nested more than 1000 levels deep")},
    Fault{rapidjson::kParseErrorUnspecificSyntaxError,
          QT_TRANSLATE_NOOP("vxjson::JsonError", "a comment that does not end")},
};

/// Returns the error of an escape, or of a character that needs an escape.
JsonError explainEscape(std::string_view text, std::size_t offset)
{
    if (text[offset] == '\\')
        return errorAt(text, offset, QT_TRANSLATE_NOOP("vxjson::JsonError", "'%1' is not an escape of JSON"),
                       text.substr(offset, 2));
    return errorAt(
        text, offset,
        QT_TRANSLATE_NOOP("vxjson::JsonError", "a control character in a text, which must be written as an escape"));
}

JsonError explain(std::string_view text, rapidjson::ParseErrorCode code, std::size_t offset)
{
    const auto isOfCode = [code](const auto& row) { return row.code == code; };
    if (const auto* const lack = std::find_if(lacks.begin(), lacks.end(), isOfCode); lack != lacks.end())
        return explainSyntaxError(text, offset, lack->expected);
    if (const auto* const fault = std::find_if(faults.begin(), faults.end(), isOfCode); fault != faults.end())
        return errorAt(text, offset, fault->reason);
    if (code == rapidjson::kParseErrorStringEscapeInvalid)
        return explainEscape(text, offset);
    // The only other error is a number with a too large exponent or too many digits before the point.
    const std::size_t end = std::min(text.find_first_not_of("0123456789.eE+-", offset), text.size());
    return errorAt(text, offset, beyondRange, text.substr(offset, end - offset));
}

/// Finds bytes that a JSON text must not contain, and that RapidJSON does not refuse.
std::optional<JsonError> findForeignBytes(std::string_view text)
{
    if (text.size() > longestText) {
        JsonError error;
        error.reason = QT_TRANSLATE_NOOP("vxjson::JsonError", "the text is longer than 2 GiB");
        return error;
    }
    const std::size_t utf8 = lengthOfUtf8(text);
    if (utf8 < text.size())
        return errorAt(text, utf8, QT_TRANSLATE_NOOP("vxjson::JsonError", "the text is not UTF-8"));
    if (const std::size_t zero = text.find('\0'); zero != std::string_view::npos)
        return errorAt(text, zero, QT_TRANSLATE_NOOP("vxjson::JsonError", "a zero byte"));
    return std::nullopt;
}

/// Returns the length of the byte order mark at the start of a text; 0 if there is none.
std::size_t lengthOfMark(std::string_view text)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return text.substr(0, mark.size()) == mark ? mark.size() : 0;
}

template <unsigned flags>
void parse(std::string_view text, JsonDialect dialect, RapidTree& tree)
{
    const std::size_t mark = lengthOfMark(text);
    Builder builder(text, tree.buffer.get(), dialect);
    rapidjson::ParseResult result;
    const auto readInto = [&](Document& target) {
        builder.buildIn(target);
        rapidjson::GenericInsituStringStream<Encoding> stream(tree.buffer.get() + mark);
        Reader reader;
        result = reader.Parse<flags>(stream, builder);
        return !result.IsError();
    };
    tree.document.Populate(readInto);
    tree.repeatedMembers = builder.takeRepeatedMembers();
    tree.error = builder.takeError();
    if (result.IsError() && !tree.error)
        tree.error = explain(text, result.Code(), std::min(result.Offset() + mark, text.size()));
    if (!tree.error && dialect == JsonDialect::Strict && !tree.document.IsObject() && !tree.document.IsArray())
        tree.error = errorAt(text, text.find_first_not_of(" \t\r\n", mark),
                             QT_TRANSLATE_NOOP("vxjson::JsonError", "an object or an array is needed"));
    if (tree.error)
        tree.document.SetNull();
}

} // namespace

void readTree(std::string_view text, JsonDialect dialect, RapidTree& tree)
{
    constexpr unsigned flags =
        rapidjson::kParseInsituFlag | rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseIterativeFlag;
    tree.error = findForeignBytes(text);
    if (tree.error)
        return;
    tree.buffer.reset(new char[text.size() + 1]);
    std::memcpy(tree.buffer.get(), text.data(), text.size());
    tree.buffer[text.size()] = '\0';
    if (dialect == JsonDialect::Strict)
        parse<flags>(text, dialect, tree);
    else
        parse<flags | unsigned{rapidjson::kParseCommentsFlag}>(text, dialect, tree);
}

} // namespace vxjson::detail
