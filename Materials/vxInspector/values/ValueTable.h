#pragma once

#include "subject/InspectedMaterial.h"
#include "table/TableContent.h"
#include "vxUnits/UnitSystem.h"

namespace vxInspector {

/// The columns of the table of values.
struct ValueColumn
{
    enum : int
    {
        Quantity,
        Value,
        Unit,
        Range,
    };
};

/// Returns the values of a material in a unit system in the order of the catalogue, the rows of its editor that cannot
/// be read, and the derived values, which are marked.
TableContent valueTable(const InspectedMaterial& inspected, const vxUnits::UnitSystem& system);

/// Returns a sentence about the material of a table: its label, whether it is suppressed, and whether it has changes that
/// are not applied.
QString materialSentence(const InspectedMaterial& inspected);

} // namespace vxInspector
