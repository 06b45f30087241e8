#include "DeckFuzzing.h"

namespace {

using vxDecks::Format;

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
    vxfuzz::requireReports(deck);
    requireReadableAgain(deck);
    return 0;
}
