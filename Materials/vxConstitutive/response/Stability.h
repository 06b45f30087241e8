#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Curve.h"

#include <functional>
#include <optional>
#include <vector>

namespace vxConstitutive {

/// Where along a test a model is unstable.
struct StabilityReport
{
    std::vector<Range> unstable;      ///< inside the range that was looked at, in rising order
    std::optional<double> firstBelow; ///< first unstable abscissa on the way down from the state of rest
    std::optional<double> firstAbove; ///< first unstable abscissa on the way up from the state of rest

    bool isStable() const { return unstable.empty(); }
};

/// How fine the search for instabilities is.
inline constexpr std::size_t stabilitySamples = 128;

/// Searches `range` for abscissas where `margin` is not greater than 0, from the state of rest (stretch 1, shear 0)
/// outwards, over 128 samples and the minima between them; the ends of what it finds are exact. Where `margin` is NaN the
/// search ends.
VXCONSTITUTIVE_EXPORT StabilityReport findInstability(const std::function<double(double)>& margin, double rest,
                                                      Range range);

} // namespace vxConstitutive
