#pragma once

#include "Answer.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vxmat {

/// `vxmat query FILE`: what the solver side asks of an analysis document. Documents do not carry the number of their
/// project, which tags contain, nor the models of the materials, which decide whether the analysis is nonlinear: the
/// latter are taken from the material document or project at `materialsPath`, when there is one.
/// \throws Failure when a file cannot be read or is no analysis document
Answer queryFile(const std::string& path, const std::optional<std::string>& materialsPath, std::uint32_t projectId,
                 Form form);

} // namespace vxmat
