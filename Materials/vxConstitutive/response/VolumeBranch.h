#pragma once

#include "response/PrincipalStress.h"
#include "vxConstitutive/response/StrainEnergy.h"

#include <map>
#include <optional>

namespace vxConstitutive {

/// The volume ratio in a test with a free direction: the branch of states of equilibrium that begins at the unloaded state, which
/// is the one that a test follows. Energies that resist changes of volume little have other states of equilibrium, far away
/// from it, and their branch may end.
///
/// The branch is followed in steps from the unloaded state, and remembers the states of the way, so that the states of a curve
/// take a step each, in any order.
class VolumeBranch
{
public:
    /// `volumetric` must not be incompressible.
    VolumeBranch(const StrainEnergy& energy, const VolumetricEnergy& volumetric, const TestPath& path);

    /// Returns ln J at ln l; nothing beyond the end of the branch, and NaN beyond the largest stresses of a double.
    std::optional<double> at(double logStretch);

private:
    /// A state of equilibrium.
    struct State
    {
        double logStretch = 0.0;
        double logVolume = 0.0;
        double slope = 0.0; ///< of ln J by ln l
    };

    /// The stress of the free direction, in Pa, with its derivatives by ln J and ln l.
    struct FreeStress
    {
        double value = 0.0;
        double byVolume = 0.0;
        double byStretch = 0.0;
    };

    /// The end of a branch on one side of the unloaded state.
    struct End
    {
        double logStretch = 0.0;
        bool overflows = false; ///< otherwise no neighbouring state is in equilibrium
    };

    FreeStress freeStress(double logStretch, double logVolume) const;
    void begin();
    State nearestBefore(double logStretch) const;
    std::optional<State> stepTo(const State& from, double logStretch) const;
    std::optional<State> stepTowards(const State& from, double logStretch) const;
    std::optional<State> solve(double logStretch, double guess) const;
    void remember(const State& state);
    std::optional<End>& endOn(double side) { return side > 0.0 ? m_upperEnd : m_lowerEnd; }
    void endAt(const State& last, double side);

    StrainEnergy m_energy;
    VolumetricEnergy m_volumetric;
    TestPath m_path;
    std::map<double, State> m_states; ///< by ln l
    std::optional<End> m_lowerEnd;
    std::optional<End> m_upperEnd;
};

} // namespace vxConstitutive
