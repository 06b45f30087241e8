#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Curve.h"

#include <functional>
#include <optional>
#include <vector>

namespace vxConstitutive {

/// The unstable ranges of a model in a test.
struct StabilityReport
{
    std::vector<Range> unstable;      ///< inside the searched range, in rising order
    std::optional<double> firstBelow; ///< first unstable abscissa below the unloaded state
    std::optional<double> firstAbove; ///< first unstable abscissa above the unloaded state

    bool isStable() const { return unstable.empty(); }
};

/// The number of samples in the search for instabilities.
inline constexpr std::size_t stabilitySamples = 128;

/// Returns the ranges inside `range` in which `margin` is not greater than 0. Searches away from the unloaded state `rest`
/// (stretch 1, shear 0) with 128 samples and the minima between them. The ends of the ranges are exact. Stops if `margin` is
/// NaN.
VXCONSTITUTIVE_EXPORT StabilityReport findInstability(const std::function<double(double)>& margin, double rest,
                                                      Range range);

} // namespace vxConstitutive
