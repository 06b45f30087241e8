#pragma once

#include "program/Answer.h"
#include "program/Files.h"
#include "vxConstitutive/fit/FittedVolume.h"
#include "vxConstitutive/record/Measurements.h"
#include "vxUnits/UnitSystem.h"

#include <optional>
#include <string>
#include <vector>

namespace commandline {

/// The material of a project file that gets fitted constants.
struct FitTarget
{
    std::string project; ///< the path of the project file
    std::string label;   ///< of the material, which is added if the project does not have it
};

/// Checks that fitted constants can be written to a material, so that a long fit is not in vain.
/// \throws Failure if the file cannot be read or is not a project file, if the label is empty or several materials have
/// it, if a material of this label cannot be added, or if its kept measurements cannot be read
void requireTarget(const FitTarget& target);

/// Returns Young's modulus of a material.
/// \throws Failure if the file cannot be read, or if it has no such material with a Young's modulus greater than 0
double youngsModulusOf(const FitTarget& target);

/// What happens to the D1 of a material that gets the constants of an incompressible fit.
struct D1Setting
{
    std::optional<vxConstitutive::D1Treatment> treatment; ///< absent for FittedVolume::usualTreatment()
    double bulkRatio = vxConstitutive::usualBulkRatio;    ///< with D1Treatment::Set; greater than 0
};

/// A fit that a material gets.
struct KeptFit
{
    const vxConstitutive::FitResult* result = nullptr;            ///< never null
    const std::vector<vxConstitutive::TestData>* tests = nullptr; ///< never null
    vxConstitutive::FitRecord record;
    D1Setting d1;
    const vxUnits::UnitSystem* system = nullptr; ///< of the messages; never null
};

/// Writes the constants of a fit to a material of a project file, and removes the quantities that contradict them. The
/// tests and the record of the fit are kept beside the material: a test replaces a kept one of the same name, the record
/// follows those of earlier fits. Adds to `answer` what happens to the D1 and to Young's modulus of the material, and what is
/// doubtful about the new values.
/// \throws Failure as requireTarget() does, if the kept measurements cannot be read, if another program has the file open,
/// or if it cannot be written; the file is then unchanged
void writeFit(const FitTarget& target, const KeptFit& fit, Existing existing, Answer& answer);

} // namespace commandline
