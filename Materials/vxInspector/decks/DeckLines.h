#pragma once

#include "vxDecks/Report.h"

#include <QString>

#include <vector>

/// The report of a deck as programs with Qt show it.
namespace vxInspector {

/// A line of the report of a deck: the quantities that have the same outcome for the same reason in the same materials,
/// or a remark. All texts are in the user's language.
struct DeckLine
{
    enum class Kind
    {
        Finding, ///< a value with which no solver can compute, or what a material lacks
        Refused, ///< lost, although the format takes the quantity; the user can do something about it
        Lost,
        Approximated,
        Doubt,  ///< about a value that no known material has
        Remark, ///< about the name or the number of a material
        Converted,
        Carried,
    };
    Kind kind = Kind::Lost;
    QString quantities; ///< their names; empty for a finding, doubt or remark
    QString reason;     ///< how they are converted or approximated, or why they are lost; may be empty
    QString materials;  ///< the first names, and the number of the others
};

/// A finding or doubt about a material, in the user's language.
struct DeckFinding
{
    DeckLine::Kind kind = DeckLine::Kind::Finding;
    QString text;
};

/// Returns the lines of a report, the worst outcomes first. The remarks about the whole deck are not among them. `findings` are
/// those about each material of a deck that was read, in the order of the report; MaterialReport::findings are not used, since
/// only the caller knows what else is wrong with a material. May be called in any thread.
std::vector<DeckLine> deckLines(const vxDecks::Report& report,
                                const std::vector<std::vector<DeckFinding>>& findings = {});

/// Returns the remarks of a report about the whole deck as sentences, such as its unit system.
QString deckRemarks(const vxDecks::Report& report);

/// Returns how many quantities of all materials have each outcome, as a sentence. May be called in any thread.
QString deckSummary(const vxDecks::Report& report);

/// Returns the name of a kind of lines for a table: "Lost".
QString nameOf(DeckLine::Kind kind);

} // namespace vxInspector
