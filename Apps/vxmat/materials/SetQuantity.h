#pragma once

#include "program/Answer.h"
#include "program/Files.h"

#include <optional>
#include <string>

namespace commandline {

/// The arguments of `vxmat set`.
struct Setting
{
    std::string project;  ///< the path of the project file
    std::string material; ///< the label of a material, or its number
    std::string quantity; ///< the name, key, symbol or id of a quantity, as filters take it
    std::optional<std::string>
        value; ///< a number with or without a unit, a list of numbers, a word, or "on" for a switch
    std::optional<std::string> projectUnits; ///< the unit system in which the project is shown; empty to remove it
};

/// `vxmat set PROJECT [MATERIAL QUANTITY VALUE] [--project-units SYSTEM] [--force]`: gives a material of a project file a
/// quantity, or changes its value, and prints how the value was read. A number without a unit is in the unit of the
/// catalogue. Doubts about the quantity are written to standard error. With `projectUnits`, records the unit system in which
/// the project is shown, or removes it, and prints it; the material may then be missing. The message about an unknown
/// material or quantity suggests the nearest names.
/// \throws Failure if the file cannot be read or written, if another program has it open, if there is no such material,
/// quantity or unit system, or if the value is missing, cannot be read or breaks a rule; the file is then unchanged
Answer setQuantity(const Setting& setting, Existing existing);

} // namespace commandline
