#pragma once

#include "vxUnits/Message.h"
#include "vxUnits/Quantity.h"
#include "vxUnits/Result.h"
#include "vxUnits/Unit.h"
#include "vxUnits/UnitSystem.h"
#include "vxUnits/UnitsExport.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Reads numbers as users type them: "210 GPa", "7.85 g/cm^3", "30 %", "2.1×10¹¹ Pa", "7850". The decimal sign is a point in
/// any locale. A failure has the reason and, if one is near, a spelling that is accepted.
///
/// Every function takes linear time in the length of the text and is safe to call from several threads.
namespace vxUnits {

/// A number that was read.
struct Reading
{
    double value = 0.0;     ///< in the unit that the caller asked for
    std::string understood; ///< "210 GPa = 2.1e+11 Pa"; "7850 kg/m^3" if nothing was converted
    Message note; ///< a remark about the unit, for example which calorie it is; the id is empty if there is none
};

/// A list of numbers that was read.
struct ListReading
{
    std::vector<double> values;
    std::string understood; ///< "250, 300 MPa = 2.5e+08, 3e+08 Pa"
    Message note;
};

/// The context of a value that is read.
struct ReadingContext
{
    const UnitSystem* plainNumbers = nullptr; ///< the unit system of numbers without a unit; null for SI
    std::optional<CreepExponents> creep;      ///< the exponents of the material, for its creep factor
};

/// Reads a number and converts it to `unit`. A number without a unit is in `unit`. `meaning` decides what "20 degC" is; it
/// has no effect on products of units.
VXUNITS_EXPORT Result<Reading> readNumber(std::string_view text, const Unit& unit,
                                          TemperatureMeaning meaning = TemperatureMeaning::Refused);

/// Reads a value of a quantity, in the unit of the catalogue. For a quantity whose value is a list, reads one element.
///
///     readQuantity(PropertyId::Density, "7.85 g/cm^3")->value == 7850.0
VXUNITS_EXPORT Result<Reading> readQuantity(std::int32_t id, std::string_view text, const ReadingContext& context = {});

/// Reads a list of values of a quantity: "0, 0.05, 0.1", "250, 300 MPa" with one unit for all, "250 MPa; 0.3 GPa" with one
/// for each. The numbers are separated by commas, semicolons, tabs or ends of lines, not by blanks.
VXUNITS_EXPORT Result<ListReading> readQuantityList(std::int32_t id, std::string_view text,
                                                    const ReadingContext& context = {});

} // namespace vxUnits
