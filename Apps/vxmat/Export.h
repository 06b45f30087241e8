#pragma once

#include "Answer.h"

#include <string>
#include <vector>

namespace vxmat {

/// `vxmat export NAME[=NUMBER]|PROJECT... -o FILE`: writes library materials, and those of project files, as a
/// material document. The materials of a project keep the numbers of their objects and have their labels as names;
/// library materials without a number get 1, 2, ..., without those that others have. An argument that is a name of the
/// library and of a file means the material.
/// \throws Failure for an unknown name, a file that is not a project, a text that is not a number, a number given twice, a
/// value that documents cannot carry, a failed write
Answer exportMaterials(const std::vector<std::string>& materials, const std::string& path);

} // namespace vxmat
