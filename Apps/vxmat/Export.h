#pragma once

#include "Answer.h"

#include <string>
#include <vector>

namespace vxmat {

/// `vxmat export NAME[=NUMBER]... -o FILE`: writes library materials as a material-project document. Materials
/// without a number get 1, 2, ..., passing over numbers that others were given.
/// \throws Failure for an unknown name, a number that is none or given twice, a failed write
Answer exportMaterials(const std::vector<std::string>& materials, const std::string& path);

} // namespace vxmat
