#pragma once

#include "program/Answer.h"

#include <string>

namespace commandline {

class ChosenUnits;

/// `vxmat find SOURCE EXPRESSION`: prints the materials that an expression of vxUnits/Filter.h finds, with the values that it
/// names. SOURCE is a project, a document, or "library" for the built-in materials. Numbers without a unit and printed
/// numbers are in the given unit system. If none is given, numbers without a unit are in SI, and printed numbers in the unit
/// system that the project records. The status is Findings if no material is found. A note suggests
/// the condition that words for labels look like.
/// \throws Failure if the source or the expression cannot be read; the message about the expression has the place
Answer findMaterials(const std::string& source, const std::string& expression, Form form, const ChosenUnits& units);

} // namespace commandline
