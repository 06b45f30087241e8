#pragma once

#include "vxMaterial/exchange/ExchangeExport.h"
#include "vxMaterial/exchange/MaterialEntry.h"

#include <string>
#include <vector>

namespace vxCAE {

/// Where a material comes from, on which it depends what can be missing in its cards.
enum class MaterialSource
{
    Complete, ///< the library or a project: with words and lists
    Document, ///< an exchange document, which carries only numbers
};

/// One card of a material.
struct SolverCard
{
    std::string name; ///< "elasticity", "plasticity", "visco-elasticity", "creep", "density", "specific
                      ///< heat", "thermal conductivity"
    std::string text; ///< as the solver reads it
};

/// The cards of a material, and their defects, which the user should read before using them.
struct CardSet
{
    std::vector<SolverCard> cards;   ///< every card that applies to the material, none of them empty
    std::vector<std::string> doubts; ///< cards that are missing, are a message, or lack numbers
};

/// Returns every card that applies to the material of a classified entry: the elasticity line if the material has
/// elastic data, the card of its kind, and a table for each of density, specific heat and thermal conductivity that it
/// has.
VXCAE_EXPORT CardSet makeCardSet(const MaterialEntry& entry, MaterialSource source);

} // namespace vxCAE
