#pragma once

#include "KeptMembers.h"

#include "Kelta/TypeInfo.h"
#include "projectfile/MaterialClasses.h"
#include "projectfile/ProjectFile.h"

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace desktop {

/// Returns the content of a project file for a project of any class. The materials in it are still those of the project.
/// Throws what the codecs of modules throw.
projectfile::ProjectRecord recordProject(Obj::Project& project, const KeptMembers& kept);

/// Returns the access to the materials of a class that holds materials, or of one that descends from it; null for another
/// class.
projectfile::MaterialOf findMaterialAccess(Kelta::TypeInfo type);

/// Returns the material of an object; null if its class holds none.
vxMat::MaterialBase* findMaterial(Obj::ProjectObject& object);

/// Returns the properties of the tree node of an object; null if it has none, as in a program without windows.
Json::Value recordNode(Obj::ProjectObject& object);

/// Returns the content of an object as the codec of its class writes it; null if there is no codec.
Json::Value recordContent(const Obj::ProjectObject& object);

} // namespace desktop
