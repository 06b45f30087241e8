#pragma once

#include "vxConstitutive/Curve.h"

#include <array>
#include <vector>

namespace vxConstitutive {

/// The constants C10, C01 and C11 of Mooney-Rivlin.
using MooneyConstants = std::array<double, 3>;

/// The smallest stiffness of a state by the stiffness of a Neo-Hookean material with C10 = 1, and its derivatives by the
/// constants. Concave in the constants. The state is stable if it is greater than 0.
struct StateMargin
{
    double value = 0.0;
    MooneyConstants slope{};
};

/// The convex region of the constants of Mooney-Rivlin with which a set of states is stable.
class StabilityRegion
{
public:
    /// The states are spread over uniaxial, equibiaxial and planar tests at stretches of `range`, with the unloaded state.
    explicit StabilityRegion(Range range);

    std::size_t size() const { return m_states.size(); }
    StateMargin margin(std::size_t state, const MooneyConstants& constants) const;
    double smallestMargin(const MooneyConstants& constants) const;

private:
    /// The stiffness of C01 = 1 or C11 = 1 for changes of shape, in a basis in which the stiffness of C10 = 1 is the unit
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
