#pragma once

#include <QString>

#include <string>

namespace vxInspector {

/// Returns the bytes of a file with test data.
/// \throws std::runtime_error with a translated text if `path` is not that of a regular file (a pipe or a device may never end),
/// if it cannot be read, or if it has more than 200 MB
std::string readTestFile(const QString& path);

} // namespace vxInspector
