#pragma once

#include "Answer.h"
#include "Files.h"

#include <string>
#include <vector>

namespace commandline {

class ChosenUnits;

/// `vxmat new [NAME[=LABEL]...] [--empty LABEL...] -o FILE [--force]`: writes a project file of library materials and then of
/// materials without quantities, which become the objects 1, 2, ... The default label of a library material is its name. The
/// project has the name of the file.
/// \throws Failure for an unknown name, a label that is empty, not UTF-8 or repeated, no material at all, an existing file
/// that must be kept, a failed write
Answer newProject(const std::vector<std::string>& materials, const std::vector<std::string>& emptyMaterials,
                  const std::string& path, Existing existing);

/// `vxmat import DOC -o FILE [--force] [--units SYSTEM]`: writes a project file of the materials of a document, whose numbers are
/// in the given units. Restores data that the document does not carry from the catalogue. Doubts are written to standard
/// error; the status is then Findings. A note names the unit system that all numbers of a material fit, if it is another one.
/// \throws Failure if the document cannot be read or is not a material document, if the file exists and must be kept, or
/// if writing fails
Answer importDocument(const std::string& document, const std::string& path, Existing existing,
                      const ChosenUnits& units);

} // namespace commandline
