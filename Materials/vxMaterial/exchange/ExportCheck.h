#pragma once

#include "vxMaterial/exchange/ExchangeExport.h"
#include "vxMaterial/model/CataloguedMaterial.h"

#include <cstdint>
#include <vector>

/// The parts of a material that an exchange document cannot contain. A program that exports calls these functions
/// before it writes, and shows the results to its users.
namespace vxCAE {

/// The reason why readers refuse a property in a document.
enum class ExportFault
{
    NumberNotFinite, ///< its number is infinite or not a number, which JSON cannot contain
    NegativeSlot,    ///< "prop_type", which contains the slot, must not be below 0
};

/// A property for which readers refuse the whole document.
struct ExportObstacle
{
    vxMat::HeldProperty held; ///< valid as long as the material holds the property
    ExportFault fault;
};

/// Returns every fault of a material that makes readers refuse its document, by property in the order of the catalogue.
/// A property can have both faults. A document is written only if the list is empty.
/// \throws std::bad_alloc
VXCAE_EXPORT std::vector<ExportObstacle> findExportObstacles(const vxMat::MaterialBase& material);

/// Returns the properties whose values a document does not contain, in the order of the catalogue: words, lists, and
/// numbers of properties that also have a word or a list. A document can be written, but the program must tell the
/// user. Units, descriptions and categories do not count, since the catalogue has them. The pointers are valid as long
/// as the material holds the properties.
/// \throws std::bad_alloc
VXCAE_EXPORT std::vector<vxMat::HeldProperty> findLostValues(const vxMat::MaterialBase& material);

} // namespace vxCAE
