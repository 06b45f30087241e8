#pragma once

#include "Answer.h"
#include "Files.h"

#include <string>

namespace commandline {

/// The arguments of `vxmat set`.
struct Setting
{
    std::string project;  ///< the path of the project file
    std::string material; ///< the label of a material, or its number
    std::string quantity; ///< the name, key or id of a quantity
    std::string value;    ///< a number with or without a unit, a list of numbers, a word, or "on" for a switch
};

/// `vxmat set PROJECT MATERIAL QUANTITY VALUE [--force]`: gives a material of a project file a quantity, or changes its
/// value, and prints how the value was read. A number without a unit is in the unit of the catalogue. Doubts about the
/// quantity are written to standard error.
/// \throws Failure if the file cannot be read or written, if another program has it open, if there is no such material or
/// quantity, or if the value cannot be read or breaks a rule; the file is then unchanged
Answer setQuantity(const Setting& setting, Existing existing);

} // namespace commandline
