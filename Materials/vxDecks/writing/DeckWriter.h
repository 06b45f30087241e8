#pragma once

#include "naming/BaseUnits.h"
#include "naming/Names.h"
#include "numbers/NumberField.h"
#include "writing/MaterialDeck.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vxDecks {

/// Writes one deck in a format. A writer is used once.
class DeckWriter
{
public:
    virtual ~DeckWriter() = default;

    /// Returns the rules of the format for the names of materials.
    virtual NameRules names() const = 0;
    /// Returns the text before the first material.
    virtual std::string begin(const vxUnits::UnitSystem& units) = 0;
    /// Adds the text of a material, and reports its quantities.
    virtual void write(MaterialDeck& deck) = 0;
    /// Returns the text after the last material.
    virtual std::string end() { return {}; }
};

/// A card of a format, and the function that writes it if the material has its quantities. The card is that of the mapping
/// table.
struct CardWriter
{
    std::string_view card;
    std::function<void(MaterialDeck& deck)> write;
};

/// Writes an entry of a card: "DENS" or "Heat Capacity" with its number.
using EntryWriter = void (*)(MaterialDeck& deck, std::string_view label, const Real& value);

/// Returns the writer of a card with one number, which is that of a quantity as it is. It writes the entry with a function of
/// the format, and reports the quantity as carried.
CardWriter quantityCard(std::string_view card, std::string_view label, std::int32_t id, EntryWriter write);

/// A format whose materials consist of cards.
struct CardFormat
{
    Format format = Format::Calculix;
    NameRules names;
    std::string (*begin)(const vxUnits::UnitSystem& units) = nullptr;
    void (*beginMaterial)(MaterialDeck& deck) = nullptr; ///< null if a material has no heading
    std::vector<CardWriter> cards;
    void (*endMaterial)(MaterialDeck& deck) = nullptr; ///< null if a material has no end
};

const CardFormat& calculixFormat();
const CardFormat& nastranFormat();
const CardFormat& apdlFormat();
const CardFormat& lsDynaFormat();
const CardFormat& elmerFormat();

/// Returns the writer of a format whose materials consist of cards. It writes the cards in the order of the mapping table.
std::unique_ptr<DeckWriter> makeCardWriter(const CardFormat& format);
std::unique_ptr<DeckWriter> makeMatmlWriter();

} // namespace vxDecks
