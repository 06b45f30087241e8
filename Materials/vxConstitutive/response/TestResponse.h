#pragma once

#include "response/PrincipalStress.h"
#include "response/VolumeBranch.h"
#include "vxConstitutive/Curve.h"
#include "vxConstitutive/response/StrainEnergy.h"

#include <optional>

namespace vxConstitutive {

/// The measured quantities of a test at one abscissa.
struct TestPoint
{
    bool inEquilibrium = true; ///< otherwise the numbers have no meaning
    double nominalStress = 0.0;
    double trueStress = 0.0;
    double slope = 0.0; ///< of the nominal stress by the abscissa
    double normalStressDifference = 0.0;
    double lateralStretch = 1.0;
    double volumeRatio = 1.0;
};

/// The response of a hyperelastic energy in a test of HyperelasticModel.h. Numbers beyond those of a double are infinite or NaN.
class TestResponse
{
public:
    /// `volumetric` has no effect if it is incompressible.
    TestResponse(Mode mode, const StrainEnergy& energy, const VolumetricEnergy& volumetric);

    TestPoint at(double abscissa);

    /// Returns whether each state is known to be stable.
    bool isStableEverywhere() const { return m_volumetric.isIncompressible() && m_energy.isConvex(); }

    /// Returns a number in Pa that is greater than 0 if the state is stable; NaN if there is no state of equilibrium.
    double stabilityMargin(double abscissa);

    /// Returns the first invariant of the shape at an abscissa; NaN if there is no state of equilibrium.
    double firstInvariant(double abscissa);

private:
    struct State
    {
        Triple shape;
        double logVolumeRatio;
    };

    TestPoint onPath(double stretch);
    TestPoint sheared(double amount) const;
    TestPoint dilated(double stretch) const;
    State stateAt(double abscissa);

    /// Returns the derivatives of the logarithms of the stretches by that of the test.
    Triple directionAt(const PrincipalStress& state, double logVolume) const;

    /// Returns ln J at which the third direction has no stress; nothing if there is none.
    std::optional<double> logVolumeRatio(double logStretch);

    Mode m_mode;
    StrainEnergy m_energy;
    VolumetricEnergy m_volumetric;
    const TestPath& m_path;
    std::optional<VolumeBranch> m_branch; ///< of compressible energies, in tests with a free direction
};

} // namespace vxConstitutive
