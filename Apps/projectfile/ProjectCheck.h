#pragma once

#include "projectfile/ProjectFile.h"

#include <string>
#include <vector>

namespace projectfile::detail {

/// Checks that a project does not contradict itself.
/// \throws ContentError if it does
void checkProject(const ProjectRecord& project);

/// Returns a sentence for each link that is wrong: to an object that is not there, to itself, or a second one to the
/// same object.
std::vector<std::string> findFalseLinks(const ProjectRecord& project);

/// Removes links that are wrong, and returns what is doubtful about a project that has just been read and checked. The
/// objects must be in the order of the file.
std::vector<std::string> takeDoubts(ProjectRecord& project);

} // namespace projectfile::detail
