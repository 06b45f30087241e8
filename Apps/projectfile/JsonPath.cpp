#include "JsonPath.h"

namespace projectfile::detail {

namespace {

bool isContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

} // namespace

std::string JsonPath::toText() const
{
    std::string text;
    for (const Level& level : m_levels) {
        if (level.index != isNoElement) {
            text += "[" + std::to_string(level.index) + "]";
        } else {
            text += text.empty() ? "" : ".";
            text += shortened(level.name);
        }
    }
    return text;
}

std::string shortened(std::string_view text)
{
    constexpr std::size_t most = 200;
    constexpr std::size_t kept = 80;
    if (text.size() <= most)
        return std::string(text);
    // A character of several bytes stays whole or goes.
    std::size_t begin = kept;
    while (begin > 0 && isContinuation(text[begin]))
        --begin;
    std::size_t end = text.size() - kept;
    while (end < text.size() && isContinuation(text[end]))
        ++end;
    return std::string(text.substr(0, begin)) + "..." + std::string(text.substr(end));
}

} // namespace projectfile::detail
