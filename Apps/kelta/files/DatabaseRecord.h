#pragma once

#include "projectfile/ProjectFile.h"

#include <json/value.h>

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

/// Returns the record of a project for the host's project database. It has what `earlier`, the record in the file that the
/// project was opened from, says beyond what this host knows, of the project and, by their ids, of the objects. `record`
/// already has the class and the objects of the project. A project of a missing class keeps its earlier record.
Json::Value recordDatabase(Obj::Project& project, const projectfile::ProjectRecord& record, const Json::Value& earlier);

} // namespace desktop
