#pragma once

#include "vxMaterial/json/JsonError.h"
#include "vxMaterial/json/JsonExport.h"

#include <json/value.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxjson {

/// The most arrays and objects that may be nested in each other, when reading and when writing.
inline constexpr std::size_t deepestNesting = 1000;

/// The size of the longest text that is read, in bytes: 2 GiB.
inline constexpr std::size_t longestText = std::size_t{1} << 31U;

/// The most members that are named in JsonTree::repeatedMembers.
inline constexpr std::size_t mostRepeatedMembers = 1000;

/// What a JSON text may contain besides what the standard says.
enum class JsonDialect
{
    WithComments, ///< comments; if a member occurs twice, the last one counts
    Strict,       ///< no comments, no member twice; an array or object as a whole
};

namespace detail {
struct RapidTree;
} // namespace detail

enum class JsonKind
{
    Null,
    Boolean,
    Number,
    Text,
    Array,
    Object,
};

/// A value in a JsonTree. A handle, as cheap as a pointer, which is valid as long as the tree is.
class VXJSON_EXPORT JsonNode
{
public:
    JsonKind kind() const;
    bool isNull() const { return kind() == JsonKind::Null; }
    bool isBoolean() const { return kind() == JsonKind::Boolean; }
    bool isNumber() const { return kind() == JsonKind::Number; }
    bool isText() const { return kind() == JsonKind::Text; }
    bool isArray() const { return kind() == JsonKind::Array; }
    bool isObject() const { return kind() == JsonKind::Object; }

    /// Returns the value of a boolean; false for all else.
    bool boolean() const;
    /// Returns the number, rounded to a double; 0 for all else.
    double number() const;
    /// Returns a number that is whole and fits into 64 bits with a sign, however it is written (7, 7.0, 7e0).
    std::optional<std::int64_t> whole() const;
    /// Returns the characters of a text, without escapes; empty for all else. They live as long as the tree.
    std::string_view text() const;

    /// Returns the number of elements of an array or of members of an object; 0 for all else.
    std::size_t size() const;
    /// `index` must be less than size(), and the value an array.
    JsonNode element(std::size_t index) const;
    /// `index` must be less than size(), and the value an object. Members have the order of the text.
    std::string_view memberName(std::size_t index) const;
    JsonNode member(std::size_t index) const;
    /// Returns the last member of that name; null if there is none, or the value is not an object.
    JsonNode operator[](std::string_view name) const;

    /// Returns a copy for code that works on values of jsoncpp. If a member occurs twice, the last one counts.
    Json::Value toJsonValue() const;

private:
    friend class JsonTree;
    explicit JsonNode(const void* value) : m_value(value) {}

    const void* m_value; ///< of the library that reads
};

/// A JSON text that has been read, as a tree of values that cannot be changed. It takes about as much memory as the
/// text, and is read several times as fast as a Json::Value.
class VXJSON_EXPORT JsonTree
{
public:
    /// Reads a JSON text in UTF-8. Every text yields either a tree or an error; the tree is null then.
    ///
    /// Errors are, besides what the standard forbids, numbers that a double cannot hold, escapes for half of a
    /// surrogate pair, bytes that are not UTF-8, nesting of more than 1000 levels and text after the document. A byte
    /// order mark is skipped.
    /// \throws std::bad_alloc
    static JsonTree read(std::string_view text, JsonDialect dialect);

    JsonTree(JsonTree&&) noexcept;
    JsonTree& operator=(JsonTree&&) noexcept;
    ~JsonTree();

    JsonNode root() const;
    const std::optional<JsonError>& error() const;

    /// The paths ("$.b[1].c") of the first members that are in one object more than once. Empty in the strict dialect,
    /// in which such a member is an error.
    const std::vector<std::string>& repeatedMembers() const;

private:
    explicit JsonTree(std::unique_ptr<detail::RapidTree> content);

    std::unique_ptr<detail::RapidTree> m_content; ///< never null, except after a move
};

} // namespace vxjson
