#pragma once

#include "program/Answer.h"
#include "program/Files.h"
#include "units/ChosenUnits.h"

#include <string>

namespace commandline {

/// The arguments of `import`.
struct ImportRequest
{
    std::string file;
    std::string output;
    Existing existing = Existing::Keep;
    ChosenUnits units;
};

/// `vxmat import FILE -o PROJECT [--force] [--units SYSTEM] [--json]`: writes a project file of the materials of a document or
/// of a deck. The content of the file tells which it is. The numbers are in the given units.
///
/// Of a document, restores data that it does not carry from the catalogue. Doubts are written to standard error; the status is
/// then Findings. Of a deck, reports each quantity and each card; the status is Findings if a card is refused. A note names
/// the unit system that all numbers of a material fit, if it is another one.
/// \throws Failure if the file cannot be read, is neither a material document nor a deck that can be read, or is a deck whose
/// units are not known; if the project exists and must be kept, or if writing fails
Answer importFile(const ImportRequest& request, Form form);

} // namespace commandline
