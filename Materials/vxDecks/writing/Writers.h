#pragma once

#include "writing/MaterialDeck.h"
#include "writing/Names.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vxDecks {

/// A card of a format, and the function that writes it if the material has its quantities. The card is that of the mapping
/// table.
struct CardWriter
{
    const char* card;
    void (*write)(MaterialDeck& deck);
};

/// The name and the number of a material in a deck.
struct Heading
{
    std::string name;
    std::uint32_t number = 0;
};

/// The writer of a format.
struct FormatWriter
{
    NameRules names;
    std::uint32_t largestNumber = 0; ///< 0 if materials have names only
    std::string (*beginDeck)(const vxUnits::UnitSystem& units);
    void (*beginMaterial)(MaterialDeck& deck, const Heading& heading, const std::string& userName);
    std::vector<CardWriter> cards;
};

const FormatWriter& calculixWriter();

/// Returns a text of the user for a comment, of at most `longest` bytes and without control characters, so that it stays on
/// its line.
std::string commentText(std::string_view text, std::size_t longest);

/// Returns the base units of a system for a comment: "mm, t, s, K, A".
std::string baseUnits(const vxUnits::UnitSystem& units);

} // namespace vxDecks
