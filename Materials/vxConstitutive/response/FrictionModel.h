#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Model.h"

#include <optional>
#include <vector>

namespace vxConstitutive {

class CurveBuilder;

/// The constants in the catalogue for a material whose yield stress rises with the pressure.
struct FrictionConstants
{
    ModelKind kind = ModelKind::DruckerPrager; ///< DruckerPrager or MohrCoulomb
    double frictionAngle = 0.0;                ///< degrees, at least 0 and less than 90
    std::optional<double> hardeningModulus;    ///< Pa
    std::optional<double> viscosity;           ///< as stored; no curve uses it
};

/// Soil, rock and concrete: the yield surface in the meridian plane, Mises stress q against pressure p (Pa, positive in
/// compression), with the friction angle f and the cohesion c.
///
/// Mohr-Coulomb has six sides between two meridians:
///
///  - triaxial compression: q = (6 p sin f + 6 c cos f) / (3 - sin f)
///  - triaxial extension:   q = (6 p sin f + 6 c cos f) / (3 + sin f)
///
/// Drucker-Prager is a cone. There are three usual choices of the cone for a friction angle:
///
///  - outer: through the compression meridian above
///  - inner: through the extension meridian above
///  - plane strain: q = sqrt(3) (3 p tan f + 3 c) / sqrt(9 + 12 tan^2 f), if plastic flow is associated
///
/// The catalogue has no cohesion, no dilation angle and no choice of the cone. The request may have a cohesion; otherwise q and
/// p are multiples of c. The apex is at p = -c cot f. There is no yield surface at lower pressures: the curve is NaN there.
///
/// Sources: C. A. Coulomb, "Essai sur une application des regles de maximis et minimis a quelques problemes de statique",
/// Memoires de l'Academie Royale 7 (1776); D. C. Drucker, W. Prager, "Soil mechanics and plastic analysis or limit
/// design", Quarterly of Applied Mathematics 10 (1952), 157-165.
class VXCONSTITUTIVE_EXPORT FrictionModel final : public Model
{
public:
    explicit FrictionModel(const FrictionConstants& constants);
    ~FrictionModel() override;

    std::vector<Mode> modes() const override;
    Curve curve(const CurveRequest& request) const override;
    std::vector<Constant> constants() const override;

private:
    void addColumns(CurveBuilder& builder) const;

    FrictionConstants m_constants;
};

} // namespace vxConstitutive
