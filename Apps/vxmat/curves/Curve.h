#pragma once

#include "curves/CurveArguments.h"
#include "program/Answer.h"
#include "program/Files.h"
#include "units/ChosenUnits.h"

namespace commandline {

/// `vxmat curve NAME|FILE... --mode MODE (--from A --to B [--points N] [--log] | --at X,Y,...) [--model MODEL]
/// [--incompressible] [--units SYSTEM] [-o FILE] [--force] [--json]`: prints the curves of materials as comma-separated
/// values or JSON, or writes them to a file; a file whose name ends in .svg, .png or .pdf is a picture. What is doubtful about them is written to standard error.
///
/// The status is Findings if nothing can be drawn; nothing is then written.
/// \throws Failure for wrong arguments, an unknown material, a file that cannot be read, a file that exists and must be
/// kept, a failed write
Answer printCurves(const CurveArguments& arguments, Form form, const ChosenUnits& units, Existing existing);

} // namespace commandline
