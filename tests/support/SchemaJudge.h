#pragma once

#include <string>
#include <vector>

namespace vxtest {

/// What a validator of others says of JSON files by a schema of docs/ ("project-file.schema.json"), a line per fault;
/// empty when they are as the schema wants them. The test fails when the validator cannot do its work.
std::string faultsBySchema(const std::string& schema, const std::vector<std::string>& files);

} // namespace vxtest
