#pragma once

#include "Answer.h"

#include <json/value.h>

#include <string>

namespace vxMat {
class MaterialBase;
class MaterialProperty;
} // namespace vxMat

namespace vxmat {

/// `vxmat library`: the built-in materials.
Answer listLibrary(Form form);

/// `vxmat catalogue`: the quantities, by id.
Answer listCatalogue(Form form);

/// `vxmat show NAME|FILE`: one material of the library, or those of a material document or project. A name of the
/// library wins over a file of that name.
/// \throws Failure for what is neither a material nor a readable file
Answer showMaterial(const std::string& name, Form form);

} // namespace vxmat
