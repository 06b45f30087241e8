#pragma once

#include "program/Answer.h"

#include <string>

namespace commandline {

class ChosenUnits;

/// `vxmat library`: lists the built-in materials, with density and Young's modulus if a unit system is given.
Answer listLibrary(Form form, const ChosenUnits& units);

/// `vxmat catalogue`: lists the quantities, sorted by id, with units and defaults in the given unit system.
Answer listCatalogue(Form form, const ChosenUnits& units);

/// `vxmat show NAME|FILE`: prints a library material, or the materials of a document or project and the other objects
/// of the project, with numbers in the given units. A name that is both a library material and a file means the
/// material.
/// \throws Failure if `name` is neither a material nor a readable file
Answer showMaterial(const std::string& name, Form form, const ChosenUnits& units);

} // namespace commandline
