#include "vxMaterial/json/JsonWriter.h"

#include "SyntaxFault.h"

#include "vxMaterial/json/JsonTree.h"
#include "vxMaterial/json/Utf8.h"

#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace vxjson {

namespace {

constexpr std::size_t indent = 2;
/// Deeper arrays and objects are written in one line. Indenting each of their values would make the text many times as
/// long.
constexpr std::size_t deepestBlock = 32;

/// Exceeds the length of the text of any number.
using NumberBuffer = std::array<char, 32>;

template <class Number>
std::string_view shortest(NumberBuffer& buffer, Number number)
{
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data())};
}

/// Returns whether a byte of a text must be written as an escape. DEL is included, since it is as invisible as the
/// other control characters.
bool needsEscape(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20U || byte == 0x7FU || c == '"' || c == '\\';
}

bool isAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80U;
}

} // namespace

void JsonWriter::begin(char bracket, JsonLayout layout)
{
    const bool isInLine = (!m_levels.empty() && !m_levels.back().isBlock) || m_levels.size() >= deepestBlock;
    m_text += bracket;
    m_levels.push_back({layout == JsonLayout::Block && !isInLine, 0});
    m_path.enter();
    if (m_levels.size() > deepestNesting)
        fail(QT_TRANSLATE_NOOP("vxjson::JsonError", "\"%1\" is nested more than 1000 levels deep"));
}

void JsonWriter::fail(const char* reason)
{
    if (m_fault)
        return;
    m_fault.emplace();
    m_fault->reason = reason;
    m_fault->shown = m_path.toText();
}

void JsonWriter::end(char bracket)
{
    const Level level = m_levels.back();
    m_levels.pop_back();
    m_path.leave();
    if (level.isBlock && level.count > 0)
        newLine();
    m_text += bracket;
}

void JsonWriter::newLine()
{
    m_text += '\n';
    m_text.append(m_levels.size() * indent, ' ');
}

void JsonWriter::next()
{
    Level& level = m_levels.back();
    if (level.count > 0)
        m_text += ',';
    if (level.isBlock)
        newLine();
    else if (level.count > 0)
        m_text += ' ';
    ++level.count;
}

void JsonWriter::name(std::string_view name)
{
    m_path.setName(name);
    next();
    text(name);
    m_text += ": ";
}

void JsonWriter::element()
{
    m_path.setIndex(m_levels.back().count);
    next();
}

void JsonWriter::whole(std::int64_t value)
{
    NumberBuffer buffer;
    m_text += shortest(buffer, value);
}

void JsonWriter::whole(std::uint64_t value)
{
    NumberBuffer buffer;
    m_text += shortest(buffer, value);
}

void JsonWriter::number(double value)
{
    if (!std::isfinite(value))
        return fail(QT_TRANSLATE_NOOP("vxjson::JsonError", "\"%1\" is not a finite number"));
    NumberBuffer buffer;
    m_text += shortest(buffer, value);
    // Many readers read -0 as the whole number 0.
    if (value == 0.0 && std::signbit(value))
        m_text += ".0";
}

void JsonWriter::number(float value)
{
    NumberBuffer buffer;
    const std::string_view written = shortest(buffer, value);
    // Readers read a double and round it, which may give an adjacent number.
    double read = 0.0;
    std::from_chars(written.data(), written.data() + written.size(), read);
    if (!std::isfinite(value) || static_cast<float>(read) != value || value == 0.0F)
        number(static_cast<double>(value));
    else
        m_text += written;
}

void JsonWriter::escape(char c)
{
    static constexpr std::string_view letters = "\"\\bfnrt";
    static constexpr std::string_view meanings = "\"\\\b\f\n\r\t";
    static constexpr std::string_view digits = "0123456789abcdef";
    const std::size_t which = meanings.find(c);
    m_text += '\\';
    if (which != std::string_view::npos) {
        m_text += letters[which];
        return;
    }
    const auto byte = static_cast<unsigned char>(c);
    m_text += "u00";
    m_text += digits[byte >> 4U];
    m_text += digits[byte & 0xFU];
}

void JsonWriter::text(std::string_view value)
{
    m_text += '"';
    bool isPlain = true;
    std::size_t begin = 0;
    for (std::size_t i = 0; i < value.size(); ++i) {
        isPlain = isPlain && isAscii(value[i]);
        if (!needsEscape(value[i]))
            continue;
        m_text += value.substr(begin, i - begin);
        escape(value[i]);
        begin = i + 1;
    }
    m_text += value.substr(begin);
    m_text += '"';
    if (!isPlain && lengthOfUtf8(value) < value.size())
        fail(QT_TRANSLATE_NOOP("vxjson::JsonError", "\"%1\" is not UTF-8"));
}

void JsonWriter::anyReal(double value)
{
    const std::size_t begin = m_text.size();
    number(value);
    // A real number of jsoncpp must not become a whole number.
    if (m_text.find_first_of(".e", begin) == std::string::npos)
        m_text += ".0";
}

void JsonWriter::anyArray(const Json::Value& value) // NOLINT(misc-no-recursion): no deeper than deepestNesting
{
    beginArray(JsonLayout::Block);
    for (const Json::Value& one : value) {
        element();
        any(one);
    }
    endArray();
}

void JsonWriter::anyObject(const Json::Value& value) // NOLINT(misc-no-recursion): no deeper than deepestNesting
{
    beginObject(JsonLayout::Block);
    for (auto member = value.begin(); member != value.end(); ++member) {
        const char* end = nullptr;
        const char* const begin = member.memberName(&end);
        name({begin, static_cast<std::size_t>(end - begin)});
        any(*member);
    }
    endObject();
}

void JsonWriter::any(const Json::Value& value) // NOLINT(misc-no-recursion): no deeper than deepestNesting
{
    if (m_levels.size() > deepestNesting)
        return; // there is a fault already
    switch (value.type()) {
    case Json::nullValue:
        return null();
    case Json::intValue:
        return whole(std::int64_t{value.asLargestInt()});
    case Json::uintValue:
        return whole(std::uint64_t{value.asLargestUInt()});
    case Json::realValue:
        return anyReal(value.asDouble());
    case Json::stringValue: {
        const char* begin = nullptr;
        const char* end = nullptr;
        value.getString(&begin, &end);
        return text({begin, static_cast<std::size_t>(end - begin)});
    }
    case Json::booleanValue:
        return boolean(value.asBool());
    case Json::arrayValue:
        return anyArray(value);
    case Json::objectValue:
        return anyObject(value);
    }
}

} // namespace vxjson
