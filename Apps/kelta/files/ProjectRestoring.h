#pragma once

#include "KeptMembers.h"

#include "projectfile/ProjectFile.h"

#include <string>
#include <vector>

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

/// Gives a project that is empty the content of a record, and takes that out of the record. Objects of classes that are
/// not registered become placeholders. What this program cannot give to the objects is in `kept` afterwards, and told in
/// `warnings`, a sentence each. Links that cannot be made are lost, and are added to the doubts of the record.
/// \throws std::exception if an object cannot be added, or a codec cannot read its content; the project is then incomplete
void restoreProject(Obj::Project& project, projectfile::ProjectRecord& record, KeptMembers& kept,
                    std::vector<std::string>& warnings);

} // namespace desktop
