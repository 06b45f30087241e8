#include "data/TextDecoding.h"

#include <algorithm>
#include <cstdint>

namespace vxConstitutive {

namespace {

bool startsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

void appendUtf8(std::string& text, std::uint32_t code)
{
    const auto tail = [&](unsigned shift) { text += static_cast<char>(0x80U | ((code >> shift) & 0x3FU)); };
    if (code < 0x80U) {
        text += static_cast<char>(code);
    } else if (code < 0x800U) {
        text += static_cast<char>(0xC0U | (code >> 6U));
        tail(0);
    } else {
        text += static_cast<char>(0xE0U | (code >> 12U));
        tail(6);
        tail(0);
    }
}

/// Appends a character as UTF-8. The halves of a surrogate pair become three bytes each, since tables have no use for
/// such characters.
std::string fromUtf16(std::string_view bytes, bool bigEndian)
{
    std::string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        const unsigned high = bigEndian ? first : second;
        const unsigned low = bigEndian ? second : first;
        appendUtf8(text, (high << 8U) | low);
    }
    return text;
}

std::string fromLatin1(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes)
        appendUtf8(text, static_cast<unsigned char>(byte));
    return text;
}

/// Returns the number of bytes that follow the first byte of a character; nothing if no character begins with it.
std::optional<std::size_t> followers(unsigned char first)
{
    if (first < 0x80U)
        return 0;
    if (first >= 0xC2U && first < 0xE0U)
        return 1;
    if (first >= 0xE0U && first < 0xF0U)
        return 2;
    if (first >= 0xF0U && first < 0xF5U)
        return 3;
    return std::nullopt;
}

bool isUtf8(std::string_view bytes)
{
    for (std::size_t i = 0; i < bytes.size();) {
        const auto count = followers(static_cast<unsigned char>(bytes[i]));
        if (!count || i + *count >= bytes.size())
            return false;
        for (std::size_t k = 1; k <= *count; ++k) {
            if ((static_cast<unsigned char>(bytes[i + k]) & 0xC0U) != 0x80U)
                return false;
        }
        i += *count + 1;
    }
    return true;
}

} // namespace

DecodedText decodeText(std::string_view bytes)
{
    DecodedText decoded;
    if (startsWith(bytes, "\xFF\xFE") || startsWith(bytes, "\xFE\xFF")) {
        decoded.storage = fromUtf16(bytes.substr(2), bytes[0] == '\xFE');
        decoded.converted = true;
        return decoded;
    }
    if (startsWith(bytes, "\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    decoded.original = bytes;
    if (!isUtf8(bytes)) {
        decoded.storage = fromLatin1(bytes);
        decoded.converted = true;
    }
    return decoded;
}

std::optional<std::size_t> findBinary(std::string_view text)
{
    const auto* const found = std::find_if(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20U && !(byte >= 0x09U && byte <= 0x0DU) && byte != 0x1AU; // tabs, line ends, end of file
    });
    if (found == text.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - text.begin());
}

bool Lines::next(std::string_view& line)
{
    if (m_rest.empty())
        return false;
    const std::size_t end = std::min(m_rest.find_first_of("\r\n"), m_rest.size());
    line = m_rest.substr(0, end);
    const bool both = m_rest.substr(end, 2) == "\r\n";
    m_rest.remove_prefix(std::min(end + (both ? 2U : 1U), m_rest.size()));
    return true;
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\v\f\x1A";
    constexpr std::string_view nonBreaking = "\xC2\xA0";
    for (;;) {
        const std::size_t before = text.size();
        while (!text.empty() && blanks.find(text.front()) != std::string_view::npos)
            text.remove_prefix(1);
        while (!text.empty() && blanks.find(text.back()) != std::string_view::npos)
            text.remove_suffix(1);
        if (startsWith(text, nonBreaking))
            text.remove_prefix(nonBreaking.size());
        if (text.size() >= nonBreaking.size() && text.substr(text.size() - nonBreaking.size()) == nonBreaking)
            text.remove_suffix(nonBreaking.size());
        if (text.size() == before)
            return text;
    }
}

} // namespace vxConstitutive
