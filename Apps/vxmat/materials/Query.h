#pragma once

#include "program/Answer.h"

#include <cstdint>
#include <optional>
#include <string>

namespace commandline {

/// `vxmat query FILE`: prints the properties of an analysis that the solver asks for. Analysis documents do not carry
/// the number of their project, which is a part of the tags, nor the material models, which decide whether the analysis
/// is nonlinear. `projectId` is the number; the models are read from the material document or project at
/// `materialsPath`, if it is given.
/// \throws Failure if a file cannot be read or is not an analysis document
Answer queryFile(const std::string& path, const std::optional<std::string>& materialsPath, std::uint32_t projectId,
                 Form form);

} // namespace commandline
