#pragma once

#include "Documents.h"

#include "vxMaterial/exchange/DocumentCheck.h"

namespace vxmat {

/// Returns everything that is wrong with the materials of a project file, each with its path in it
/// ("$.materials[2].material"): values that the rules refuse, combinations that exclude each other, quantities that the
/// catalogue does not know, numbers that no document can carry, and what the reader of the file doubted. Objects of
/// other classes are noted and not checked. The input must be a project.
vxCAE::CheckReport checkProject(const Input& input);

} // namespace vxmat
