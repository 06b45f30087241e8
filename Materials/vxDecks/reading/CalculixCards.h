#pragma once

#include "reading/KeywordCard.h"
#include "reading/MaterialReading.h"

#include <map>
#include <string>

namespace vxDecks {

/// Returns whether a keyword, as in KeywordCard::keyword, is a card of a material.
bool isMaterialCard(const std::string& keyword);

/// Returns whether the numbers of a card are read.
bool hasReadNumbers(const std::string& keyword);

/// Returns the reason why a card, whose numbers are not read, is not taken.
vxUnits::Message reasonWithoutNumbers(const std::string& keyword);

/// The cards of a material by their keywords, as in KeywordCard::keyword.
using MaterialCards = std::map<std::string, KeywordCard>;

/// Gives a material the quantities of its cards, whose numbers are in a unit system, or reports why it does not have them.
/// \throws DeckError if a card has too few numbers
void readCards(const MaterialCards& cards, const vxUnits::UnitSystem& units, MaterialReading& material);

} // namespace vxDecks
