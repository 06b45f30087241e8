#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Model.h"

#include <optional>
#include <vector>

namespace vxConstitutive {

class CurveBuilder;

/// A point of true stress against plastic strain. There are straight lines between points.
struct HardeningPoint
{
    double plasticStrain = 0.0; ///< logarithmic, 1; the first point has 0
    double stress = 0.0;        ///< true stress, Pa
};

/// The elastic constants of a plastic material.
struct ElasticConstants
{
    double youngsModulus = 0.0; ///< Pa
    double poissonsRatio = 0.5; ///< 0.5 if it is not known
};

/// Mises plasticity with isotropic hardening, at one temperature and independent of the rate.
///
/// Bilinear: sigma = sigma_0 + H ep with the initial yield stress sigma_0 (Pa) and the hardening modulus H (Pa), which is the
/// slope of true stress against plastic strain, not against total strain. Multilinear: straight lines between points, and a
/// constant stress after the last point, as in solvers. ep is the logarithmic plastic strain, sigma the true stress.
///
/// The tensile test at engineering strain e: ln(1 + e) = sigma/E + ep. The cross section shrinks by the factor
/// exp(-ep - 2 nu sigma/E), so the engineering stress is s = sigma exp(-ep - 2 nu sigma/E). The curve is no property of the
/// material after the bar necks, which happens at the largest force (Considere):
///
///     ds = 0:     H (1/sigma - 2 nu/E) = 1     or, with nu = 0.5 and E infinite, H = sigma
///
/// If this holds at several strains, as on a plateau after yield, the bar necks where the force is largest of all. After it,
/// the curve is NaN. In compression (e < 0), the bar does not neck.
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

    /// Multilinear. There must be at least one point. A point is left out unless its strain is above the strain before.
    PlasticModel(const std::vector<HardeningPoint>& points, std::optional<ElasticConstants> elastic);
    ~PlasticModel() override;

    std::vector<Mode> modes() const override;
    Curve curve(const CurveRequest& request) const override;
    std::vector<Constant> constants() const override;

    /// Returns the true stress in Pa at a plastic strain; at a negative strain, the stress at 0.
    double stressAt(double plasticStrain) const;

    /// The state in which a bar necks.
    struct Necking
    {
        double engineeringStrain = 0.0;
        double engineeringStress = 0.0;
        double trueStress = 0.0;
    };
    /// Returns the state in which a bar necks; nothing without elastic constants, or if it does not neck in the range of a double.
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
