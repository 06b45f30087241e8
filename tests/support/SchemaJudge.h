#pragma once

#include <string>
#include <vector>

namespace vxtest {

/// Validates JSON files by a schema of docs/ ("project-file.schema.json") with the validator of python3-jsonschema.
/// Returns one line for each fault, or an empty text. The first call starts the validator, which runs until the program
/// ends. The test fails if the validator does not work or the schema is invalid.
std::string faultsBySchema(const std::string& schema, const std::vector<std::string>& files);

} // namespace vxtest
