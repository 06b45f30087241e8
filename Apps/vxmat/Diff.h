#pragma once

#include "Answer.h"

#include <string>

namespace vxmat {

/// `vxmat diff A B`: prints what distinguishes the materials of two files, each a material document or a project, by
/// label and property, and the other objects of two projects: a line for each difference, which makes findings.
/// Materials or objects of the same label are paired by number, then in order. What a document cannot carry is left out
/// if one of the files is a document, which is said once.
/// \throws Failure if a file cannot be read or is of a kind that holds no materials
Answer diffFiles(const std::string& one, const std::string& other, Form form);

} // namespace vxmat
