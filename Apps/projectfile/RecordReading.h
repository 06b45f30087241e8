#pragma once

#include "projectfile/ProjectFile.h"
#include "vxMaterial/json/JsonTree.h"

namespace projectfile::detail {

/// Reads a material, which is new, from its record. Members that are not known are ignored.
/// \throws ContentError if the record is wrong
void readMaterialRecord(const vxjson::JsonNode& record, vxMat::MaterialBase& material);

/// Reads a project, its objects in the order of the document, the materials first. Members that are not known are kept.
/// \throws ContentError if a member is missing or of the wrong kind
ProjectRecord readProjectRecord(const vxjson::JsonNode& document);

} // namespace projectfile::detail
