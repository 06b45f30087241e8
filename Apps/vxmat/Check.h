#pragma once

#include "Answer.h"

#include <optional>
#include <string>

namespace vxmat {

/// `vxmat check FILE`: everything wrong with a document or project, a line each with its JSON path. `materialsPath` is
/// the material document or project that an analysis document goes with; absent when there is none.
/// \throws Failure when a file cannot be read
Answer checkFile(const std::string& path, const std::optional<std::string>& materialsPath, Form form);

} // namespace vxmat
