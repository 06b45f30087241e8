#pragma once

#include "vxUnits/Quantity.h"
#include "vxUnits/Result.h"
#include "vxUnits/Unit.h"
#include "vxUnits/UnitSystem.h"
#include "vxUnits/UnitsExport.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vxUnits {

/// The number of digits for the shortest text that reads back to the same number.
inline constexpr int shortestDigits = 0;

/// Returns the text of a number, which is in coherent SI units (degrees for an angle), in `unit` and without the unit: 2.1e11
/// in GPa is "210". With shortestDigits, readNumber("210 GPa", Pa) returns exactly the same number; otherwise the text is
/// rounded to `digits` significant digits, at most 17. A temperature is a difference. Numbers that are not finite are
/// "nan", "inf" and "-inf".
VXUNITS_EXPORT std::string writeNumber(double number, const Unit& unit, int digits = shortestDigits);

/// The text of a value, and its unit.
struct WrittenQuantity
{
    std::string number; ///< "210000"
    std::string unit;   ///< "MPa"; empty for pure numbers
};

/// Returns the text of a value, which is in the catalogue's unit, in a unit system. Fails as unitOfQuantity does.
VXUNITS_EXPORT Result<WrittenQuantity> writeQuantity(std::int32_t id, double value, const UnitSystem& system,
                                                     const std::optional<CreepExponents>& creep = std::nullopt,
                                                     int digits = shortestDigits);

} // namespace vxUnits
