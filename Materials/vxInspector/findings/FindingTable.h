#pragma once

#include "curves/CurveCache.h"
#include "subject/InspectedMaterial.h"
#include "table/TableContent.h"
#include "vxUnits/UnitSystem.h"

namespace vxInspector {

/// The columns of the table of findings.
struct FindingColumn
{
    enum : int
    {
        Kind,
        Finding,
        Remedy,
        Material, ///< only in a table of several materials
    };
};

/// The number of findings in a table. Further ones are counted.
inline constexpr std::size_t mostFindings = 1000;

/// The number of materials whose models are examined: the curves of rubbers take longer than the other findings.
inline constexpr std::size_t mostExamined = 10;

/// Returns the errors and warnings of the check, the rows that cannot be read, the doubts about the values, and those about
/// the models of the first materials, with their numbers in a unit system. Takes curves of unchanged materials from a cache.
TableContent findingTable(const std::vector<InspectedMaterial>& materials, const vxUnits::UnitSystem& system,
                          CurveCache& cache);
/// Does the same without a cache.
TableContent findingTable(const std::vector<InspectedMaterial>& materials, const vxUnits::UnitSystem& system);

/// Gives the rows of a table of values that have findings a sign, and their names a tool tip with the findings.
void markFindings(const TableContent& findings, TableContent& values);

/// Returns whether the check finds an error or a warning in a material, or one of its rows cannot be read.
bool hasErrors(const InspectedMaterial& inspected);

} // namespace vxInspector
