#pragma once

#include "projectfile/ProjectFile.h"

#include <json/value.h>

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

/// Returns the record of a project for the host's project database. `earlier` is the record in the file from which the
/// project was opened; its members that this host does not write, of the project and of objects with the same ids, are
/// copied. `record` must contain the class and the objects of the project. A project of a missing class keeps its
/// earlier record.
Json::Value recordDatabase(Obj::Project& project, const projectfile::ProjectRecord& record, const Json::Value& earlier);

} // namespace desktop
