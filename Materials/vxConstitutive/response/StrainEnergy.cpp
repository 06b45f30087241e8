#include "vxConstitutive/response/StrainEnergy.h"

#include <cmath>
#include <limits>

namespace vxConstitutive {

StrainEnergy StrainEnergy::mooneyRivlin(double c10, double c01, double c11)
{
    StrainEnergy energy;
    energy.m_c10 = c10;
    energy.m_c01 = c01;
    energy.m_c11 = c11;
    return energy;
}

StrainEnergy StrainEnergy::arrudaBoyce(double mu, double limitingStretch, ChainStatistics chains)
{
    StrainEnergy energy;
    energy.m_form = chains == ChainStatistics::FiveTermSeries ? Form::Series : Form::Langevin;
    energy.m_mu = mu;
    energy.m_limit = limitingStretch;
    return energy;
}

EnergySlopes StrainEnergy::slopes(double i1, double i2) const
{
    if (m_form == Form::Series)
        return seriesSlopes(i1);
    if (m_form == Form::Langevin)
        return langevinSlopes(i1);
    return {m_c10 + m_c11 * (i2 - 3.0), m_c01 + m_c11 * (i1 - 3.0), 0.0, m_c11};
}

ValueAndSlope StrainEnergy::fiveTermSlope(double invariantByLimit)
{
    const double u = invariantByLimit;
    // The coefficient of I1^k in the energy, times k.
    constexpr double b1 = 1.0 / 2.0;
    constexpr double b2 = 2.0 / 20.0;
    constexpr double b3 = 3.0 * 11.0 / 1050.0;
    constexpr double b4 = 4.0 * 19.0 / 7000.0;
    constexpr double b5 = 5.0 * 519.0 / 673750.0;
    return {b1 + u * (b2 + u * (b3 + u * (b4 + u * b5))), b2 + u * (2.0 * b3 + u * (3.0 * b4 + u * 4.0 * b5))};
}

EnergySlopes StrainEnergy::seriesSlopes(double i1) const
{
    const double square = m_limit * m_limit;
    const ValueAndSlope series = fiveTermSlope(i1 / square);
    return {m_mu * series.value, 0.0, m_mu * series.slope / square, 0.0};
}

EnergySlopes StrainEnergy::langevinSlopes(double i1) const
{
    const double x = partOfLimit(i1);
    const ValueAndSlope force = inverseLangevin(x);
    const double ratio = force.value / x;
    const double slopeOfRatio = (force.slope - ratio) / x;
    return {m_mu / 6.0 * ratio, 0.0, m_mu / 6.0 * slopeOfRatio * x / (2.0 * i1), 0.0};
}

double StrainEnergy::initialShearModulus() const
{
    const EnergySlopes atRest = slopes(3.0, 3.0);
    return 2.0 * (atRest.w1 + atRest.w2);
}

bool StrainEnergy::isConvex() const
{
    if (m_form == Form::Series)
        return m_mu > 0.0 && m_limit > 0.0;
    return m_form == Form::Polynomial && m_c11 == 0.0 && m_c10 >= 0.0 && m_c01 >= 0.0 && m_c10 + m_c01 > 0.0;
}

double StrainEnergy::partOfLimit(double i1) const
{
    return m_form == Form::Polynomial ? 0.0 : std::sqrt(i1 / 3.0) / m_limit;
}

double VolumetricEnergy::initialBulkModulus() const
{
    return isIncompressible() ? std::numeric_limits<double>::infinity() : 2.0 / m_d1;
}

ValueAndSlope VolumetricEnergy::kirchhoffStress(double logVolumeRatio) const
{
    // expm1 keeps the digits of stiff materials, whose change of volume is less than the last digit of 1.
    const double ratio = std::exp(logVolumeRatio);
    if (m_form == Form::Logarithmic)
        return {std::expm1(2.0 * logVolumeRatio) / m_d1, 2.0 * ratio * ratio / m_d1};
    return {2.0 * ratio * std::expm1(logVolumeRatio) / m_d1, 2.0 * ratio * (2.0 * ratio - 1.0) / m_d1};
}

} // namespace vxConstitutive
