#pragma once

#include "program/Answer.h"

#include <optional>
#include <string>

namespace commandline {

class ChosenUnits;

/// What counts as a finding in the exit status.
enum class Strictness
{
    Errors,
    Doubts, ///< errors and doubts
};

/// `vxmat check FILE`: prints the errors in a document or project, one line each with its JSON path. `materialsPath` is
/// the material document or project that belongs to an analysis document; absent if there is none. Doubts about the values
/// and models of materials follow, if the materials can be read, with their numbers in `units`, or in the unit system of the project
/// if none is given. They are no errors, but with Strictness::Doubts the status is Findings for them too.
/// \throws Failure if a file cannot be read
Answer checkFile(const std::string& path, const std::optional<std::string>& materialsPath, Strictness strictness,
                 Form form, const ChosenUnits& units);

} // namespace commandline
