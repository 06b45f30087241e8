#pragma once

#include "vxMaterial/exchange/CAESet.h"

#include <string>

namespace vxmat {

/// Reads the sections of a document into a set of its kind.
/// \throws Failure, which names the file, when a value cannot be converted
void readInto(vxCAE::CAESet& set, const std::string& path, const Json::Value& document);

/// A document that is to hold materials.
/// \throws Failure when the file cannot be read or is an analysis without materials
Json::Value readMaterialDocument(const std::string& path);

} // namespace vxmat
