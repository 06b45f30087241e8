#include "filter/FoldedLabel.h"

#include "units/FoldedText.h"

namespace vxUnits {

namespace {

/// A block of capital letters, and the way to their small letters.
struct CapitalBlock
{
    std::uint32_t first;
    std::uint32_t last;
    std::uint32_t distance; ///< 0 if capital and small letters alternate, the even ones being capital
};
constexpr CapitalBlock capitalBlocks[] = {
    {'A', 'Z', 0x20},     {0xC0, 0xD6, 0x20},   {0xD8, 0xDE, 0x20},   {0x100, 0x12F, 0},
    {0x132, 0x137, 0},    {0x14A, 0x177, 0},    {0x391, 0x3A1, 0x20}, {0x3A3, 0x3AB, 0x20},
    {0x400, 0x40F, 0x50}, {0x410, 0x42F, 0x20}, {0x460, 0x481, 0},    {0xFF21, 0xFF3A, 0x20},
};

std::uint32_t toSmall(std::uint32_t letter)
{
    for (const CapitalBlock& block : capitalBlocks) {
        if (letter < block.first || letter > block.last)
            continue;
        return block.distance != 0 ? letter + block.distance : letter | 1U;
    }
    return letter;
}

/// Appends a character of at most three bytes.
void append(std::string& text, std::uint32_t character)
{
    const auto byte = [](std::uint32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
    if (character < 0x80) {
        text += byte(character);
        return;
    }
    if (character < 0x800) {
        text += byte(0xC0U | (character >> 6U));
    } else {
        text += byte(0xE0U | (character >> 12U));
        text += byte(0x80U | ((character >> 6U) & 0x3FU));
    }
    text += byte(0x80U | (character & 0x3FU));
}

bool isApostrophe(std::uint32_t character)
{
    return character == '\'' || character == 0x2019 || character == 0x2018 || character == 0xB4;
}

/// Returns whether a character separates words of a name. U+2010 to U+2015 are hyphens and dashes.
bool isSeparator(std::uint32_t character)
{
    return character <= ' ' || character == '-' || character == '_' || character == 0xA0 || character == 0x3000 ||
           (character >= 0x2000 && character <= 0x200A) || (character >= 0x2010 && character <= 0x2015) ||
           character == 0x202F;
}

} // namespace

std::string foldLabel(std::string_view text)
{
    std::string folded;
    folded.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = readCodePoint(text, at);
        if (point.valid && point.length <= 3)
            append(folded, toSmall(point.value));
        else
            folded += text.substr(at, point.length);
        at += point.length;
    }
    return folded;
}

std::string foldName(std::string_view text)
{
    const std::string label = foldLabel(text);
    std::string folded;
    folded.reserve(label.size());
    for (std::size_t at = 0; at < label.size();) {
        const CodePoint point = readCodePoint(label, at);
        if (isSeparator(point.value) && point.valid) {
            if (!folded.empty() && folded.back() != ' ')
                folded += ' ';
        } else if (!isApostrophe(point.value)) {
            folded.append(label, at, point.length);
        }
        at += point.length;
    }
    if (!folded.empty() && folded.back() == ' ')
        folded.pop_back();
    return folded;
}

} // namespace vxUnits
