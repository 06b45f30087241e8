#pragma once

#include <string>
#include <vector>

namespace vxtest {

/// The path of a file under tests/data.
std::string dataPath(const std::string& name);

/// The rows of a table under tests/data, cells separated by tabs. Lines that begin with '#' are skipped.
std::vector<std::vector<std::string>> readTable(const std::string& name);

/// The content of a file; the test fails if it cannot be read.
std::string readText(const std::string& path);

} // namespace vxtest
