#pragma once

#include "response/PrincipalStress.h"
#include "vxConstitutive/Curve.h"
#include "vxConstitutive/response/StrainEnergy.h"

#include <optional>

namespace vxConstitutive {

/// The measured quantities of a test at one abscissa; NaN if there is no state of equilibrium.
struct TestPoint
{
    double nominalStress = 0.0;
    double trueStress = 0.0;
    double slope = 0.0; ///< of the nominal stress by the abscissa
    double normalStressDifference = 0.0;
    double lateralStretch = 1.0;
    double volumeRatio = 1.0;
};

/// The response of a hyperelastic energy in the tests of HyperelasticModel.h.
class TestResponse
{
public:
    /// `volumetric` has no effect if it is incompressible.
    TestResponse(StrainEnergy energy, VolumetricEnergy volumetric) : m_energy(energy), m_volumetric(volumetric) {}

    TestPoint at(Mode mode, double abscissa) const;

    /// Returns a number in Pa that is greater than 0 if the state is stable.
    double stabilityMargin(Mode mode, double abscissa) const;

    /// Returns the first invariant of the shape at an abscissa.
    double firstInvariant(Mode mode, double abscissa) const;

private:
    struct State
    {
        Triple shape;
        double logVolumeRatio;
    };

    TestPoint onPath(const TestPath& path, double stretch) const;
    TestPoint sheared(double amount) const;
    TestPoint dilated(double stretch) const;
    State stateAt(Mode mode, double abscissa) const;

    /// Returns ln J at which the third direction has no stress; NaN if there is none.
    double findLogVolumeRatio(const TestPath& path, double logStretch) const;

    StrainEnergy m_energy;
    VolumetricEnergy m_volumetric;
};

} // namespace vxConstitutive
