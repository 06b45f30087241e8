#pragma once

#include "KeptMembers.h"

#include "projectfile/ProjectFile.h"

#include <string>
#include <vector>

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

/// Moves the content of a record into an empty project. Objects of classes that are not registered become placeholders.
/// Parts that this program cannot put into the objects are stored in `kept` and reported in `warnings`, a sentence
/// each. Links that cannot be made are lost, and are reported in the doubts of the record.
/// \throws std::exception if an object cannot be added or a codec cannot read content; the project is then incomplete
void restoreProject(Obj::Project& project, projectfile::ProjectRecord& record, KeptMembers& kept,
                    std::vector<std::string>& warnings);

} // namespace desktop
