#include "Fuzzing.h"

#include "vxDecks/Deck.h"
#include "vxDecks/DeckReading.h"

#include <cstdlib>
#include <sstream>
#include <vector>

namespace {

using vxDecks::Format;

/// Aborts unless each material has a name, and each of its quantities a row in the report.
void requireReports(const vxDecks::ReadDeck& deck)
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

/// Aborts unless the deck of the materials that were read can be read too, and has as many materials.
void requireReadableAgain(const vxDecks::ReadDeck& deck)
{
    std::vector<vxDecks::DeckMaterial> materials;
    for (const vxDecks::ReadMaterial& one : deck.materials)
        materials.push_back({one.name, one.number, one.material.get()});
    std::istringstream written(vxDecks::writeDeck(Format::Calculix, materials, {}).text);
    if (vxDecks::readDeck(Format::Calculix, written, {}).materials.size() != deck.materials.size())
        std::abort();
}

} // namespace

/// Reading any bytes as a deck of keywords succeeds or throws a DeckError. The materials that were read can be written, and
/// their deck can be read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(vxfuzz::textOf(data, size));
    vxDecks::recognisedFormat(text);
    std::istringstream file(text);
    vxDecks::ReadDeck deck;
    try {
        deck = vxDecks::readDeck(Format::Calculix, file, {*vxUnits::UnitSystem::parse("mm-t-s")});
    } catch (const vxDecks::DeckError&) {
        return 0;
    }
    requireReports(deck);
    requireReadableAgain(deck);
    return 0;
}
