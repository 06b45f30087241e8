#pragma once

#include "JsonPath.h"

#include <json/value.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace projectfile::detail {

/// How an object or array is laid out: its members on lines of their own, or all of it in one line, as all is that
/// stands in a line.
enum class JsonLayout
{
    Block,
    Line,
};

/// Writes a JSON text value by value. What is written reads back as the same: numbers are the shortest texts that do,
/// and a text that is not UTF-8 is refused.
class JsonWriter
{
public:
    void beginObject(JsonLayout layout) { begin('{', layout); }
    /// The name must live until the next one is set.
    void name(std::string_view name);
    void endObject() { end('}'); }

    void beginArray(JsonLayout layout) { begin('[', layout); }
    void element();
    void endArray() { end(']'); }

    void null() { m_text += "null"; }
    void boolean(bool value) { m_text += value ? "true" : "false"; }
    void whole(std::int64_t value);
    void whole(std::uint64_t value);
    /// Must be finite.
    void number(double value);
    /// Must be finite.
    void number(float value);
    /// \throws ProjectFileError when it is not UTF-8
    void text(std::string_view value);
    /// Block by block. \throws ProjectFileError when a text is not UTF-8 or a number not finite
    void any(const Json::Value& value);

    /// Where the next value belongs, for messages.
    std::string path() const { return m_path.toText(); }
    std::string take() { return std::move(m_text); }

private:
    struct Level
    {
        bool isBlock = false;
        std::size_t count = 0;
    };

    void begin(char bracket, JsonLayout layout);
    void end(char bracket);
    void next();
    void newLine();
    void escape(char c);
    void anyReal(double value);
    void anyObject(const Json::Value& value);

    std::string m_text;
    std::vector<Level> m_levels;
    JsonPath m_path;
};

} // namespace projectfile::detail
