#pragma once

#include "Answer.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vxmat {

/// `vxmat query FILE`: prints what the solver side asks of an analysis document. Documents do not carry the number of
/// their project, which tags contain, nor the models of the materials, on which it depends whether the analysis is
/// nonlinear: those are taken from the material document or project at `materialsPath`, if there is one.
/// \throws Failure if a file cannot be read or is not an analysis document
Answer queryFile(const std::string& path, const std::optional<std::string>& materialsPath, std::uint32_t projectId,
                 Form form);

} // namespace vxmat
