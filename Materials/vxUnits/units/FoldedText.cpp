#include "units/FoldedText.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace vxUnits {

namespace {

/// The length of a sequence by its first byte, and the bits of the character in this byte.
struct Lead
{
    std::size_t length;
    std::uint32_t bits;
    std::uint32_t smallest; ///< character that needs this length
};

std::optional<Lead> readLead(unsigned char byte)
{
    if (byte < 0x80)
        return Lead{1, byte, 0};
    if (byte >= 0xC0 && byte < 0xE0)
        return Lead{2, byte & 0x1FU, 0x80};
    if (byte >= 0xE0 && byte < 0xF0)
        return Lead{3, byte & 0x0FU, 0x800};
    if (byte >= 0xF0 && byte < 0xF8)
        return Lead{4, byte & 0x07U, 0x10000};
    return std::nullopt;
}

bool isCharacter(std::uint32_t value)
{
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    return !surrogate && value <= 0x10FFFF;
}

struct Folding
{
    std::uint32_t character;
    const char* ascii;
};

/// In ascending order.
constexpr Folding foldings[] = {
    {0x0025, "percent"}, {0x00A0, " "},        {0x00B0, "deg"},    {0x00B5, "u"},      {0x00B7, "*"},
    {0x00BA, "deg"},     {0x00C5, "angstrom"}, {0x00D7, "*"},      {0x00F7, "/"},      {0x0394, "delta_"},
    {0x03A9, "Ohm"},     {0x03B5, "strain"},   {0x03BC, "u"},      {0x2002, " "},      {0x2003, " "},
    {0x2007, " "},       {0x2008, " "},        {0x2009, " "},      {0x200A, " "},      {0x2010, "-"},
    {0x2011, "-"},       {0x2019, "'"},        {0x202F, " "},      {0x2030, "permil"}, {0x2044, "/"},
    {0x205F, " "},       {0x2103, "degC"},     {0x2109, "degF"},   {0x2126, "Ohm"},    {0x2127, "mho"},
    {0x212A, "K"},       {0x212B, "angstrom"}, {0x2206, "delta_"}, {0x2212, "-"},      {0x2215, "/"},
    {0x2219, "*"},       {0x22C5, "*"},        {0x3000, " "},      {0xFEFF, ""},
};

/// Returns the digit or sign of a superscript; '\0' for any other character.
char superscript(std::uint32_t character)
{
    constexpr std::uint32_t zero = 0x2070;
    switch (character) {
    case 0x00B9:
        return '1';
    case 0x00B2:
        return '2';
    case 0x00B3:
        return '3';
    case 0x207A:
        return '+';
    case 0x207B:
        return '-';
    default:
        return character == zero || (character >= zero + 4 && character <= zero + 9)
                   ? static_cast<char>('0' + (character - zero))
                   : '\0';
    }
}

/// Returns the plain letter, digit or sign for a full-width one; other characters unchanged.
std::uint32_t narrowed(std::uint32_t character)
{
    constexpr std::uint32_t offset = 0xFEE0;
    return character >= 0xFF01 && character <= 0xFF5E ? character - offset : character;
}

bool isPlain(std::uint32_t character)
{
    return character > 0x20 && character < 0x7F;
}

bool isBlank(std::uint32_t character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

/// Returns the ASCII text for a character; absent if the table does not have it.
std::optional<std::string_view> foldingOf(std::uint32_t character)
{
    const auto* const found =
        std::lower_bound(std::begin(foldings), std::end(foldings), character,
                         [](const Folding& one, std::uint32_t value) { return one.character < value; });
    if (found == std::end(foldings) || found->character != character)
        return std::nullopt;
    return found->ascii;
}

/// Writes a text character by character.
class Folder
{
public:
    /// Returns whether the character was written.
    bool write(std::uint32_t character)
    {
        const char raised = superscript(character);
        if (raised != '\0') {
            if (!m_raised)
                m_text += '^';
            m_text += raised;
        } else if (const auto folding = foldingOf(character)) {
            m_text += *folding;
        } else if (isBlank(character)) {
            m_text += ' ';
        } else if (isPlain(character)) {
            m_text += static_cast<char>(character);
        } else {
            return false;
        }
        m_raised = raised != '\0';
        return true;
    }

    std::string take()
    {
        m_text.erase(m_text.find_last_not_of(' ') + 1);
        m_text.erase(0, m_text.find_first_not_of(' '));
        return std::move(m_text);
    }

private:
    std::string m_text;
    bool m_raised = false; ///< whether the character before was a superscript
};

} // namespace

std::string nameOf(std::uint32_t character)
{
    std::array<char, 8> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), character, 16);
    std::string name(digits.data(), written.ptr);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    return "U+" + std::string(name.size() < 4 ? 4 - name.size() : 0, '0') + name;
}

CodePoint readCodePoint(std::string_view text, std::size_t at)
{
    const auto lead = readLead(static_cast<unsigned char>(text[at]));
    if (!lead || at + lead->length > text.size())
        return {};
    std::uint32_t value = lead->bits;
    for (std::size_t i = 1; i < lead->length; ++i) {
        const auto byte = static_cast<unsigned char>(text[at + i]);
        if ((byte & 0xC0U) != 0x80)
            return {};
        value = value << 6U | (byte & 0x3FU);
    }
    if (value < lead->smallest || !isCharacter(value))
        return {};
    return {value, lead->length, true};
}

FoldedText fold(std::string_view text)
{
    FoldedText folded;
    Folder folder;
    for (std::size_t at = 0; at < text.size() && folded.fault == FoldedText::Fault::None;) {
        const CodePoint point = readCodePoint(text, at);
        const std::uint32_t character = narrowed(point.value);
        if (!point.valid) {
            folded.fault = FoldedText::Fault::BadEncoding;
        } else if (!folder.write(character)) {
            folded.fault = FoldedText::Fault::IllegalCharacter;
            folded.illegal = nameOf(point.value);
        }
        at += point.length;
    }
    folded.text = folder.take();
    return folded;
}

} // namespace vxUnits
