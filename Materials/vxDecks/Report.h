#pragma once

#include "vxDecks/DecksExport.h"
#include "vxDecks/Format.h"
#include "vxUnits/Message.h"

#include <json/value.h>

#include <cstdint>
#include <string>
#include <vector>

namespace vxDecks {

/// The outcome for one quantity of a material that is written to a deck, or read from one. "Target" is the deck, or the
/// material.
enum class Outcome
{
    Carried,      ///< the target has the same number
    Converted,    ///< the target has the same meaning in another unit or form
    Approximated, ///< the target has nearly the same meaning
    Lost,         ///< the target does not have the quantity
};

/// Returns "carried", "converted", "approximated" or "lost".
VXDECKS_EXPORT const char* nameOf(Outcome outcome);

/// The outcome for one quantity of a material, and the reason.
struct ReportRow
{
    std::int32_t slot = 0; ///< the slot of the property in the material; 0 for a card of a deck that is not read
    std::string name;      ///< of the quantity, as in the catalogue; the keyword of a card
    Outcome outcome = Outcome::Lost;
    std::string card;                  ///< the card that has the quantity; empty if it is lost
    std::vector<vxUnits::Message> how; ///< how it is converted or approximated, or why it is lost
    bool refused = false; ///< lost, although the target has a place for it; the user can do something about it
};

/// The outcome for a material.
struct MaterialReport
{
    std::string name;                    ///< of the material
    std::string writtenName;             ///< its name in the deck; another one if the format does not take the name
    std::uint32_t id = 0;                ///< its number in the deck; 0 if the format has names only
    std::vector<vxUnits::Message> notes; ///< about the name and the number
    /// In the order of the catalogue; last those that the material does not have, but the deck needs.
    std::vector<ReportRow> rows;
};

/// The report of a deck: the outcome for every quantity of every material.
struct Report
{
    Format format = Format::Calculix;
    std::string units;                   ///< the unit system of the deck
    std::vector<vxUnits::Message> notes; ///< about the whole deck
    std::vector<MaterialReport> materials;
};

/// Returns the number of quantities that are refused.
VXDECKS_EXPORT std::size_t countRefused(const Report& report);

/// Returns the report as lines for a user, one for the quantities of a material that have the same outcome for the same
/// reason: "Steel: lost: Relative permittivity: the format has no card for it". In English, or translated.
VXDECKS_EXPORT std::vector<std::string> toLines(const Report& report, const vxUnits::Translator& translator = {});

/// Returns the report as JSON, with English texts and the ids of the messages.
VXDECKS_EXPORT Json::Value toJson(const Report& report);

} // namespace vxDecks
