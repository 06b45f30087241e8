#pragma once

#include <string>
#include <vector>

namespace vxtest {

/// Returns the path of a file in tests/data.
std::string dataPath(const std::string& name);

/// Returns the rows of a table in tests/data. Tabs separate the cells. Empty lines and lines that begin with '#' are
/// skipped.
std::vector<std::vector<std::string>> readTable(const std::string& name);

/// Returns the content of a file. The test fails if the file cannot be read.
std::string readText(const std::string& path);

} // namespace vxtest
