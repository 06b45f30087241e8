#include "JsonWriter.h"

#include "projectfile/ProjectFile.h"
#include "vxMaterial/exchange/JsonText.h"

#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <utility>

namespace projectfile::detail {

namespace {

constexpr std::size_t indent = 2;

/// Longer than the shortest text of any number.
using NumberBuffer = std::array<char, 32>;

template <class Number>
std::string_view shortest(NumberBuffer& buffer, Number number)
{
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data())};
}

/// Whether a byte stands for itself in a JSON text. DEL would, but is as invisible as the other control characters.
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
    const bool isInLine = !m_levels.empty() && !m_levels.back().isBlock;
    m_text += bracket;
    m_levels.push_back({layout == JsonLayout::Block && !isInLine, 0});
    m_path.enter();
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
    assert(std::isfinite(value));
    NumberBuffer buffer;
    m_text += shortest(buffer, value);
    // Many readers take -0 for the whole number 0.
    if (value == 0.0 && std::signbit(value))
        m_text += ".0";
}

void JsonWriter::number(float value)
{
    assert(std::isfinite(value));
    NumberBuffer buffer;
    const std::string_view written = shortest(buffer, value);
    // Readers read a double and round it, which may give a neighbour of the number.
    double read = 0.0;
    std::from_chars(written.data(), written.data() + written.size(), read);
    if (static_cast<float>(read) != value || value == 0.0F)
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
    if (!isPlain && vxCAE::lengthOfUtf8(value) < value.size())
        throw ProjectFileError("\"" + path() + "\" is not UTF-8, so that it cannot be written");
}

void JsonWriter::anyReal(double value)
{
    if (!std::isfinite(value))
        throw ProjectFileError("\"" + path() + "\" is not a finite number, so that it cannot be written");
    const std::size_t begin = m_text.size();
    number(value);
    // What is not a whole number to the JSON library shall not become one.
    if (m_text.find_first_of(".e", begin) == std::string::npos)
        m_text += ".0";
}

void JsonWriter::anyObject(const Json::Value& value) // NOLINT(misc-no-recursion): no deeper than a reader went
{
    beginObject(JsonLayout::Block);
    const Json::Value::Members names = value.getMemberNames();
    for (const std::string& member : names) {
        name(member);
        any(value[member]);
    }
    endObject();
}

void JsonWriter::any(const Json::Value& value) // NOLINT(misc-no-recursion): no deeper than a reader went
{
    switch (value.type()) {
    case Json::nullValue:
        return null();
    case Json::intValue:
        return whole(std::int64_t{value.asLargestInt()});
    case Json::uintValue:
        return whole(std::uint64_t{value.asLargestUInt()});
    case Json::realValue:
        return anyReal(value.asDouble());
    case Json::stringValue:
        return text(value.asString());
    case Json::booleanValue:
        return boolean(value.asBool());
    case Json::arrayValue:
        beginArray(JsonLayout::Block);
        for (const Json::Value& one : value) {
            element();
            any(one);
        }
        return endArray();
    case Json::objectValue:
        return anyObject(value);
    }
}

} // namespace projectfile::detail
