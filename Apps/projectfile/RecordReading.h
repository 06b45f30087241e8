#pragma once

#include "projectfile/ProjectFile.h"
#include "vxMaterial/json/JsonTree.h"

namespace projectfile::detail {

/// Reads a record into a new material. Ignores unknown members.
/// \throws ContentError if the record is invalid
void readMaterialRecord(const vxjson::JsonNode& record, vxMat::MaterialBase& material);

/// Reads a project. The objects are in the order of the document. Keeps unknown members.
/// \throws ContentError if a member is missing or of the wrong kind
ProjectRecord readProjectRecord(const vxjson::JsonNode& document);

} // namespace projectfile::detail
