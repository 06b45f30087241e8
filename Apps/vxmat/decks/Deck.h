#pragma once

#include "program/Answer.h"

#include <optional>
#include <string>
#include <vector>

namespace commandline {

/// The arguments of `vxmat deck`.
struct DeckRequest
{
    std::vector<std::string> sources;       ///< library materials, projects and material documents
    std::string solver;                     ///< the name of a format
    std::optional<std::string> units;       ///< the unit system of the deck
    std::optional<std::string> dialect;     ///< the name of a dialect of the format
    std::optional<std::string> fields;      ///< the name of a form of the fields of Nastran
    std::optional<std::string> firstNumber; ///< the number of the first material in the deck
    std::string output = "-";               ///< the file to write
};

/// `vxmat deck MATERIAL|FILE... --solver FORMAT [--units SYSTEM] [--dialect NAME] [--fields FORM] [--ids FROM] [-o FILE]`: writes
/// materials in the input format of a solver. The report of what the deck carries, converts, approximates and loses is written to standard error,
/// or as JSON to standard output; JSON has the text of the deck too, if no file is given. An argument that is both a
/// library material and a file means the material. The status is Findings if a quantity that the format takes cannot be
/// written, or if a file holds no materials.
/// \throws Failure for an unknown solver, unit system or material, an option that the solver does not have,
/// an invalid number or one from which the materials cannot be numbered, an unreadable file, a failed write
Answer writeSolverDeck(const DeckRequest& request, Form form);

/// `vxmat solvers`: lists the formats, and the card that each of them has for each quantity. JSON has the field, the form or
/// the reason, the section of the manual and the proof too.
Answer listSolvers(Form form);

} // namespace commandline
