#pragma once

#include "projectfile/ProjectFile.h"

#include <json/value.h>

namespace projectfile::detail {

/// Reads a material, which is new, from its record. What is not known is passed over.
/// \throws RecordError when the record is none
void readMaterialRecord(const Json::Value& record, vxMat::MaterialBase& material);

/// Reads a project, its objects in the order of the document. What is not known is kept.
/// \throws RecordError when the document is none of a project of this version
ProjectRecord readProjectRecord(const Json::Value& document);

} // namespace projectfile::detail
