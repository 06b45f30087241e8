#pragma once

#include <string>

namespace vxDecks {

/// Returns whether a keyword in the form of keywordOf() is a card of a material for which the catalogue has no quantity.
bool isCardWithoutQuantity(const std::string& keyword);

} // namespace vxDecks
