#pragma once

#include "projectfile/ContentError.h"
#include "projectfile/ProjectFileExport.h"
#include "vxMaterial/model/Material.h"

#include <json/value.h>

namespace projectfile {

/// Returns the complete material, as a project file has it under "material". Unlike an exchange document it has every
/// field of every property, words and lists, units, descriptions and categories, and the number under which each
/// property is held. docs/project-files.md describes the members.
/// \throws ContentError for a text that is not UTF-8
PROJECTFILE_EXPORT Json::Value writeMaterial(const vxMat::MaterialBase& material);

/// Gives `material` the content of a record that writeMaterial made. A member that is missing has its default.
/// \throws ContentError if the record is wrong; the material is then as it was
PROJECTFILE_EXPORT void readMaterial(vxMat::MaterialBase& material, const Json::Value& record);

} // namespace projectfile
