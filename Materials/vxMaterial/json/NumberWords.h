#pragma once

#include "vxMaterial/json/JsonExport.h"

#include <optional>
#include <string_view>

/// The spellings of the numbers that JSON cannot express: the texts "Infinity", "-Infinity" and "NaN".
namespace vxjson {

/// Returns the spelling of a number that is not finite; empty for all other numbers.
VXJSON_EXPORT std::string_view wordOfNumber(double number);

/// Returns the number with this spelling; absent for all other texts.
VXJSON_EXPORT std::optional<double> numberOfWord(std::string_view word);

} // namespace vxjson
