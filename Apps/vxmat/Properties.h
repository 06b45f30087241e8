#pragma once

#include "vxMaterial/model/Material.h"

#include <cstdint>
#include <vector>

namespace vxmat {

/// Returns the keys of a material's properties in the order of the catalogue; then those that it does not know, by number.
std::vector<std::int32_t> keysOf(const vxMat::MaterialBase& material);
/// Returns the keys that at least one of two materials has.
std::vector<std::int32_t> keysOf(const vxMat::MaterialBase& one, const vxMat::MaterialBase& other);

/// Returns the form of a property's value: that of its quantity, a number if the catalogue does not know it.
vxMat::eValueKind kindOf(const vxMat::MaterialProperty& property);

} // namespace vxmat
