#include "response/TestResponse.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vxConstitutive {

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

double product(const Triple& row, const Triple& direction)
{
    return row[0] * direction[0] + row[1] * direction[1] + row[2] * direction[2];
}

/// Finds the zero of a function that mostly rises, near 0. `function` returns value and slope.
template <class Function>
double findZero(const Function& function)
{
    const ValueAndSlope atRest = function(0.0);
    if (atRest.value == 0.0 || !std::isfinite(atRest.value))
        return atRest.value == 0.0 ? 0.0 : notANumber;

    // Goes outwards, faster and faster, until the sign changes.
    constexpr double farthest = 100.0;
    double factor = 2.0;
    double near = 0.0;
    double far = -atRest.value / std::fabs(atRest.slope);
    if (!(std::fabs(far) < 1.0))
        far = std::copysign(0.1, -atRest.value);
    ValueAndSlope atFar = function(far);
    while ((atFar.value > 0.0) == (atRest.value > 0.0)) {
        near = far;
        far *= factor;
        factor *= 2.0;
        if (!(std::fabs(far) < farthest))
            return notANumber;
        atFar = function(far);
    }

    // Newton's method, kept between the two.
    double at = far;
    ValueAndSlope here = atFar;
    for (int step = 0; step < 100 && here.value != 0.0; ++step) {
        ((here.value > 0.0) == (atRest.value > 0.0) ? near : far) = at;
        double next = at - here.value / here.slope;
        if (!(next > std::min(near, far) && next < std::max(near, far)))
            next = 0.5 * (near + far);
        if (std::fabs(next - at) <= 1e-15 * std::fabs(at))
            break;
        at = next;
        here = function(at);
    }
    return at;
}

} // namespace

TestPoint TestResponse::at(Mode mode, double abscissa) const
{
    if (mode == Mode::SimpleShear)
        return sheared(abscissa);
    if (mode == Mode::Volumetric)
        return dilated(abscissa);
    return onPath(testPath(mode), abscissa);
}

TestPoint TestResponse::onPath(const TestPath& path, double stretch) const
{
    const double logStretch = std::log(stretch);
    const double logVolume = m_volumetric.isIncompressible() ? 0.0 : findLogVolumeRatio(path, logStretch);
    const PrincipalStress state = principalStress(m_energy, path.shape(logStretch, logVolume));
    const Triple& h1 = state.stiffness[0];
    const Triple& h3 = state.stiffness[2];

    // How the volume follows the stretch, since the third stress stays 0.
    double volumeSlope = 0.0;
    if (!m_volumetric.isIncompressible()) {
        const double stiffness = product(h3, path.free) + m_volumetric.kirchhoffStress(logVolume).slope;
        volumeSlope = -product(h3, path.load) / stiffness;
    }
    Triple direction{};
    for (std::size_t i = 0; i < 3; ++i)
        direction[i] = path.load[i] + path.free[i] * volumeSlope;

    const double kirchhoff = state.stress[0] - state.stress[2];
    const double kirchhoffSlope = product(h1, direction) - product(h3, direction);
    TestPoint point;
    point.volumeRatio = std::exp(logVolume);
    point.nominalStress = kirchhoff / stretch;
    point.trueStress = kirchhoff / point.volumeRatio;
    point.slope = (kirchhoffSlope - kirchhoff) / (stretch * stretch);
    point.lateralStretch = std::exp(path.load[2] * logStretch + path.free[2] * logVolume);
    return point;
}

double TestResponse::findLogVolumeRatio(const TestPath& path, double logStretch) const
{
    return findZero([&](double logVolume) {
        const PrincipalStress state = principalStress(m_energy, path.shape(logStretch, logVolume));
        const ValueAndSlope mean = m_volumetric.kirchhoffStress(logVolume);
        return ValueAndSlope{state.stress[2] + mean.value, product(state.stiffness[2], path.free) + mean.slope};
    });
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

TestResponse::State TestResponse::stateAt(Mode mode, double abscissa) const
{
    if (mode == Mode::Volumetric)
        return {{1.0, 1.0, 1.0}, 3.0 * std::log(abscissa)};
    const TestPath& path = testPath(mode);
    if (mode == Mode::SimpleShear)
        return {path.shape(logStretchOfShear(abscissa), 0.0), 0.0};
    const double logStretch = std::log(abscissa);
    const double logVolume = m_volumetric.isIncompressible() ? 0.0 : findLogVolumeRatio(path, logStretch);
    return {path.shape(logStretch, logVolume), logVolume};
}

double TestResponse::firstInvariant(Mode mode, double abscissa) const
{
    const State state = stateAt(mode, abscissa);
    return product(state.shape, state.shape);
}

double TestResponse::stabilityMargin(Mode mode, double abscissa) const
{
    const State state = stateAt(mode, abscissa);
    const ShapeStiffness stiffness = onChangesOfShape(principalStress(m_energy, state.shape).stiffness);
    // At extreme stretches the eigenvalues differ by more than a double resolves.
    constexpr double resolution = 1e-13;
    const double margin = stiffness.smallestEigenvalue() - resolution * stiffness.largestEigenvalue();
    if (m_volumetric.isIncompressible() || std::isnan(margin))
        return margin;
    return std::min(margin, m_volumetric.kirchhoffStress(state.logVolumeRatio).slope);
}

} // namespace vxConstitutive
