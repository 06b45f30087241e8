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
        Refused, ///< lost, although the format takes the quantity; the user can do something about it
        Lost,
        Approximated,
        Remark, ///< about the name or the number of a material, or an impossible value
        Converted,
        Carried,
    };
    Kind kind = Kind::Lost;
    QString quantities; ///< their names; empty for a remark
    QString reason;     ///< how they are converted or approximated, or why they are lost; may be empty
    QString materials;  ///< the first names, and the number of the others
};

/// Returns the lines of a report, the worst outcomes first. The remarks about the whole deck are not among them. May be
/// called in any thread.
std::vector<DeckLine> deckLines(const vxDecks::Report& report);

/// Returns the remarks of a report about the whole deck as sentences, such as its unit system.
QString deckRemarks(const vxDecks::Report& report);

/// Returns how many quantities of all materials have each outcome, as a sentence. May be called in any thread.
QString deckSummary(const vxDecks::Report& report);

/// Returns the name of a kind of lines for a table: "Lost".
QString nameOf(DeckLine::Kind kind);

} // namespace vxInspector
