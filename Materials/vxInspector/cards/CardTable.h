#pragma once

#include "subject/InspectedMaterial.h"
#include "table/TableContent.h"
#include "vxInspector/decks/DeckForms.h"
#include "vxUnits/UnitSystem.h"

namespace vxInspector {

/// Returns the cards that the solver gets for a material, and before them what they lack or leave out. Their numbers are
/// in the units of the catalogue, whatever the unit system of the inspector.
TableContent cardTable(const InspectedMaterial& inspected);

/// Returns a material as the deck of a solver, in a form of its format and a unit system: the text of the deck, and below it the rows that cannot be
/// read and the report of the deck, except for the quantities that it carries as they are.
TableContent deckTable(const InspectedMaterial& inspected, const DeckForm& form, const vxUnits::UnitSystem& system);

} // namespace vxInspector
