#pragma once

#include "vxDecks/DecksExport.h"
#include "vxDecks/Format.h"
#include "vxDecks/Report.h"
#include "vxMaterial/model/Material.h"
#include "vxMaterial/model/MaterialCheck.h"
#include "vxUnits/Message.h"
#include "vxUnits/UnitSystem.h"

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vxDecks {

/// A material that was read from a deck. Its numbers are in the units of the catalogue.
struct ReadMaterial
{
    std::string name;                           ///< its name in the deck, UTF-8; never empty
    std::optional<std::uint32_t> number;        ///< its number in the deck; absent if the format has names only
    std::unique_ptr<vxMat::CMaterial> material; ///< not null; has the same name
};

/// The choices of a user for reading a deck.
struct ReadOptions
{
    /// The unit system of the numbers in the deck. It takes precedence over the units that the deck declares, except in a
    /// format that has a unit for each number. Units are never guessed.
    std::optional<vxUnits::UnitSystem> units;
};

/// The keyword of a card that belongs to no material: of nodes, elements, steps.
struct ForeignCard
{
    std::string name;      ///< "*NODE", in capitals
    std::size_t count = 0; ///< the number of such cards
    std::size_t line = 0;  ///< the line of the first one, from 1
};

/// The materials of a deck, and the report of their quantities. The rows of the report are the quantities that a material
/// has got, in the order of the catalogue, and then the cards and parts of cards that it has not got. The latter have the
/// slot 0, and the keyword in place of a quantity. They are refused if the user must give their quantities.
struct ReadDeck
{
    std::vector<ReadMaterial> materials; ///< in the order of the file
    Report report;                       ///< with an entry for each material, in the same order
    std::vector<ForeignCard> foreign;    ///< in the order of the file; of many different ones only the first
    std::size_t moreForeign = 0;         ///< the number of cards of the other ones
};

/// The reason why a deck cannot be read. what() is the English text, which begins with the line if there is one.
class VXDECKS_EXPORT DeckError : public std::runtime_error
{
public:
    /// Makes an error about a line of the file, from 1, or about the whole file if the line is 0.
    DeckError(vxUnits::Message reason, std::size_t line);

    /// Returns the reason without the line.
    const vxUnits::Message& reason() const { return m_reason; }
    std::size_t line() const { return m_line; }
    /// Returns the line, if there is one, and the reason: in English, or translated.
    std::string text(const vxUnits::Translator& translator = {}) const;

private:
    vxUnits::Message m_reason;
    std::size_t m_line;
};

/// The error about a deck whose units are not known, because neither the deck nor the user gives them.
class VXDECKS_EXPORT UnitsNeeded : public DeckError
{
public:
    /// `proposal` is the name of a unit system, or empty.
    explicit UnitsNeeded(std::string proposal);

    /// Returns the name of the built-in unit system that fits the numbers of the materials best; empty if none does. The
    /// program shows it to the user, and does not choose it.
    const std::string& proposal() const { return m_proposal; }

private:
    std::string m_proposal;
};

/// The number of bytes from the beginning of a file that are enough to recognise its format.
inline constexpr std::size_t recognisedLength = 65536;

/// Returns the format of a file by its content, of which the caller passes the first recognisedLength bytes, or all if it is
/// shorter. A whole model is recognised by any keyword of its format. Absent if the content is of no format. The result may
/// be a format that canRead() excludes.
VXDECKS_EXPORT std::optional<Format> recognisedFormat(std::string_view beginning);

/// Returns whether decks of a format can be read. All formats can be written.
VXDECKS_EXPORT bool canRead(Format format);

/// Returns whether each number in a format has its unit, so that ReadOptions::units has no effect.
VXDECKS_EXPORT bool hasOwnUnits(Format format);

/// Returns the unit system that a deck declares in its first lines, as the decks of writeDeck() do; absent if it does not.
VXDECKS_EXPORT std::optional<vxUnits::UnitSystem> declaredUnits(Format format, std::string_view beginning);

/// Reads the materials of a deck, and skips everything else. Reads line by line: the memory grows with the materials only.
/// Decks without materials give an empty result. Numbers have a decimal point in any locale.
///
///     std::ifstream file(path, std::ios::binary);
///     const ReadDeck deck = readDeck(Format::Calculix, file, {*vxUnits::UnitSystem::parse("mm-t-s")});
///
/// \throws UnitsNeeded if the deck has materials, and neither the deck nor the options give its units
/// \throws DeckError if the format cannot be read, a card of a material has a number that cannot be read or too few numbers,
/// the content is binary, or the stream fails
/// \throws std::bad_alloc
VXDECKS_EXPORT ReadDeck readDeck(Format format, std::istream& file, const ReadOptions& options);

/// Returns the findings of vxMat::checkMaterial() about a material that was read, without those that its report tells already:
/// impossible values, and that the material is empty. Programs show them after MaterialReport::findings, so that all of them
/// agree on what is wrong with a deck.
VXDECKS_EXPORT std::vector<vxMat::MaterialFinding> findingsBesides(const MaterialReport& report,
                                                                   const vxMat::MaterialBase& material);

} // namespace vxDecks
