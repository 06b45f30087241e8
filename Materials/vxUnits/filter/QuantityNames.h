#pragma once

#include "vxUnits/Filter.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxUnits {

/// A name of a quantity in filters.
struct QuantityName
{
    FilterQuantity quantity;
    std::string text;      ///< "Young's modulus", "E", "5"
    std::string folded;    ///< for comparison
    bool isSymbol = false; ///< whether it is shorter than the name that the user sees
};

/// Returns all names of all quantities, those of the catalogue first. The first name of each quantity is the one that users
/// see.
const std::vector<QuantityName>& quantityNames();

/// The most words that a name of a quantity has.
std::size_t longestQuantityName();

/// Returns the quantity of a name, key, symbol or id. An exact spelling wins against one that differs in case.
std::optional<FilterQuantity> findQuantityByName(std::string_view name);

/// Returns the name of a quantity that was probably meant; empty if none is near. Looks at the first 60 bytes.
std::string nearestQuantityName(std::string_view typed);

/// Returns the number of letters to add, to remove or to exchange, or to swap with their neighbours, in one text to get the
/// other. Takes the product of their lengths.
std::size_t editDistance(std::string_view one, std::string_view other);

} // namespace vxUnits
