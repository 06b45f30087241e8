#pragma once

#include "Fuzzing.h"

#include "vxDecks/Deck.h"
#include "vxDecks/DeckReading.h"

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace vxfuzz {

/// Aborts unless each material has a name, and each of its quantities a row in the report.
inline void requireReports(const vxDecks::ReadDeck& deck)
{
    if (deck.materials.size() != deck.report.materials.size())
        std::abort();
    for (std::size_t i = 0; i < deck.materials.size(); ++i) {
        const vxDecks::ReadMaterial& one = deck.materials[i];
        const bool isComplete = deck.report.materials[i].rows.size() >= one.material->properties.size();
        if (one.name.empty() || one.material->name != one.name || !isComplete)
            std::abort();
    }
    toLines(deck.report);
    toJson(deck.report);
}

/// Reads any bytes as a deck of a format, which succeeds or throws a DeckError. The materials that were read can be written in
/// the format, and their deck can be read and has no other materials.
inline int readAndWrite(vxDecks::Format format, const std::uint8_t* data, std::size_t size)
{
    const std::string text(textOf(data, size));
    vxDecks::recognisedFormat(text);
    std::istringstream file(text);
    vxDecks::ReadDeck deck;
    try {
        deck = vxDecks::readDeck(format, file, {*vxUnits::UnitSystem::parse("mm-t-s")});
    } catch (const vxDecks::DeckError&) {
        return 0;
    }
    requireReports(deck);
    std::vector<vxDecks::DeckMaterial> materials;
    for (const vxDecks::ReadMaterial& one : deck.materials)
        materials.push_back({one.name, one.number, one.material.get()});
    if (materials.empty())
        return 0;
    std::istringstream written(vxDecks::writeDeck(format, materials, {}).text);
    if (vxDecks::readDeck(format, written, {}).materials.size() > materials.size())
        std::abort();
    return 0;
}

} // namespace vxfuzz
