#pragma once

#include "JsonWriter.h"
#include "RecordMembers.h"

#include "projectfile/ProjectFile.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace projectfile::detail {

/// The word for a number that JSON has not; empty for all others.
std::string_view wordOfNumber(double number);

/// The keys of the properties, in their order.
std::vector<std::int32_t> sortedKeys(const vxMat::MaterialBase::PropertyMap& properties);

/// Writes the project as the only value of a text, a property a line.
/// \throws ProjectFileError when it cannot be written so that it reads back as the same
void writeProjectRecord(JsonWriter& writer, const ProjectRecord& project);

} // namespace projectfile::detail
