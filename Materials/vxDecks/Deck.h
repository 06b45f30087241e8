#pragma once

#include "vxDecks/DecksExport.h"
#include "vxDecks/Format.h"
#include "vxDecks/Report.h"
#include "vxMaterial/model/Material.h"
#include "vxUnits/UnitSystem.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxDecks {

/// A material that is written to a deck. Its numbers are in the units of the catalogue.
struct DeckMaterial
{
    std::string name;                              ///< the name that the user sees; UTF-8
    std::optional<std::uint32_t> number;           ///< its number in a project; absent if any will do
    const vxMat::MaterialBase* material = nullptr; ///< not null; the caller keeps it
};

/// The form of the fields of bulk data.
enum class FieldForm
{
    AsNeeded, ///< of 8 characters, or of 16 if a number would lose digits in 8
    Small,    ///< of 8 characters; numbers are rounded
    Large,    ///< of 16 characters
    Free,     ///< divided by commas, with as many characters as needed, at most 16
};

/// Returns the form with a name, "small", "large" or "free", in upper or lower case; absent if there is none.
VXDECKS_EXPORT std::optional<FieldForm> findFieldForm(std::string_view name);

/// The choices of a user for a deck.
struct DeckOptions
{
    /// The unit system of the deck. If it is absent, the deck is in SI, or in mm-t-s if the solver would misread a number
    /// in SI; the report then says so.
    std::optional<vxUnits::UnitSystem> units;
    /// The number of the first material; the next materials have the next numbers. If it is absent, the materials keep
    /// their numbers.
    std::optional<std::uint32_t> firstNumber;
    Dialect dialect = Dialect::Standard;    ///< has no effect in a format without dialects
    FieldForm fields = FieldForm::AsNeeded; ///< of Nastran; has no effect in other formats
};

/// The text of a deck, and its report.
struct Deck
{
    std::string text;
    Report report;
};

/// Returns the deck of materials in a format. The deck has no number that the solver would misread: a quantity whose number
/// cannot be written is left out, and the report gives the reason. Numbers have a decimal point in any locale.
///
///     const Deck deck = writeDeck(Format::Calculix, {{"Steel", 1, &steel}}, {});
///
/// \throws std::bad_alloc
VXDECKS_EXPORT Deck writeDeck(Format format, const std::vector<DeckMaterial>& materials, const DeckOptions& options);

} // namespace vxDecks
