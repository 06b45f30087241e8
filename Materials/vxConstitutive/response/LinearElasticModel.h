#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Model.h"

#include <vector>

namespace vxConstitutive {

/// Linear isotropic elasticity, by Hooke's law for small strains e = l - 1 at the stretch l of a test:
///
///  - uniaxial:     sigma = E e
///  - equibiaxial:  sigma = E/(1 - nu) e
///  - planar:       sigma = E/(1 - nu^2) e
///  - simple shear: tau = E/(2 (1 + nu)) g, g the amount of shear
///  - volumetric:   sigma = E/(1 - 2 nu) e
///
/// E > 0 in Pa; -1 < nu < 0.5. Stresses are in Pa. At small strains, nominal and true stress are equal. A curve beyond 5 % has a
/// finding that the law is not valid there. An incompressible curve has nu = 0.5.
///
/// Source: S. Timoshenko, J. N. Goodier, "Theory of Elasticity", McGraw-Hill, 1951, chapter 1.
class VXCONSTITUTIVE_EXPORT LinearElasticModel final : public Model
{
public:
    LinearElasticModel(double youngsModulus, double poissonsRatio);
    ~LinearElasticModel() override;

    std::vector<Mode> modes() const override;
    Curve curve(const CurveRequest& request) const override;
    std::vector<Constant> constants() const override;

private:
    double stiffness(Mode mode, double poissonsRatio) const;

    double m_youngsModulus;
    double m_poissonsRatio;
};

} // namespace vxConstitutive
