#pragma once

#include "Answer.h"
#include "Files.h"

#include "vxConstitutive/fit/Fit.h"

#include <string>

namespace commandline {

/// The material of a project file that gets fitted constants.
struct FitTarget
{
    std::string project; ///< the path of the project file
    std::string label;   ///< of the material, which is added if the project does not have it
};

/// Checks that fitted constants can be written to a material, so that a long fit is not in vain.
/// \throws Failure if the file cannot be read or is not a project file, if the label is empty or several materials have
/// it, or if a material of this label cannot be added
void requireTarget(const FitTarget& target);

/// Writes the constants of a fit to a material of a project file, and removes the quantities that contradict them. Adds
/// to `answer` what is doubtful about the new values.
/// \throws Failure as requireTarget() does, if another program has the file open, or if it cannot be written; the file is
/// then unchanged
void writeFit(const FitTarget& target, const vxConstitutive::FitResult& result, Existing existing, Answer& answer);

} // namespace commandline
