#pragma once

#include "subject/InspectedMaterial.h"
#include "table/TableContent.h"
#include "vxUnits/UnitSystem.h"

namespace vxInspector {

/// The columns of the table in front of those of the materials.
struct CompareColumn
{
    enum : int
    {
        Quantity,
        Unit,
        Difference,
        FirstMaterial,
    };
};

/// The most materials that are compared side by side.
inline constexpr std::size_t mostCompared = 20;

/// Returns the values of materials side by side in a unit system, the derived ones included. A row with different values
/// is marked by a sign in its own column, and the values that differ from the first material are bold. A dash shows
/// that a material does not have the quantity.
TableContent compareTable(const std::vector<InspectedMaterial>& materials, const vxUnits::UnitSystem& system);

} // namespace vxInspector
