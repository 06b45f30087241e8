#pragma once

#include "subject/InspectedMaterial.h"
#include "table/TableContent.h"

namespace vxInspector {

/// Returns the cards that the solver gets for a material, and before them what they lack or leave out. Their numbers are
/// in the units of the catalogue, whatever the unit system of the inspector.
TableContent cardTable(const InspectedMaterial& inspected);

} // namespace vxInspector
