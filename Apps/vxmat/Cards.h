#pragma once

#include "Answer.h"

#include <string>
#include <vector>

namespace vxmat {

/// `vxmat cards NAME|FILE...`: the solver cards of library materials and of the materials of documents and
/// projects. Of a project they are complete; documents leave words and lists behind. A name of the library wins over a file of that name. Doubts about cards go to standard error and make findings.
/// \throws Failure for what is neither a material nor a readable material document
Answer printCards(const std::vector<std::string>& sources, Form form);

} // namespace vxmat
