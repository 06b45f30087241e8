#pragma once

#include "vxUnits/Message.h"
#include "vxUnits/Result.h"
#include "vxUnits/UnitSystem.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Values as users type them: "210 GPa", "250, 300 MPa", "7850". Numbers without a unit are in the SI unit of the
/// quantity, whatever the unit system in which the project is shown. The decimal sign is a point in every locale.
namespace desktop {

/// A value that was read.
struct TypedValue
{
    std::string
        stored; ///< the text that tables and materials hold: numbers in the SI unit, without it, separated by ", "
    std::vector<double> numbers; ///< in the SI unit; one, unless the value of the quantity is a list
    std::string understood;      ///< "210 GPa = 2.1e+11 Pa"
    vxUnits::Message note;       ///< a remark about the unit; the id is empty if there is none
};

/// Returns whether the value of a quantity is a list of numbers.
bool takesList(std::int32_t id);

/// Returns whether the value of a quantity is a number or a list of numbers, and no word or switch. False for ids that
/// the catalogue does not have.
bool takesNumbers(std::int32_t id);

/// Reads the value of a quantity that takes numbers. `creep` has the exponents of the material, on which the unit of its
/// creep factor depends. Takes linear time in the length of the text.
vxUnits::Result<TypedValue> readTyped(std::int32_t id, std::string_view text,
                                      const std::optional<vxUnits::CreepExponents>& creep);

/// Returns the SI unit of a quantity that takes numbers: "Pa"; "1" for pure numbers; "Pa^-N s^-(M+1)" for the creep factor
/// of a material without exponents. It can differ from the unit text of the catalogue, which is wrong for some quantities.
std::string siUnitOf(std::int32_t id, const std::optional<vxUnits::CreepExponents>& creep);

} // namespace desktop
