#pragma once

#include "vxDecks/Deck.h"
#include "vxDecks/Format.h"

#include <QString>

#include <string>
#include <vector>

namespace vxInspector {

/// A form of a format that the user can choose: a dialect, or the form of the fields.
struct DeckForm
{
    vxDecks::Format format = vxDecks::Format::Calculix;
    std::string name = {}; ///< "commercial", "small", as users type it; empty for the usual form; never changes
    QString title = {};    ///< in the user's language
    vxDecks::Dialect dialect = vxDecks::Dialect::Standard;
    vxDecks::FieldForm fields = vxDecks::FieldForm::AsNeeded;
};

/// Returns the forms of a format, the usual one first; empty if it has only one form.
std::vector<DeckForm> deckForms(vxDecks::Format format);

/// Returns the form of a format with a name; the usual one if the format has no such form.
DeckForm deckForm(vxDecks::Format format, const std::string& name);

} // namespace vxInspector
