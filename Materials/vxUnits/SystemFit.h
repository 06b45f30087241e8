#pragma once

#include "vxMaterial/model/Material.h"
#include "vxUnits/Plausibility.h"
#include "vxUnits/UnitSystem.h"
#include "vxUnits/UnitsExport.h"

#include <string>
#include <vector>

namespace vxUnits {

/// Returns the name of the built-in unit system in which the numbers of materials, as they stand, are least doubtful in total
/// (Plausibility.h). Doubts that hold in any unit do not count. Empty if it is the assumed system, or does not leave fewer materials doubted than this one. A few
/// materials that fit no system, or another one, do not change the result for the others. Takes linear time in the number of
/// materials.
VXUNITS_EXPORT std::string betterFittingSystem(const std::vector<const vxMat::MaterialBase*>& materials,
                                               const UnitSystem& assumed);

/// Returns the doubts about a material whose numbers are in a unit system.
VXUNITS_EXPORT std::vector<Doubt> checkPlausibilityIn(const UnitSystem& system, const vxMat::MaterialBase& material);

} // namespace vxUnits
