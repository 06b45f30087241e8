#pragma once

#include "vxMaterial/exchange/ExchangeExport.h"

#include <json/value.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vxCAE {

/// Why a text is not a JSON document, and where: line and column count from 1, and are 0 where no place is known.
struct JsonError
{
    int line = 0;
    int column = 0;
    std::string message;
};

/// "line 3, column 14: " and the message; the message alone where no place is known.
VXCAE_EXPORT std::string describe(const JsonError& error);

/// What a text held: the document, or why there is none.
struct JsonReading
{
    Json::Value document;
    std::optional<JsonError> error;
};

/// What a JSON text may hold beside what the standard says.
enum class JsonDialect
{
    WithComments, ///< comments; of a member that stands twice the last counts
    Strict,       ///< no comments, no member twice, no escape for half a character; an object or an array
};

/// Reads a JSON text, UTF-8. Text after the document is not accepted. Whatever the text is, the answer is
/// a document or an error. What the JSON library would take for something else is an error too: numbers that are none
/// in JSON ("-", which it reads as 0, "01", "1.") or that a double cannot hold, nesting deeper than it follows (1000
/// levels), bytes that are not UTF-8 or zero.
///
/// The decimal point is a point in any locale. For that the global locale is the classic one while the text is read, so
/// no other thread must depend on it meanwhile.
[[nodiscard]] VXCAE_EXPORT JsonReading readJsonText(std::string_view text,
                                                    JsonDialect dialect = JsonDialect::WithComments);

/// A document as documents are kept in files: one member a line, indented by three blanks, members in the order of
/// their keys. JSON has no word for what is not finite: an infinite number is written as 1e+9999, which readJsonText
/// refuses, and what is not a number as null, which reads as 0.
VXCAE_EXPORT std::string toStyledText(const Json::Value& document);

/// The length of the longest start of `text` that is UTF-8.
VXCAE_EXPORT std::size_t lengthOfUtf8(std::string_view text);

} // namespace vxCAE
