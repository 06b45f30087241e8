#pragma once

#include "vxMaterial/exchange/ExchangeExport.h"
#include "vxMaterial/model/CataloguedMaterial.h"

#include <cstdint>
#include <vector>

/// What an exchange document cannot carry of a material. A program that exports calls these functions before it writes,
/// and words the results for its users.
namespace vxCAE {

/// Why readers refuse a property in a document.
enum class ExportFault
{
    NumberNotFinite, ///< its number is infinite or not a number, which JSON cannot contain
    NegativeSlot,    ///< "prop_type", which is the slot, must not be below 0
};

/// A property for which readers refuse the whole document.
struct ExportObstacle
{
    vxMat::HeldProperty held; ///< valid as long as the material holds the property
    ExportFault fault;
};

/// Returns everything in a material for which readers refuse its document, by property in the order of the catalogue. A
/// property can have both faults. A document is written only if the list is empty.
/// \throws std::bad_alloc
VXCAE_EXPORT std::vector<ExportObstacle> findExportObstacles(const vxMat::MaterialBase& material);

/// Returns the properties of which a document does not carry the value, in the order of the catalogue: words, lists, and
/// numbers with a word or a list beside them. A document can be written, but the user must be told. Units, descriptions
/// and categories, which the catalogue has, do not count. The pointers are valid as long as the material holds the
/// properties.
/// \throws std::bad_alloc
VXCAE_EXPORT std::vector<vxMat::HeldProperty> findLostValues(const vxMat::MaterialBase& material);

} // namespace vxCAE
