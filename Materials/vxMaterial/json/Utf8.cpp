#include "vxMaterial/json/Utf8.h"

#include <algorithm>

namespace vxjson {

namespace {

bool isAscii(std::string_view text)
{
    unsigned all = 0;
    for (const char c : text)
        all |= static_cast<unsigned char>(c);
    return all < 0x80U;
}

/// Returns the length of the UTF-8 character at the start of `text`; 0 if there is none.
std::size_t lengthOfCharacter(std::string_view text)
{
    const auto at = [text](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
    const unsigned first = at(0);
    std::size_t length = 1;
    if (first >= 0xC2U && first < 0xE0U)
        length = 2;
    else if (first >= 0xE0U && first < 0xF0U)
        length = 3;
    else if (first >= 0xF0U && first < 0xF5U)
        length = 4;
    else if (first >= 0x80U)
        return 0;

    for (std::size_t i = 1; i < length; ++i) {
        if (i >= text.size() || !isContinuation(text[i]))
            return 0;
    }
    const unsigned second = at(1);
    const bool overlong = (first == 0xE0U && second < 0xA0U) || (first == 0xF0U && second < 0x90U);
    const bool surrogate = first == 0xEDU && second >= 0xA0U;
    const bool beyondUnicode = first == 0xF4U && second >= 0x90U;
    return overlong || surrogate || beyondUnicode ? 0 : length;
}

} // namespace

std::size_t lengthOfUtf8(std::string_view text)
{
    constexpr std::size_t block = 64;
    std::size_t length = 0;
    while (length < text.size()) {
        const std::size_t blockEnd = std::min(length + block, text.size());
        // Most texts contain long ASCII parts. These are checked block by block.
        if (isAscii(text.substr(length, block)))
            length = blockEnd;
        while (length < blockEnd) {
            const std::size_t character = lengthOfCharacter(text.substr(length));
            if (character == 0)
                return length;
            length += character;
        }
    }
    return length;
}

std::string shortened(std::string_view text)
{
    constexpr std::size_t most = 200;
    constexpr std::size_t kept = 80;
    if (text.size() <= most)
        return std::string(text);
    std::size_t begin = kept;
    while (begin > 0 && isContinuation(text[begin]))
        --begin;
    std::size_t end = text.size() - kept;
    while (end < text.size() && isContinuation(text[end]))
        ++end;
    return std::string(text.substr(0, begin)) + "..." + std::string(text.substr(end));
}

} // namespace vxjson
