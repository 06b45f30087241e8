#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vxUnits {

/// The comparison of a value with a typed one.
enum class Comparison
{
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Equal,
    Unequal,
};

/// Returns the usual spelling: "<=".
const char* spellingOf(Comparison comparison);
/// Returns the comparison of the two sides in exchanged order.
Comparison mirrored(Comparison comparison);

/// A part of a filter expression.
struct FilterToken
{
    enum class Kind
    {
        Word,
        Quoted,
        Comparison,
        Open,
        Close,
        And,
        Or,
        Not,
        Has,
        UnclosedQuote, ///< up to the end of the text
        End
    };
    Kind kind = Kind::End;
    std::size_t begin = 0; ///< in bytes
    std::size_t end = 0;
    std::string_view text; ///< as typed; of a quoted text without the quotes
    Comparison comparison = Comparison::Equal;

    bool isKeyword() const { return kind >= Kind::And && kind <= Kind::Has; }
};

/// Returns the keyword that is meant by a sign, "and" for "&"; null for other texts.
const char* keywordOfSign(std::string_view sign);
/// Returns the keyword that is meant by a sign or by a word of another language, "and" for "und"; null for other texts.
const char* keywordOfWord(std::string_view word);

/// Splits a filter expression, which must be UTF-8. The last token is End. Full-width signs and typographic quotes are the
/// same as plain ones.
std::vector<FilterToken> splitFilter(std::string_view text);

} // namespace vxUnits
