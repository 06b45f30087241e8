#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Model.h"

#include <optional>
#include <vector>

namespace vxConstitutive {

class CurveBuilder;

/// True stress against plastic strain, by straight lines between points.
struct HardeningPoint
{
    double plasticStrain = 0.0; ///< logarithmic, 1; the first point has 0
    double stress = 0.0;        ///< true stress, Pa
};

/// The elastic side of a plastic material.
struct ElasticConstants
{
    double youngsModulus = 0.0; ///< Pa
    double poissonsRatio = 0.5; ///< 0.5 if it is not known
};

/// Mises plasticity with isotropic hardening, at one temperature and independent of the rate.
///
/// Bilinear: sigma = sigma_0 + H ep with the initial yield stress sigma_0 (Pa) and the hardening modulus H (Pa): the
/// slope of true stress against plastic strain, not against total strain. Multilinear: straight lines between points,
/// and a constant stress beyond the last one, as solvers continue it. ep is the logarithmic plastic strain, sigma the
/// true stress.
///
/// The tensile test at engineering strain e: ln(1 + e) = sigma/E + ep; the cross section shrinks by
/// exp(-ep - 2 nu sigma/E), so that the engineering stress is s = sigma exp(-ep - 2 nu sigma/E). It is no longer a
/// property of the material once the bar necks, which happens when the force is largest (Considere):
///
///     ds = 0:     H (1/sigma - 2 nu/E) = 1     or, with nu = 0.5 and E infinite, H = sigma
///
/// From there on the curve is NaN. In compression (e < 0) the bar does not neck.
///
/// The yield surface in the meridian plane is the Mises stress sigma_0 at every pressure.
///
/// Sources: R. von Mises, "Mechanik der festen Koerper im plastisch-deformablen Zustand", Nachrichten von der
/// Gesellschaft der Wissenschaften zu Goettingen 1913, 582-592; A. Considere, "Memoire sur l'emploi du fer et de l'acier
/// dans les constructions", Annales des Ponts et Chaussees 9 (1885), 574-775.
class VXCONSTITUTIVE_EXPORT PlasticModel final : public Model
{
public:
    /// Bilinear, up to any strain.
    PlasticModel(double initialYieldStress, double hardeningModulus, std::optional<ElasticConstants> elastic);

    /// Multilinear. At least one point; those whose strain does not rise above the strain before are left out.
    PlasticModel(const std::vector<HardeningPoint>& points, std::optional<ElasticConstants> elastic);
    ~PlasticModel() override;

    std::vector<Mode> modes() const override;
    Curve curve(const CurveRequest& request) const override;
    std::vector<Constant> constants() const override;

    /// The true stress at a plastic strain, Pa; below 0 that at 0.
    double stressAt(double plasticStrain) const;

    /// The engineering strain and stress at which a bar necks; absent without elastic constants, and if it does not
    /// neck in the range of a double.
    struct Necking
    {
        double engineeringStrain = 0.0;
        double engineeringStress = 0.0;
        double trueStress = 0.0;
    };
    std::optional<Necking> necking() const;

private:
    struct State;

    void examine();
    Curve hardeningCurve(const CurveRequest& request) const;
    Curve tensileCurve(const CurveRequest& request) const;
    void addTensileRow(CurveBuilder& builder, double strain) const;
    Curve yieldCurve(const CurveRequest& request) const;
    std::size_t segmentAt(double plasticStrain) const;
    double modulusOf(std::size_t segment) const;
    State stateAt(double logStrain) const;

    std::vector<HardeningPoint> m_points;
    double m_lastModulus = 0.0; ///< beyond the last point
    bool m_bilinear = false;
    std::optional<ElasticConstants> m_elastic;
};

} // namespace vxConstitutive
