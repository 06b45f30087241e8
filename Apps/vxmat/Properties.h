#pragma once

#include "vxMaterial/model/Material.h"

#include <cstdint>
#include <vector>

namespace commandline {

/// Returns the numbers under which a material holds its properties: in the order of the catalogue, then, sorted, the
/// numbers that the catalogue does not know.
std::vector<std::int32_t> keysOf(const vxMat::MaterialBase& material);
/// Returns the numbers under which at least one of two materials holds a property, in the same order.
std::vector<std::int32_t> keysOf(const vxMat::MaterialBase& one, const vxMat::MaterialBase& other);

/// Returns the kind of value of a property's quantity; Number if the catalogue does not know the quantity.
vxMat::ValueKind kindOf(const vxMat::MaterialProperty& property);

} // namespace commandline
