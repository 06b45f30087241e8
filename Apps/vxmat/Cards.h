#pragma once

#include "Answer.h"

#include <string>
#include <vector>

namespace vxmat {

/// `vxmat cards NAME|FILE...`: prints the solver cards of library materials and of the materials of documents and
/// projects. Those of projects are complete; documents do not carry words and lists. An argument that is a name of the
/// library and of a file means the material. Doubts about cards are written to standard error and make findings.
/// \throws Failure for what is neither a material nor a readable material document
Answer printCards(const std::vector<std::string>& sources, Form form);

} // namespace vxmat
