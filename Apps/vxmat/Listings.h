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

/// `vxmat show NAME`: one material.
/// \throws Failure when the library has no such material
Answer showMaterial(const std::string& name, Form form);

} // namespace vxmat
