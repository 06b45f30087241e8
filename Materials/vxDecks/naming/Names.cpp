#include "naming/Names.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <cstring>

namespace vxDecks {

namespace {

bool isAsciiLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isAsciiDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

std::string commentText(std::string_view text, std::size_t longest)
{
    const auto continuesCharacter = [text](std::size_t at) {
        return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
    };
    std::size_t length = std::min(text.size(), longest);
    while (length > 0 && continuesCharacter(length))
        --length;
    std::string comment(text.substr(0, length));
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    std::replace_if(comment.begin(), comment.end(), isControl, ' ');
    return comment;
}

std::string Names::clean(const std::string& name) const
{
    std::string cleaned;
    for (const char c : name) {
        if (isAsciiLetter(c) || isAsciiDigit(c) || (c != '\0' && std::strchr(m_rules.signs, c) != nullptr))
            cleaned += c;
        else if (!cleaned.empty() && cleaned.back() != '_')
            cleaned += '_';
    }
    if (cleaned.empty() || !isAsciiLetter(cleaned.front()))
        cleaned.insert(0, m_rules.prefix);
    cleaned.resize(std::min(cleaned.size(), m_rules.longest));
    while (cleaned.back() == '_')
        cleaned.pop_back();
    return cleaned;
}

std::string Names::textOf(const std::string& name) const
{
    const bool needsBlank = !name.empty() && std::strchr(m_rules.notFirst, name.front()) != nullptr;
    return commentText((needsBlank ? " " : "") + name, m_rules.longest);
}

std::string Names::take(const std::string& name)
{
    if (m_rules.isText)
        return textOf(name);
    const std::string wanted = clean(name);
    std::string free = wanted;
    for (int count = 2; !m_taken.insert(vxMat::toUpperAscii(free)).second; ++count) {
        const std::string suffix = "_" + std::to_string(count);
        free = wanted.substr(0, m_rules.longest - suffix.size()) + suffix;
    }
    return free;
}

std::vector<std::uint32_t> numberMaterials(const std::vector<std::optional<std::uint32_t>>& wanted,
                                           const std::optional<std::uint32_t>& first, std::uint32_t largest)
{
    std::vector<std::uint32_t> numbers(wanted.size(), 0);
    std::set<std::uint32_t> taken;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const std::uint32_t number = first ? *first + static_cast<std::uint32_t>(i) : wanted[i].value_or(0);
        if (number > 0 && number <= largest && taken.insert(number).second)
            numbers[i] = number;
    }
    std::uint32_t next = 1;
    for (std::uint32_t& number : numbers) {
        if (number != 0)
            continue;
        while (!taken.insert(next).second)
            ++next;
        number = next;
    }
    return numbers;
}

} // namespace vxDecks
