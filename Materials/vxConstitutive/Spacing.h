#pragma once

#include <cstddef>
#include <vector>

namespace vxConstitutive {

/// Return the values of evenlySpaced and spacedByFactor (Curve.h) for computations: not rounded, hence many times faster.
std::vector<double> spread(double from, double to, std::size_t count);
std::vector<double> spreadByFactor(double from, double to, std::size_t count);

} // namespace vxConstitutive
