#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Model.h"

#include <optional>
#include <vector>

namespace vxConstitutive {

/// Linear visco-elasticity in shear with one relaxation time (a Prony series of one term, the standard linear solid):
///
///  - relaxation at constant strain: G(t) = G0 (1 - g + g exp(-t/tau))
///  - creep at constant stress:      J(t) = 1/Ginf - (1/Ginf - 1/G0) exp(-t (1 - g)/tau),  Ginf = (1 - g) G0
///  - at the frequency f, w = 2 pi f: G' = G0 (1 - g + g w^2 tau^2/(1 + w^2 tau^2)),  G'' = G0 g w tau/(1 + w^2 tau^2)
///
/// G0 = E/(2 (1 + nu)) is the instantaneous shear modulus in Pa: Young's modulus and Poisson's ratio are those of fast loading.
/// g is the relaxing part of G0, with 0 <= g < 1. It is the "shear relaxation modulus" of the catalogue, read as the ratio that
/// keyword solvers expect. (With g = 1, the material flows and J rises without bound.) tau > 0 is the relaxation time in s. The
/// change of volume is elastic. If G0 is not known, the curves are multiples of it.
///
/// Source: J. D. Ferry, "Viscoelastic Properties of Polymers", Wiley, 1980, chapters 1 and 3.
class VXCONSTITUTIVE_EXPORT ViscoElasticModel final : public Model
{
public:
    ViscoElasticModel(double ratio, double relaxationTime, std::optional<double> shearModulus);
    ~ViscoElasticModel() override;

    std::vector<Mode> modes() const override;
    Curve curve(const CurveRequest& request) const override;
    std::vector<Constant> constants() const override;

private:
    std::vector<double> row(Mode mode, double abscissa) const;

    double m_ratio;
    double m_time;
    std::optional<double> m_shearModulus;
};

} // namespace vxConstitutive
