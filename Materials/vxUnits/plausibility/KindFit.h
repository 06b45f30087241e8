#pragma once

#include "plausibility/MaterialKinds.h"
#include "vxUnits/MaterialValues.h"

#include <array>

namespace vxUnits {

/// The features of a material.
struct Features
{
    /// Logarithms to the base of ten, except Poisson's ratio; NaN for a feature that the material does not have.
    std::array<double, featureCount> values{};
    bool hyperelastic = false; ///< whether the material has constants of a hyperelastic model

    double& operator[](Feature feature) { return values[static_cast<std::size_t>(feature)]; }
    double operator[](Feature feature) const { return values[static_cast<std::size_t>(feature)]; }
};

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

/// Removes what depends on a quantity from the features of a material.
void removeFrom(Features& features, std::int32_t id);

} // namespace vxUnits
