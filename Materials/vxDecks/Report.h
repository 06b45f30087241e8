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

/// A value of a deck that was read although no solver could compute with it.
struct Finding
{
    vxUnits::Message message;
    std::string card;     ///< "*ELASTIC"
    std::size_t line = 0; ///< of the card, from 1; 0 if the format has no lines
    std::int32_t id = 0;  ///< vxMat::PropertyId of the quantity
};

/// Returns the line, the card and the message: "line 3, *DENSITY: Density = -1 is not possible; the value must be above 0". In
/// English, or translated.
VXDECKS_EXPORT std::string textOf(const Finding& finding, const vxUnits::Translator& translator = {});

/// The outcome for a material.
struct MaterialReport
{
    std::string name;                    ///< of the material
    std::string writtenName;             ///< its name in the deck; another one if the format does not take the name
    std::uint32_t id = 0;                ///< its number in the deck; 0 if the format has names only
    std::vector<vxUnits::Message> notes; ///< about the name and the number
    std::vector<Finding> findings;       ///< of a deck that was read
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

/// Returns the number of findings.
VXDECKS_EXPORT std::size_t countFindings(const Report& report);

/// Returns the report as lines for a user, one for the quantities of a material that have the same outcome for the same
/// reason: "Steel: lost: Relative permittivity: the format has no card for it". If the report has more than 10 materials, those
/// with the same outcome share a line, which has the first names: "12 materials (Steel, Iron, Copper, ...): carried: Density".
/// Of reasons that differ in more than three ways, one is an example. In English, or translated.
VXDECKS_EXPORT std::vector<std::string> toLines(const Report& report, const vxUnits::Translator& translator = {});

/// Returns the report as JSON, with English texts and the ids of the messages.
VXDECKS_EXPORT Json::Value toJson(const Report& report);

} // namespace vxDecks
