#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/data/TestData.h"

#include <optional>
#include <string_view>

namespace vxConstitutive {

/// Returns the factor from a unit to SI: 1e6 for "MPa", 0.01 for "%", 1/3600 for "1/h" or "h^-1". Reads every unit that
/// vxUnits knows. Returns nothing if the text is not a unit, or a unit of another dimension.
///
/// This is the UnitFactor of the programs:
///
///     const TestTable table = readTestTable(bytes, unitFactor);
VXCONSTITUTIVE_EXPORT std::optional<double> unitFactor(std::string_view unit, Dimension dimension);

} // namespace vxConstitutive
