#pragma once

#include "program/Answer.h"
#include "program/Files.h"
#include "projectfile/ExchangeImport.h"

#include <string>
#include <vector>

namespace commandline {

/// `vxmat new [NAME[=LABEL]...] [--empty LABEL...] -o FILE [--force]`: writes a project file of library materials and then of
/// materials without quantities, which become the objects 1, 2, ... The default label of a library material is its name. The
/// project has the name of the file.
/// \throws Failure for an unknown name, a label that is empty, not UTF-8 or repeated, no material at all, an existing file
/// that must be kept, a failed write
Answer newProject(const std::vector<std::string>& materials, const std::vector<std::string>& emptyMaterials,
                  const std::string& path, Existing existing);

/// Writes a project file of materials, which has the name of the file. A project for standard output becomes the text of the
/// answer.
/// \throws Failure if the file exists and must be kept, or if writing fails
void writeNewProject(const std::string& path, std::vector<projectfile::ImportedMaterial> materials, Existing existing,
                     Answer& answer);

} // namespace commandline
