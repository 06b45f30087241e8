#pragma once

#include "vxConstitutive/data/TestReading.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace vxConstitutive {

/// Stresses of one creep test, in Pa.
struct StressGroup
{
    double least = 0.0;
    double most = 0.0;
    double mean = 0.0;

    bool has(double stress) const { return stress >= least && stress <= most; }
};

/// The column of a table of creep curves that has the stress of each row.
struct StressColumn
{
    std::size_t column = 0;
    std::optional<double> factor;    ///< from the unit of the column to Pa; absent if it has no such unit
    std::vector<StressGroup> groups; ///< in rising order; empty without a factor, and if there are too many

    /// Returns the group of a stress, which may be 2 % away from it; null if there is none.
    const StressGroup* findGroup(double stress) const;
};

/// Returns the first column whose header names a stress. Neighbouring stresses are of the same test if they differ by at most 2 %:
/// a measured stress scatters.
std::optional<StressColumn> findStressColumn(const TestTable& table, const UnitFactor& units);

} // namespace vxConstitutive
