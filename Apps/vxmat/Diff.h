#pragma once

#include "Answer.h"

#include <string>

namespace vxmat {

/// `vxmat diff A B`: what distinguishes the materials of two files, each a material document or a project, by label and
/// property: a line per difference, and findings when there is one. Materials of the same label are paired by number,
/// then in order. What a document cannot carry is left out where one of the files is one, which is said once.
/// \throws Failure when a file cannot be read or holds no materials by its kind
Answer diffFiles(const std::string& one, const std::string& other, Form form);

} // namespace vxmat
