#pragma once

#include "vxDecks/Deck.h"
#include "vxMaterial/model/Material.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vxtest {

/// Makes a material of values, in the units of the catalogue.
class MaterialMaker
{
public:
    MaterialMaker& number(std::int32_t id, double value);
    MaterialMaker& list(std::int32_t id, const std::vector<double>& values);
    MaterialMaker& word(std::int32_t id, const std::string& value);
    MaterialMaker& on(std::int32_t id); ///< a switch
    const vxMat::MaterialBase& get() const { return m_material; }

private:
    vxMat::MaterialProperty& add(std::int32_t id);

    vxMat::CMaterial m_material;
};

/// Returns a maker of linear elasticity: E 2e11 Pa, nu 0.3.
std::unique_ptr<MaterialMaker> elastic();

/// Returns a built-in material.
const vxMat::MaterialBase& libraryMaterial(vxMat::eMaterialType type);

/// Returns the 26 built-in materials in the order of listings.
std::vector<const vxMat::MaterialBase*> libraryMaterials();

/// Returns the deck of one material. Without the name of a unit system, the units are not chosen.
vxDecks::Deck deckOf(vxDecks::Format format, const vxMat::MaterialBase& material, const std::string& units = {},
                     const std::string& name = "Test");

/// Returns the row of a quantity in the report of the only material; the test fails if there is none.
vxDecks::ReportRow rowOf(const vxDecks::Deck& deck, std::int32_t id);

/// Returns "lost: the number is not finite", the outcome and the reasons for a quantity.
std::string outcomeOf(const vxDecks::Deck& deck, std::int32_t id);

} // namespace vxtest
