#pragma once

#include "subject/InspectedMaterial.h"
#include "vxConstitutive/fit/Fit.h"
#include "vxUnits/UnitSystem.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace vxInspector {

/// A fit that has been written into a material.
struct AppliedResult
{
    vxConstitutive::FitResult result;
    vxConstitutive::MaterialChange change; ///< of the result, and of D1
    std::optional<QStringList>
        tests;               ///< the names of the tests that the material keeps; absent if it keeps none of them
    QStringList removed;     ///< the names of the quantities that the material had before and lost
    bool isInEditor = false; ///< whether the rows of an open editor were changed, not the material
};

/// Returns sentences that say what a fit has written into a material: the constants with units, what was removed, and which
/// tests are kept. `material` is the material after the change.
QString appliedText(const AppliedResult& applied, const InspectedMaterial& material, const vxUnits::UnitSystem& system);

/// Returns whether a material, or the rows of its editor, has the numbers that a fit has written.
bool hasWritten(const vxConstitutive::MaterialChange& change, const InspectedMaterial& material);

/// Returns the names of the quantities that a change takes away from a material.
QStringList removedBy(const vxConstitutive::MaterialChange& change, const InspectedMaterial& material);

} // namespace vxInspector
