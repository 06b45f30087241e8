#pragma once

#include <string>
#include <vector>

namespace vxtest {

/// Validates JSON files by a schema of docs/ ("project-file.schema.json") with the validator of python3-jsonschema.
/// Returns a line for each fault, an empty text if there is none. The first call starts the validator, which runs until
/// the program ends. The test fails if the validator does not work or the schema is not a valid one.
std::string faultsBySchema(const std::string& schema, const std::vector<std::string>& files);

} // namespace vxtest
