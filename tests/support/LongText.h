#pragma once

#include <cstddef>
#include <string>

namespace vxtest {

/// The length of texts that must be read, or refused, in linear time.
inline constexpr std::size_t longLength = 100000;

/// Returns a text of at least longLength bytes that repeats a part.
inline std::string repeated(const std::string& part)
{
    std::string text;
    while (text.size() < longLength)
        text += part;
    return text;
}

} // namespace vxtest
