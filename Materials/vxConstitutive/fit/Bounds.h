#pragma once

#include <limits>

namespace vxConstitutive {

/// The bounds of a constant. Equal bounds fix it.
struct Bounds
{
    double lower = -std::numeric_limits<double>::infinity();
    double upper = std::numeric_limits<double>::infinity();
};

} // namespace vxConstitutive
