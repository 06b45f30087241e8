#pragma once

#include "projectfile/ContentError.h"
#include "projectfile/ProjectFileExport.h"
#include "vxMaterial/model/Material.h"

#include <json/value.h>

namespace projectfile {

/// Returns the complete material in the form of the member "material" of project files. Unlike an exchange document,
/// the record has every field of every property: words, lists, units, descriptions and categories, and the number under
/// which the material holds the property. docs/project-files.md describes the members.
/// \throws ContentError if a text is not UTF-8
PROJECTFILE_EXPORT Json::Value writeMaterial(const vxMat::MaterialBase& material);

/// Replaces the content of `material` by the content of a record from writeMaterial. Missing members have their
/// defaults.
/// \throws ContentError if the record is invalid; the material is then unchanged
PROJECTFILE_EXPORT void readMaterial(vxMat::MaterialBase& material, const Json::Value& record);

} // namespace projectfile
