#pragma once

#include "Documents.h"

#include "vxMaterial/exchange/DocumentCheck.h"

namespace commandline {

/// Returns the errors in the materials of a project file, each with its path in the file ("$.materials[2].material"):
/// values that the rules refuse, quantities that exclude each other, quantities that the catalogue does not know,
/// numbers that documents cannot carry, and the doubts of the reader. Objects of other classes are not checked; a note
/// says so. The input must be a project.
vxCAE::CheckReport checkProject(const Input& input);

} // namespace commandline
