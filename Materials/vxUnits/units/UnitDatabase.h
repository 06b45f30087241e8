#pragma once

#include "units/UnitDefinitions.h"
#include "vxUnits/Unit.h"

#include <optional>
#include <string>
#include <variant>

namespace vxUnits {

/// The reason why the database of UDUNITS cannot be read, with its path.
struct DatabaseFault
{
    std::string reason;
};

/// Returns the unit with a name in the database of UDUNITS, without prefix. Absent if there is none, or if the unit is not a
/// multiple of SI units. Reads the database first if necessary. Safe to call from several threads.
std::variant<std::optional<Atom>, DatabaseFault> findInDatabase(const std::string& name);

} // namespace vxUnits
