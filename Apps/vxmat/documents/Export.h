#pragma once

#include "program/Answer.h"
#include "program/Files.h"

#include <string>
#include <vector>

namespace commandline {

class ChosenUnits;

/// `vxmat export NAME[=NUMBER]|PROJECT... -o FILE [--force]`: writes library materials and the materials of project files as a
/// material document. The materials of a project keep the numbers of their objects, and their labels become their
/// names. Library materials without a number get the smallest free numbers. An argument that is both a library material
/// and a file means the material. A note names the unit system of the document, if one is given.
/// \throws Failure for an unknown name, a file that is not a project, an invalid or repeated number, a value that
/// documents cannot carry, an existing project file that must be kept, a failed write
Answer exportMaterials(const std::vector<std::string>& materials, const std::string& path, Existing existing,
                       const ChosenUnits& units);

} // namespace commandline
