#pragma once

#include "vxMaterial/json/JsonError.h"

#include <cstddef>
#include <string_view>

/// Marks a text for the tools of translators, as Qt does; programs with Qt translate it.
#define QT_TRANSLATE_NOOP(context, text) text

namespace vxjson::detail {

/// What the grammar requires at the place where reading stops.
enum class Expected
{
    Value,
    MemberName,
    Colon,
    CommaOrBracket,
    CommaOrBrace,
    End, ///< nothing but blanks
};

/// Returns an error at the byte `offset` of a text, with its line and column.
JsonError errorAt(std::string_view text, std::size_t offset, const char* reason, std::string_view shown = {});

/// Returns the error for a text that at `offset` is not what was expected. The message names the first of these that
/// applies: the text ends, a comment or something like a number is there, or what is needed.
JsonError explainSyntaxError(std::string_view text, std::size_t offset, Expected expected);

} // namespace vxjson::detail
