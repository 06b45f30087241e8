#pragma once

#include "vxUnits/Plausibility.h"

#include <string>
#include <vector>

namespace vxUnits {

/// A possible error: one number of a material, all stresses, or all numbers are in other units, or one number has a digit too
/// many or too few.
struct Slip
{
    std::vector<Change> changes;
    std::string system;         ///< the unit system, if all numbers are in another one
    std::string unit;           ///< the unit of stresses, if all of them are in another one
    double rareness = 0.0;      ///< 0 for the usual slips, higher for rare ones
    std::string density;        ///< the unit of the density, if it is in another one together with the stresses
    bool isTypingError = false; ///< whether a digit is missing or too many; explains values, but is no remedy
};

/// Returns the slips that are possible in a material with these quantities. Of their numbers, the exponents of creep
/// matter, and the ratios that may be in percent.
std::vector<Slip> possibleSlips(const MaterialValues& values);

/// Returns the values after the correction of a slip, with rounding errors.
MaterialValues corrected(const MaterialValues& values, const Slip& slip);

} // namespace vxUnits
