#pragma once

#include "projectfile/ProjectFile.h"
#include "vxMaterial/json/JsonWriter.h"

namespace projectfile::detail {

/// Writes a material as the next value of the writer.
void writeMaterialRecord(vxjson::JsonWriter& writer, const vxMat::MaterialBase& material);

/// Writes the project as the next value of the writer, with each property of a material on its own line.
void writeProjectRecord(vxjson::JsonWriter& writer, const ProjectRecord& project);

} // namespace projectfile::detail
