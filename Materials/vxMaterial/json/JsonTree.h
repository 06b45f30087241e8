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

/// The maximum depth of nested arrays and objects, for reading and writing.
inline constexpr std::size_t deepestNesting = 1000;

/// The size of the longest readable text, in bytes: 2 GiB.
inline constexpr std::size_t longestText = std::size_t{1} << 31U;

/// The maximum number of paths in JsonTree::repeatedMembers.
inline constexpr std::size_t mostRepeatedMembers = 1000;

/// The extensions of the standard that a JSON text may contain.
enum class JsonDialect
{
    WithComments, ///< comments; if a member occurs twice, the last one counts
    Strict,       ///< no comments, no repeated member; the document must be an array or object
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

/// A value in a JsonTree. It is a handle, as cheap as a pointer, and is valid as long as the tree exists.
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

    /// Returns the value of a boolean; false for every other value.
    bool boolean() const;
    /// Returns the number, rounded to a double; 0 for every other value.
    double number() const;
    /// Returns a whole number that fits into 64 bits with a sign, in any spelling (7, 7.0, 7e0).
    std::optional<std::int64_t> whole() const;
    /// Returns the characters of a text, without escapes; empty for every other value. They live as long as the tree.
    std::string_view text() const;

    /// Returns the number of elements of an array or of members of an object; 0 for every other value.
    std::size_t size() const;
    /// `index` must be less than size(), and the value an array.
    JsonNode element(std::size_t index) const;
    /// `index` must be less than size(), and the value an object. Members have the order of the text.
    std::string_view memberName(std::size_t index) const;
    JsonNode member(std::size_t index) const;
    /// Returns the last member with this name; null if there is none, or if the value is not an object.
    JsonNode operator[](std::string_view name) const;

    /// Returns a copy for code that uses values of jsoncpp. If a member occurs twice, the last one counts.
    Json::Value toJsonValue() const;

private:
    friend class JsonTree;
    explicit JsonNode(const void* value) : m_value(value) {}

    const void* m_value; ///< a value of RapidJSON
};

/// A parsed JSON text, as a tree of constant values. It takes about as much memory as the text, and reading is several
/// times as fast as for a Json::Value.
class VXJSON_EXPORT JsonTree
{
public:
    /// Reads a JSON text in UTF-8. Every text yields either a tree or an error; in case of an error the tree is null.
    ///
    /// Errors are, besides violations of the standard, numbers that a double cannot hold, escapes for half of a
    /// surrogate pair, bytes that are not UTF-8, nesting of more than 1000 levels and text after the document. A byte
    /// order mark is skipped.
    /// \throws std::bad_alloc
    static JsonTree read(std::string_view text, JsonDialect dialect);

    JsonTree(JsonTree&&) noexcept;
    JsonTree& operator=(JsonTree&&) noexcept;
    ~JsonTree();

    JsonNode root() const;
    const std::optional<JsonError>& error() const;

    /// Returns the paths ("$.b[1].c") of the first members that occur more than once in one object. Empty in the strict
    /// dialect, in which such a member is an error.
    const std::vector<std::string>& repeatedMembers() const;

private:
    explicit JsonTree(std::unique_ptr<detail::RapidTree> content);

    std::unique_ptr<detail::RapidTree> m_content; ///< never null, except after a move
};

} // namespace vxjson
