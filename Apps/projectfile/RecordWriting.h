#pragma once

#include "projectfile/ProjectFile.h"
#include "vxMaterial/json/JsonWriter.h"

namespace projectfile::detail {

/// Writes a material as the next value.
void writeMaterialRecord(vxjson::JsonWriter& writer, const vxMat::MaterialBase& material);

/// Writes the project as the next value, a property of a material on each line.
void writeProjectRecord(vxjson::JsonWriter& writer, const ProjectRecord& project);

} // namespace projectfile::detail
