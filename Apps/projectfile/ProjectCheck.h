#pragma once

#include "projectfile/ProjectFile.h"

#include <string>
#include <vector>

namespace projectfile::detail {

/// Checks that a project is consistent.
/// \throws ContentError if it is not
void checkProject(const ProjectRecord& project);

/// Returns a message for each invalid link: a link to a missing object, a link to the object itself, or a second link
/// to the same object.
std::vector<std::string> findFalseLinks(const ProjectRecord& project);

/// Removes the invalid links of a project that has just been read and checked. Returns messages about these links, and
/// about labels that differ in the database. The objects must be in the order of the file.
std::vector<std::string> takeDoubts(ProjectRecord& project);

} // namespace projectfile::detail
