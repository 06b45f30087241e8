#pragma once

#include "vxMaterial/model/Material.h"
#include "vxMaterial/model/ModelExport.h"

#include <cstdint>
#include <vector>

/// Materials in the order and with the texts of the catalogue.
namespace vxMat {

/// A property of a material, which owns it, and the slot that holds it.
struct HeldProperty
{
    std::int32_t slot;
    const MaterialProperty* property; ///< never null
};

/// Returns the properties of a material in the order of tables, lists, documents and messages: by slot, in the order
/// of the catalogue (propertyRecords). Properties in slots that the catalogue does not have follow in ascending
/// order.
///
///     for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(material))
VXMAT_MODEL_EXPORT std::vector<HeldProperty> propertiesInCatalogueOrder(const MaterialBase& material);

/// Sets name, description, unit and category of each property to the values of the catalogue, by the id of the
/// property. Properties made from rows of a table lack the unit and have their texts in the language of the user; after
/// this call the material is the same in every language. Keys, values and properties that the catalogue does not have
/// are unchanged. If memory runs out, some properties are unchanged.
/// \throws std::bad_alloc
VXMAT_MODEL_EXPORT void restoreCatalogueTexts(MaterialBase& material);

} // namespace vxMat
