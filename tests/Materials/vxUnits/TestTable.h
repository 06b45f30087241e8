#pragma once

#include <string>
#include <vector>

namespace vxtest {

/// The rows of a table beside these tests, cells separated by tabs. Lines that begin with '#' are skipped.
std::vector<std::vector<std::string>> readTestTable(const std::string& name);

} // namespace vxtest
