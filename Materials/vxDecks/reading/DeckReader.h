#pragma once

#include "vxDecks/DeckReading.h"

#include <cstddef>
#include <istream>
#include <optional>
#include <string_view>
#include <vector>

namespace vxDecks {

/// The unit system that the comments of a deck declare, of which there is only one: decks that are joined from several may
/// declare others further down.
class DeclaredUnits
{
public:
    /// `comment` are the characters with which a comment begins. `first` is what the first comments declare; absent if they do not.
    DeclaredUnits(std::string_view comment, std::optional<vxUnits::UnitSystem> first);

    /// Takes a line of the deck, from 1.
    /// \throws DeckError if it declares another unit system
    void check(std::string_view line, std::size_t number);

    /// Returns the unit system that the lines up to here declare; absent if they do not.
    const std::optional<vxUnits::UnitSystem>& found() const { return m_found; }

private:
    std::string_view m_comment;
    std::optional<vxUnits::UnitSystem> m_found;
};

/// The functions of a format that can be read, or that is only recognised.
struct DeckReader
{
    Format format = Format::Calculix;
    /// Returns whether the beginning of a file is in the format.
    bool (*recognises)(std::string_view beginning) = nullptr;
    /// Reads materials whose numbers are in a unit system. Adds materials, their reports, foreign cards and notes to the deck.
    /// Comments are passed to DeclaredUnits::check. The units have no effect in a format with own units. Null if the format
    /// cannot be read.
    void (*read)(std::istream& file, const vxUnits::UnitSystem& units, DeclaredUnits& declared,
                 ReadDeck& deck) = nullptr;
    /// The characters with which a comment begins; the first comments may declare the units: "** Units: mm, t, s, K, A".
    /// Empty if numbers have their own units.
    std::string_view comment;
};

const DeckReader& calculixReader();
const DeckReader& lsDynaReader();
const DeckReader& nastranReader();
const DeckReader& matmlReader();
const DeckReader& apdlReader();
const DeckReader& elmerReader();

/// Returns the units that a line declares as the writers do, "** Units: mm, t, s, K, A"; absent if it does not.
std::optional<vxUnits::UnitSystem> unitsOfComment(std::string_view line, std::string_view comment);

/// Adds the note about the foreign cards of a deck to its report, if there are any.
void noteForeignCards(ReadDeck& deck);

} // namespace vxDecks
