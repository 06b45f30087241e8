#pragma once

#include "vxMaterial/json/JsonExport.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace vxjson {

/// Returns the length of the longest start of `text` that is UTF-8.
VXJSON_EXPORT std::size_t lengthOfUtf8(std::string_view text);

/// Returns whether a byte of a UTF-8 text is not the first byte of its character.
constexpr bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Returns a text that is short enough for a message: of a text of more than 200 bytes the first and the last 80, with
/// "..." between them. Does not cut a character of a UTF-8 text.
VXJSON_EXPORT std::string shortened(std::string_view text);

} // namespace vxjson
