#pragma once

#include "documents/Documents.h"
#include "vxMaterial/exchange/DocumentCheck.h"

namespace commandline {

/// Returns the findings of vxMat::checkMaterial for the materials of a project file, each with its path in the file
/// ("$.materials[2].material"), the doubts of the reader, and a unit system that cannot be read. Objects of other classes are not checked; a note says so.
/// The input must be a project.
vxCAE::CheckReport checkProject(const Input& input);

} // namespace commandline
