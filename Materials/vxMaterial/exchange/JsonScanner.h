#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace vxCAE::detail {

enum class TokenKind
{
    BeginArray,
    EndArray,
    BeginObject,
    EndObject,
    Comma,
    Colon,
    Text,  ///< with its quotes
    Other, ///< a number, a word, or what is neither
};

/// A token of a JSON text: where it begins and what it reads.
struct Token
{
    TokenKind kind;
    std::size_t offset;
    std::string_view text;
};

/// Cuts a JSON text into tokens, passing over blanks and comments. It checks nothing: it serves to look closer at a
/// text than the JSON library does, before or after the library has read it.
class JsonScanner
{
public:
    explicit JsonScanner(std::string_view text) : m_text(text) {}

    /// The next token; absent at the end of the text.
    std::optional<Token> next();

private:
    void skipBlanksAndComments();

    std::string_view m_text;
    std::size_t m_at = 0;
};

/// Whether a token is a number by the grammar of JSON, which is narrower than what the JSON library takes.
bool isJsonNumber(std::string_view token);

} // namespace vxCAE::detail
