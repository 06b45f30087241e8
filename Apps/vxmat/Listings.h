#pragma once

#include "Answer.h"

#include <json/value.h>

#include <string>

namespace vxMat {
class MaterialBase;
class MaterialProperty;
} // namespace vxMat

namespace commandline {

/// `vxmat library`: lists the built-in materials.
Answer listLibrary(Form form);

/// `vxmat catalogue`: lists the quantities, sorted by id.
Answer listCatalogue(Form form);

/// `vxmat show NAME|FILE`: prints a library material, or the materials of a document or project and the other objects
/// of the project. A name that is both a library material and a file means the material.
/// \throws Failure if `name` is neither a material nor a readable file
Answer showMaterial(const std::string& name, Form form);

} // namespace commandline
