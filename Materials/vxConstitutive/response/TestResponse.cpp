#include "response/TestResponse.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace vxConstitutive {

namespace {

double product(const Triple& row, const Triple& direction)
{
    return row[0] * direction[0] + row[1] * direction[1] + row[2] * direction[2];
}

} // namespace

TestResponse::TestResponse(Mode mode, const StrainEnergy& energy, const VolumetricEnergy& volumetric)
    : m_mode(mode), m_energy(energy), m_volumetric(volumetric), m_path(testPath(mode))
{
    if (!volumetric.isIncompressible() && mode != Mode::SimpleShear && mode != Mode::Volumetric)
        m_branch.emplace(energy, volumetric, m_path);
}

TestPoint TestResponse::at(double abscissa)
{
    if (m_mode == Mode::SimpleShear)
        return sheared(abscissa);
    if (m_mode == Mode::Volumetric)
        return dilated(abscissa);
    return onPath(abscissa);
}

std::optional<double> TestResponse::logVolumeRatio(double logStretch)
{
    return m_branch ? m_branch->at(logStretch) : std::optional(0.0);
}

TestPoint TestResponse::onPath(double stretch)
{
    const double logStretch = std::log(stretch);
    const std::optional<double> logVolume = logVolumeRatio(logStretch);
    TestPoint point;
    point.inEquilibrium = logVolume.has_value();
    if (!logVolume)
        return point;
    const PrincipalStress state = principalStress(m_energy, m_path.shape(logStretch, *logVolume));
    const Triple direction = directionAt(state, *logVolume);
    const double kirchhoff = state.stress[0] - state.stress[2];
    const double kirchhoffSlope = product(state.stiffness[0], direction) - product(state.stiffness[2], direction);
    point.volumeRatio = std::exp(*logVolume);
    point.nominalStress = kirchhoff / stretch;
    point.trueStress = kirchhoff / point.volumeRatio;
    point.slope = (kirchhoffSlope - kirchhoff) / (stretch * stretch);
    point.lateralStretch = std::exp(m_path.load[2] * logStretch + m_path.free[2] * *logVolume);
    return point;
}

Triple TestResponse::directionAt(const PrincipalStress& state, double logVolume) const
{
    if (!m_branch)
        return m_path.load;
    // The third stress stays 0, which gives the derivative of the volume by the stretch.
    const Triple& third = state.stiffness[2];
    const double stiffness = product(third, m_path.free) + m_volumetric.kirchhoffStress(logVolume).slope;
    const double volumeSlope = -product(third, m_path.load) / stiffness;
    Triple direction = m_path.load;
    for (std::size_t i = 0; i < direction.size(); ++i)
        direction[i] += m_path.free[i] * volumeSlope;
    return direction;
}

TestPoint TestResponse::sheared(double amount) const
{
    const double invariant = 3.0 + amount * amount;
    const EnergySlopes w = m_energy.slopes(invariant, invariant);
    TestPoint point;
    point.nominalStress = 2.0 * (w.w1 + w.w2) * amount;
    point.trueStress = point.nominalStress;
    point.slope = 2.0 * (w.w1 + w.w2) + 4.0 * (w.w11 + 2.0 * w.w12) * amount * amount;
    point.normalStressDifference = amount * point.trueStress;
    return point;
}

TestPoint TestResponse::dilated(double stretch) const
{
    const ValueAndSlope kirchhoff = m_volumetric.kirchhoffStress(3.0 * std::log(stretch));
    TestPoint point;
    point.volumeRatio = stretch * stretch * stretch;
    point.lateralStretch = stretch;
    point.nominalStress = kirchhoff.value / stretch;
    point.trueStress = kirchhoff.value / point.volumeRatio;
    point.slope = (3.0 * kirchhoff.slope - kirchhoff.value) / (stretch * stretch);
    return point;
}

TestResponse::State TestResponse::stateAt(double abscissa)
{
    if (m_mode == Mode::Volumetric)
        return {{1.0, 1.0, 1.0}, 3.0 * std::log(abscissa)};
    if (m_mode == Mode::SimpleShear)
        return {m_path.shape(logStretchOfShear(abscissa), 0.0), 0.0};
    const double logStretch = std::log(abscissa);
    const double logVolume = logVolumeRatio(logStretch).value_or(std::numeric_limits<double>::quiet_NaN());
    return {m_path.shape(logStretch, logVolume), logVolume};
}

double TestResponse::firstInvariant(double abscissa)
{
    const State state = stateAt(abscissa);
    return product(state.shape, state.shape);
}

double TestResponse::stabilityMargin(double abscissa)
{
    const State state = stateAt(abscissa);
    const ShapeStiffness stiffness = onChangesOfShape(principalStress(m_energy, state.shape).stiffness);
    // At extreme stretches, the ratio of the eigenvalues exceeds the resolution of a double.
    constexpr double resolution = 1e-13;
    const double margin = stiffness.smallestEigenvalue() - resolution * stiffness.largestEigenvalue();
    if (m_volumetric.isIncompressible() || std::isnan(margin))
        return margin;
    return std::min(margin, m_volumetric.kirchhoffStress(state.logVolumeRatio).slope);
}

} // namespace vxConstitutive
