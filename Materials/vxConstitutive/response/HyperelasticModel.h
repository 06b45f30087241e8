#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Model.h"
#include "vxConstitutive/response/Stability.h"
#include "vxConstitutive/response/StrainEnergy.h"

#include <vector>

namespace vxConstitutive {

class CurveBuilder;
class TestResponse;

/// The constants of a hyperelastic model. Constants of other kinds are ignored.
struct HyperelasticConstants
{
    ModelKind kind = ModelKind::NeoHooke; ///< NeoHooke, MooneyRivlin or ArrudaBoyce
    double c10 = 0.0;                     ///< Pa; Neo-Hookean and Mooney-Rivlin
    double c01 = 0.0;                     ///< Pa; Mooney-Rivlin
    double c11 = 0.0;                     ///< Pa; Mooney-Rivlin, 0 with two constants
    double mu = 0.0;                      ///< Pa; Arruda-Boyce: the factor of the series, not the initial modulus
    double limitingStretch = 0.0;         ///< 1; Arruda-Boyce
    double d1 = 0.0;                      ///< 1/Pa; the bulk modulus is 2/D1; 0 if incompressible
};

/// Below this ratio of bulk to shear modulus, an incompressible curve misrepresents the material: Poisson's ratio is less than
/// 0.475.
inline constexpr double nearlyIncompressible = 20.0;

/// Returns Poisson's ratio of an isotropic elastic material by its bulk and shear modulus; 0.5 if the bulk modulus is infinite.
VXCONSTITUTIVE_EXPORT double poissonsRatio(double bulk, double shear);

/// Rubber: Neo-Hookean, Mooney-Rivlin and Arruda-Boyce, by the energies of StrainEnergy.h.
///
/// With l the stretch of the test, s_i = dW/d(ln l_i) and U the volumetric energy, the true stresses are
/// sigma_i = (s_i + J dU/dJ)/J. The stretch of a direction without stress follows from sigma_3 = 0, on
/// the branch of solutions that begins at the unloaded state. Where this branch ends, there is no value. Hence
/// sigma_1 = (s_1 - s_3)/J, and the nominal stress is P = J sigma_1/l in each of these modes:
///
///  - uniaxial: l_2 = l_3 free. Incompressible: P = 2 (l - l^-2) (W1 + W2/l)
///  - equibiaxial: l_1 = l_2 = l, l_3 free. Incompressible: P = 2 (l - l^-5) (W1 + W2 l^2)
///  - planar: l_2 = 1, l_3 free. Incompressible: P = 2 (l - l^-3) (W1 + W2)
///  - simple shear by the amount g: sigma_12 = P_12 = 2 (W1 + W2) g, sigma_11 - sigma_22 = g sigma_12; J = 1
///  - volumetric: l_1 = l_2 = l_3 = l: sigma = dU/dJ, P = l^2 sigma
///
/// Wk is dW/dIk at the state. Stresses are in Pa, positive in tension. Stretches must be greater than 0. Stresses and slopes are
/// exact to about 12 digits; the slope is a derivative, not a difference quotient.
///
/// A state is stable by Drucker's criterion if every small change of the principal stretches does work:
/// sum of d(tau_i) d(ln l_i) > 0, where tau is the Kirchhoff stress. For an isotropic energy, this is the case if
/// H_ij = ds_i/d(ln l_j) is positive definite for changes of shape and, with D1, d(J dU/dJ)/d(ln J) > 0.
///
/// Sources: R. W. Ogden, "Non-linear elastic deformations", Ellis Horwood, 1984; D. C. Drucker, "A definition of stable
/// inelastic material", Journal of Applied Mechanics 26 (1959), 101-106.
class VXCONSTITUTIVE_EXPORT HyperelasticModel final : public Model
{
public:
    explicit HyperelasticModel(const HyperelasticConstants& constants);
    ~HyperelasticModel() override;

    std::vector<Mode> modes() const override;
    Curve curve(const CurveRequest& request) const override;
    std::vector<Constant> constants() const override;

    /// Returns the shear modulus at stretch 1, in Pa.
    double initialShearModulus() const;

    /// Returns the ranges between two abscissas of a mode in which Drucker's criterion is violated.
    StabilityReport stability(Mode mode, Range range, Compressibility compressibility = Compressibility::AsGiven) const;

    /// Returns the stretch (amount of shear) above the unloaded state at which the chains reach their limit at constant volume;
    /// infinity for models without a limit and in volumetric tests.
    double lockingStretch(Mode mode) const;

private:
    void examine();
    void noteInstability(CurveBuilder& builder, TestResponse& response) const;
    void noteChains(CurveBuilder& builder, TestResponse& response) const;

    HyperelasticConstants m_constants;
    StrainEnergy m_energy;
    VolumetricEnergy m_volumetric;
};

} // namespace vxConstitutive
