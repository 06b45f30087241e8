#pragma once

#include "Answer.h"

#include <string>
#include <vector>

namespace vxmat {

/// `vxmat export NAME[=NUMBER]|PROJECT... -o FILE`: writes library materials, and those of project files, as a
/// material document. The materials of a project keep the numbers of their objects and have their labels as names;
/// library materials without a number get 1, 2, ..., passing over numbers that others have. A name of the library wins
/// over a file of that name.
/// \throws Failure for an unknown name, a file that is no project, a number that is none or given twice, a value that
/// documents cannot carry, a failed write
Answer exportMaterials(const std::vector<std::string>& materials, const std::string& path);

} // namespace vxmat
