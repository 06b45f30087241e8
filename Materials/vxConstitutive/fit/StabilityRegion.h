#pragma once

#include "vxConstitutive/Curve.h"

#include <array>
#include <vector>

namespace vxConstitutive {

/// C10, C01 and C11 of Mooney-Rivlin.
using MooneyConstants = std::array<double, 3>;

/// The smallest stiffness of a state by that of a Neo-Hookean material with C10 = 1, and its derivatives by the
/// constants. It is concave in the constants; the state is stable if it is greater than 0.
struct StateMargin
{
    double value = 0.0;
    MooneyConstants slope{};
};

/// The constants of Mooney-Rivlin with which some states are stable: a convex region.
class StabilityRegion
{
public:
    /// States spread over uniaxial, equibiaxial and planar tests at stretches of `range`, and the state of rest.
    explicit StabilityRegion(Range range);

    std::size_t size() const { return m_states.size(); }
    StateMargin margin(std::size_t state, const MooneyConstants& constants) const;
    double smallestMargin(const MooneyConstants& constants) const;

private:
    /// The stiffness of C01 = 1 or C11 = 1 on the changes of shape, in a basis in which that of C10 = 1 is the unit
    /// matrix.
    struct Matrix
    {
        double uu = 0.0;
        double uv = 0.0;
        double vv = 0.0;
    };
    struct State
    {
        Matrix c01;
        Matrix c11;
    };

    void add(Mode mode, double stretch);

    std::vector<State> m_states;
};

} // namespace vxConstitutive
