#pragma once

#include "vxMaterial/exchange/ExchangeExport.h"
#include "vxMaterial/exchange/MaterialEntry.h"
#include "vxMaterial/model/MaterialCheck.h"

#include <string>
#include <vector>

namespace vxCAE {

/// The source of a material. It determines which data can be missing in the cards.
enum class MaterialSource
{
    Complete, ///< the library or a project: with words and lists
    Document, ///< an exchange document, which contains only numbers
};

/// One card of a material.
struct SolverCard
{
    std::string name; ///< "elasticity", "plasticity", "visco-elasticity", "creep", "density", "specific
                      ///< heat", "thermal conductivity"
    std::string text; ///< in the form that the solver reads
};

/// The cards of a material, and their defects. The user should read the defects before using the cards.
struct CardSet
{
    std::vector<SolverCard> cards; ///< every card that applies to the material; no card is empty
    /// Warnings of cards that are missing, contain a message, or lack numbers. The messages begin with a small letter.
    std::vector<vxMat::MaterialFinding> doubts;
};

/// Returns every card that applies to the material of a classified entry: the elasticity line if the material has
/// elastic data, the card of its kind, and a table for each existing value of density, specific heat and thermal
/// conductivity.
VXCAE_EXPORT CardSet makeCardSet(const MaterialEntry& entry, MaterialSource source);

} // namespace vxCAE
