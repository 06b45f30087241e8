#pragma once

#include "projectfile/ProjectFileExport.h"

#include <string>

namespace Obj {
class ProjectObject;
} // namespace Obj

namespace vxMat {
class MaterialBase;
} // namespace vxMat

namespace projectfile {

/// Returns the material that an object of a registered class holds. The object owns it.
using MaterialOf = vxMat::MaterialBase& (*)(Obj::ProjectObject& object);

/// Registers a class whose objects hold a material each. Project files have these objects under "materials", and read
/// and write the materials directly. The module of the class calls this function, so that programs that read and write
/// files do not depend on the module.
PROJECTFILE_EXPORT void registerMaterialClass(const std::string& className, MaterialOf materialOf);

/// Returns the access to the materials of a registered class; null for another class.
PROJECTFILE_EXPORT MaterialOf findMaterialClass(const std::string& className);

} // namespace projectfile
