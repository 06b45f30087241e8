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

/// Returns the content of a project file for a project of any class. The record points to the materials of the project.
/// Throws the exceptions of the modules' codecs.
projectfile::ProjectRecord recordProject(Obj::Project& project, const KeptMembers& kept);

/// Returns the function that gets the material of an object of a class; null if neither the class nor a base class is a
/// material class.
projectfile::MaterialOf findMaterialAccess(Kelta::TypeInfo type);

/// Returns the material of an object; null if its class is not a material class.
vxMat::MaterialBase* findMaterial(Obj::ProjectObject& object);

/// Returns the properties of the tree node of an object; null if it has none, as in a program without windows.
Json::Value recordNode(Obj::ProjectObject& object);

/// Returns the content of an object as the codec of its class writes it; null if there is no codec.
Json::Value recordContent(const Obj::ProjectObject& object);

} // namespace desktop
