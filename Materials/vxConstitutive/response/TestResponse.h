#pragma once

#include "response/PrincipalStress.h"
#include "vxConstitutive/Curve.h"
#include "vxConstitutive/response/StrainEnergy.h"

#include <optional>

namespace vxConstitutive {

/// What a test measures at one abscissa. NaN where there is no state of equilibrium.
struct TestPoint
{
    double nominalStress = 0.0;
    double trueStress = 0.0;
    double slope = 0.0; ///< of the nominal stress by the abscissa
    double normalStressDifference = 0.0;
    double lateralStretch = 1.0;
    double volumeRatio = 1.0;
};

/// A hyperelastic energy in the tests of HyperelasticModel.h.
class TestResponse
{
public:
    /// `volumetric` plays no part if it is incompressible.
    TestResponse(StrainEnergy energy, VolumetricEnergy volumetric) : m_energy(energy), m_volumetric(volumetric) {}

    TestPoint at(Mode mode, double abscissa) const;

    /// Greater than 0 if the state is stable; Pa.
    double stabilityMargin(Mode mode, double abscissa) const;

    /// The first invariant of the shape at an abscissa.
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

    /// ln J at which the third direction is free of stress; NaN if there is none.
    double findLogVolumeRatio(const TestPath& path, double logStretch) const;

    StrainEnergy m_energy;
    VolumetricEnergy m_volumetric;
};

} // namespace vxConstitutive
