#pragma once

#include "plausibility/MaterialKinds.h"
#include "vxUnits/MaterialValues.h"

#include <array>

namespace vxUnits {

/// The features of a material: logarithms to the base of ten, except Poisson's ratio; NaN for a feature that it does not
/// have.
using Features = std::array<double, featureCount>;

Features featuresOf(const MaterialValues& values);

/// The kind that is nearest to a material.
struct KindFit
{
    const MaterialKind* kind = nullptr; ///< the most likely one: a common kind is taken before a rare one
    double misfit =
        0.0;           ///< of the nearest kind: below 1 inside the spans; grows by the square of the distance from them
    double cost = 0.0; ///< the misfit of `kind` with its rareness
};

KindFit nearestKind(const Features& features);

/// Returns the feature of a quantity; Feature::Count if it is not a feature.
Feature featureOf(std::int32_t id);

} // namespace vxUnits
