#pragma once

#include "projectfile/ProjectFile.h"

#include <string>
#include <vector>

namespace projectfile::detail {

/// Makes sure that a project does not contradict itself.
/// \throws RecordError when it does
void checkProject(const ProjectRecord& project);

/// What in the project stands differently in two places, of which one counts. The project must have been checked, and
/// its objects stand in the order of the file.
std::vector<std::string> findDoubts(const ProjectRecord& project);

} // namespace projectfile::detail
