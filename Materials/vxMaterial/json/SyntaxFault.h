#pragma once

#include "vxMaterial/json/JsonError.h"

#include <cstddef>
#include <string_view>

/// Marks a text for the tools of translators, as Qt does; programs with Qt translate it.
#define QT_TRANSLATE_NOOP(context, text) text

namespace vxjson::detail {

/// The syntax that the grammar requires at the place where reading stops.
enum class Expected
{
    Value,
    MemberName,
    Colon,
    CommaOrBracket,
    CommaOrBrace,
    End, ///< only blanks
};

/// Returns an error at the byte `offset` of a text, with its line and column.
JsonError errorAt(std::string_view text, std::size_t offset, const char* reason, std::string_view shown = {});

/// Returns the error for a text without the expected syntax at `offset`. The message names the first fact that applies:
/// the end of the text, a comment or an invalid number at this place, or the required syntax.
JsonError explainSyntaxError(std::string_view text, std::size_t offset, Expected expected);

} // namespace vxjson::detail
