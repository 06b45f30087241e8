#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Model.h"

#include <vector>

namespace vxConstitutive {

/// Creep by Norton's law with a time exponent, in the rate form:
///
///     de/dt = A s^n t^m          e(t) = A s^n t^(m+1)/(m+1)      at constant stress s
///
/// e is the creep strain without the elastic part, s the Mises stress in Pa, t the time in s since the load was put on.
/// A is in Pa^-n s^-(m+1), its number therefore depends on the units and on n and m; n > 0; -1 < m <= 0 (0: secondary
/// creep). A stress below 0 creeps alike in the other direction.
///
/// Note: CalculiX and the common keyword solvers take the total time of the analysis for t, and CalculiX an A below 1e-20
/// for 1e-20: in Pa and s that is wrong for most metals, in MPa and h it is right.
///
/// Sources: F. H. Norton, "The Creep of Steel at High Temperatures", McGraw-Hill, 1929; R. W. Bailey, "The utilization of
/// creep test data in engineering design", Proceedings of the Institution of Mechanical Engineers 131 (1935), 131-349
/// (the time exponent).
class VXCONSTITUTIVE_EXPORT NortonModel final : public Model
{
public:
    NortonModel(double a, double stressExponent, double timeExponent);
    ~NortonModel() override;

    std::vector<Mode> modes() const override;

    /// Creep: a column for each of `stresses`; with Detail::Full the rates too. CreepRate: the rates at `time`.
    Curve curve(const CurveRequest& request) const override;
    std::vector<Constant> constants() const override;

private:
    Curve strains(const CurveRequest& request) const;
    Curve rates(const CurveRequest& request) const;
    double rate(double stress, double time) const;
    double strain(double stress, double time) const;

    double m_a;
    double m_stressExponent;
    double m_timeExponent;
};

} // namespace vxConstitutive
