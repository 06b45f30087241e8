#pragma once

#include "vxMaterial/model/Material.h"

#include <cstdint>
#include <vector>

namespace vxmat {

/// The keys of a material's properties in the order of the catalogue; those that it does not know follow by number.
std::vector<std::int32_t> keysOf(const vxMat::MaterialBase& material);
/// The keys that at least one of two materials has.
std::vector<std::int32_t> keysOf(const vxMat::MaterialBase& one, const vxMat::MaterialBase& other);

/// The form of a property's value: that of its quantity, a number when the catalogue does not know it.
vxMat::eValueKind kindOf(const vxMat::MaterialProperty& property);

} // namespace vxmat
