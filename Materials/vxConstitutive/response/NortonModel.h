#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Model.h"

#include <vector>

namespace vxConstitutive {

/// Creep by Norton's law with a time exponent, in the rate form:
///
///     de/dt = A s^n t^m          e(t) = A s^n t^(m+1)/(m+1)      at constant stress s
///
/// e is the creep strain without the elastic part, s the Mises stress in Pa, t the time in s since loading. A is in
/// Pa^-n s^-(m+1), so its number depends on the units, n and m. n > 0; -1 < m <= 0 (0: secondary creep). A negative stress
/// creeps equally in the other direction.
///
/// Note: t is the total time of the analysis in CalculiX and the common keyword solvers. CalculiX replaces an A below 1e-20 by
/// 1e-20, which is wrong for most metals in Pa and s, but has no effect in MPa and h.
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

    /// Mode::Creep has a column for each of `stresses`, and with Detail::Full the rates. Mode::CreepRate has the rates at `time`.
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
