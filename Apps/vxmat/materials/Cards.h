#pragma once

#include "program/Answer.h"

#include <string>
#include <vector>

namespace commandline {

class ChosenUnits;

/// `vxmat cards NAME|FILE...`: prints the solver cards of library materials and of the materials in documents and
/// projects. The cards of documents may be incomplete, because documents do not carry words and lists. An argument that
/// is both a library material and a file means the material. Doubts about cards are written to standard error; the
/// status is then Findings. A note names the unit system of the cards, if one is given.
/// \throws Failure if an argument is neither a material nor a readable material document or project
Answer printCards(const std::vector<std::string>& sources, Form form, const ChosenUnits& units);

} // namespace commandline
