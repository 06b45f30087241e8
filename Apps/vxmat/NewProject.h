#pragma once

#include "Answer.h"

#include <string>
#include <vector>

namespace vxmat {

/// `vxmat new NAME[=LABEL]... -o FILE`: makes a project file of library materials, which become the objects 1, 2, ...
/// of the project, each with its label, or its name if none is given. The project is named after the file.
/// \throws Failure for an unknown name, a label that is empty, not UTF-8 or given twice, a failed write
Answer newProject(const std::vector<std::string>& materials, const std::string& path);

/// `vxmat import DOC -o FILE`: makes a project file of a material document. What did not travel is restored from the
/// catalogue; every doubt is written to standard error and makes findings.
/// \throws Failure if the document cannot be read or is not a material document, for a failed write
Answer importDocument(const std::string& document, const std::string& path);

} // namespace vxmat
