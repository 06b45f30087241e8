#pragma once

#include "Answer.h"

#include <optional>
#include <string>

namespace commandline {

/// `vxmat check FILE`: prints the errors in a document or project, one line each with its JSON path. `materialsPath` is
/// the material document or project that belongs to an analysis document; absent if there is none.
/// \throws Failure if a file cannot be read
Answer checkFile(const std::string& path, const std::optional<std::string>& materialsPath, Form form);

} // namespace commandline
