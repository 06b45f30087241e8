#pragma once

#include "vxUnits/UnitSystem.h"

#include <string>

namespace vxDecks {

/// Returns the base units of a system for a comment: "mm, t, s, K, A".
std::string baseUnits(const vxUnits::UnitSystem& units);

} // namespace vxDecks
