#pragma once

#include "projectfile/ProjectFile.h"

#include <json/value.h>

#include <array>
#include <cstdint>
#include <map>
#include <optional>

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace kelta {

/// What project files say beyond what this program knows, to be written back.
struct FurtherMembers
{
    Json::Value project;
    Json::Value database;                         ///< the record of the database as it was read
    std::map<std::uint32_t, Json::Value> objects; ///< by number
};

/// The colour of the node of an object: red, green, blue, opacity; absent without one, as in a program without windows.
std::optional<std::array<float, 4>> colourOf(Obj::ProjectObject& object);

/// What a project file is to say of a project. The materials stay those of the project.
projectfile::ProjectRecord makeRecord(Mat::DocumentMaterial& project, const FurtherMembers& further);

/// Gives a project that is empty the objects of a record, and takes the materials and what is unknown out of that.
/// \throws projectfile::ContentError when there is an object of a class that is none of a material
void fillProject(Obj::Project& project, projectfile::ProjectRecord& record, FurtherMembers& further);

} // namespace kelta
