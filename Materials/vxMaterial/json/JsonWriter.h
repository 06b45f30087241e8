#pragma once

#include "vxMaterial/json/JsonError.h"
#include "vxMaterial/json/JsonExport.h"
#include "vxMaterial/json/JsonPath.h"

#include <json/value.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vxjson {

/// The layout of an array or object. The whole content of a Line is in the same line.
enum class JsonLayout
{
    Block, ///< each element or member on its own line
    Line,
};

/// Writes a JSON text value by value. The text reads back as the same values: each number has its shortest text that
/// does. A value that cannot be read back is a fault. The writer keeps the first fault, and its text is then invalid.
///
///     JsonWriter writer;
///     writer.beginObject(JsonLayout::Block);
///     writer.name("density");
///     writer.number(7850.0);
///     writer.endObject();
class VXJSON_EXPORT JsonWriter
{
public:
    void beginObject(JsonLayout layout) { begin('{', layout); }
    /// Begins a member. The name must live until the next name is set.
    void name(std::string_view name);
    void endObject() { end('}'); }

    void beginArray(JsonLayout layout) { begin('[', layout); }
    /// Begins an element.
    void element();
    void endArray() { end(']'); }

    void null() { m_text += "null"; }
    void boolean(bool value) { m_text += value ? "true" : "false"; }
    void whole(std::int64_t value);
    void whole(std::uint64_t value);
    /// A number that is not finite is a fault.
    void number(double value);
    void number(float value);
    /// A text that is not UTF-8 is a fault.
    void text(std::string_view value);
    /// Writes a value of jsoncpp, in blocks.
    void any(const Json::Value& value);

    /// Makes the next written value a fault, if there is none yet. `reason` is as in JsonError, with %1 for the path of
    /// the value.
    void fail(const char* reason);
    const std::optional<JsonError>& fault() const { return m_fault; }

    /// Returns the text and begins a new text.
    std::string take() { return std::exchange(m_text, {}); }

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
    void anyArray(const Json::Value& value);
    void anyObject(const Json::Value& value);

    std::string m_text;
    std::vector<Level> m_levels;
    JsonPath m_path;
    std::optional<JsonError> m_fault;
};

} // namespace vxjson
