#include "CaseName.h"

#include <array>
#include <cstdio>

namespace vxtest {

namespace {

bool isLetterOrDigit(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

/// Returns the spelling of a character in a name. A blank separates words.
std::string spelled(char c)
{
    if (isLetterOrDigit(c))
        return {c};
    switch (c) {
    case '-':
        return " minus";
    case '[':
        return " list ";
    case '{':
        return " object ";
    default:
        break;
    }
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80)
        return " ";
    std::array<char, 4> hexadecimal{};
    std::snprintf(hexadecimal.data(), hexadecimal.size(), "x%02X", static_cast<unsigned>(byte));
    return hexadecimal.data();
}

} // namespace

std::string caseName(std::size_t number, const std::string& text)
{
    std::string name = (number < 10 ? "0" : "") + std::to_string(number) + '_';
    for (const char c : text)
        for (const char letter : spelled(c))
            if (letter != ' ')
                name += letter;
            else if (name.back() != '_')
                name += '_';
    name.erase(name.find_last_not_of('_') + 1);
    return name;
}

} // namespace vxtest
