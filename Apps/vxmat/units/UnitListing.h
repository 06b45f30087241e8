#pragma once

#include "program/Answer.h"

#include <optional>
#include <string>

namespace commandline {

/// `vxmat units [SYSTEM]`: lists the unit systems, and the unit of each quantity in them. SYSTEM is a system of the user,
/// which is listed after the built-in ones.
/// \throws Failure if SYSTEM is not a unit system
Answer listUnits(const std::optional<std::string>& system, Form form);

} // namespace commandline
