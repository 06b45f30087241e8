#include "response/TestResponse.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace vxConstitutive {

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

double product(const Triple& row, const Triple& direction)
{
    return row[0] * direction[0] + row[1] * direction[1] + row[2] * direction[2];
}

/// An interval at whose ends a function has different signs.
struct Bracket
{
    double near = 0.0; ///< the sign is that at 0
    double far = 0.0;
    ValueAndSlope atFar;
};

/// Steps away from 0, further each time, until the function changes its sign. Returns nothing beyond 100.
template <class Function>
std::optional<Bracket> findBracket(const Function& function, const ValueAndSlope& atRest)
{
    constexpr double farthest = 100.0;
    double factor = 2.0;
    Bracket bracket;
    bracket.far = -atRest.value / std::fabs(atRest.slope);
    if (!(std::fabs(bracket.far) < 1.0))
        bracket.far = std::copysign(0.1, -atRest.value);
    bracket.atFar = function(bracket.far);
    while ((bracket.atFar.value > 0.0) == (atRest.value > 0.0)) {
        bracket.near = bracket.far;
        bracket.far *= factor;
        factor *= 2.0;
        if (!(std::fabs(bracket.far) < farthest))
            return std::nullopt;
        bracket.atFar = function(bracket.far);
    }
    return bracket;
}

/// Returns the zero inside a bracket by Newton's method, with bisection where a step leaves the bracket.
template <class Function>
double findZeroInside(const Function& function, Bracket bracket)
{
    double at = bracket.far;
    ValueAndSlope here = bracket.atFar;
    const bool farIsPositive = here.value > 0.0;
    for (int step = 0; step < 100 && here.value != 0.0; ++step) {
        ((here.value > 0.0) == farIsPositive ? bracket.far : bracket.near) = at;
        double next = at - here.value / here.slope;
        if (!(next > std::min(bracket.near, bracket.far) && next < std::max(bracket.near, bracket.far)))
            next = 0.5 * (bracket.near + bracket.far);
        if (std::fabs(next - at) <= 1e-15 * std::fabs(at))
            break;
        at = next;
        here = function(at);
    }
    return at;
}

/// Returns the zero of a rising function that is next to 0, or NaN. `function` returns value and slope.
template <class Function>
double findZero(const Function& function)
{
    const ValueAndSlope atRest = function(0.0);
    if (atRest.value == 0.0 || !std::isfinite(atRest.value))
        return atRest.value == 0.0 ? 0.0 : notANumber;
    const std::optional<Bracket> bracket = findBracket(function, atRest);
    return bracket ? findZeroInside(function, *bracket) : notANumber;
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

    // The third stress stays 0, which gives the derivative of the volume by the stretch.
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
    // At extreme stretches, the ratio of the eigenvalues exceeds the resolution of a double.
    constexpr double resolution = 1e-13;
    const double margin = stiffness.smallestEigenvalue() - resolution * stiffness.largestEigenvalue();
    if (m_volumetric.isIncompressible() || std::isnan(margin))
        return margin;
    return std::min(margin, m_volumetric.kirchhoffStress(state.logVolumeRatio).slope);
}

} // namespace vxConstitutive
