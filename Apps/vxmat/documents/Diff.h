#pragma once

#include "program/Answer.h"

#include <string>

namespace commandline {

class ChosenUnits;

/// `vxmat diff A B`: compares the materials of two files, each a material document or a project, by label and property,
/// and the other objects and the unit systems of two projects. Prints one line for each difference; the status is then Findings. Materials
/// or objects with the same label are paired by number, then in order. If one of the files is a document, data that
/// documents cannot carry is not compared, and a note says so. Numbers are printed in the given units; without
/// them, in the unit system that both projects record.
/// \throws Failure if a file cannot be read or is an analysis document
Answer diffFiles(const std::string& one, const std::string& other, Form form, const ChosenUnits& given);

} // namespace commandline
