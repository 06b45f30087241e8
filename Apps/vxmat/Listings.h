#pragma once

#include "Answer.h"

#include <json/value.h>

#include <string>

namespace vxMat {
class MaterialBase;
class MaterialProperty;
} // namespace vxMat

namespace vxmat {

/// `vxmat library`: lists the built-in materials.
Answer listLibrary(Form form);

/// `vxmat catalogue`: lists the quantities, by id.
Answer listCatalogue(Form form);

/// `vxmat show NAME|FILE`: prints one material of the library, or those of a material document or project, then the other
/// objects of the project. An argument that is a name of the library and of a file means the material.
/// \throws Failure for what is neither a material nor a readable file
Answer showMaterial(const std::string& name, Form form);

} // namespace vxmat
