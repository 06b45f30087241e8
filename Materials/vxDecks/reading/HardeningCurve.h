#pragma once

#include "reading/MaterialReading.h"

#include <vector>

namespace vxDecks {

/// Gives a material a hardening curve of yield stresses over plastic strains, which must have the same number of points, at least
/// one. Reports a curve as doubtful if it does not begin at the plastic strain 0, or if its strains do not ascend.
void setHardeningCurve(MaterialReading& material, std::vector<double> stresses, std::vector<double> strains);

} // namespace vxDecks
