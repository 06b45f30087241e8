#include "response/VolumeBranch.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace vxConstitutive {

namespace {

/// The largest and the smallest step along the branch. Energies change their curvature over changes of ln l and ln J of about
/// 0.2 and more.
constexpr double largestStep = 0.2;
constexpr double largestChangeOfVolume = 0.05;
constexpr double smallestStep = 1e-7;

/// States closer to each other than this are not remembered.
constexpr double spacing = 0.005;

double product(const Triple& row, const Triple& direction)
{
    return row[0] * direction[0] + row[1] * direction[1] + row[2] * direction[2];
}

} // namespace

VolumeBranch::VolumeBranch(const StrainEnergy& energy, const VolumetricEnergy& volumetric, const TestPath& path)
    : m_energy(energy), m_volumetric(volumetric), m_path(path)
{
    begin();
}

void VolumeBranch::begin()
{
    State rest;
    const FreeStress free = freeStress(0.0, 0.0);
    rest.slope = -free.byStretch / free.byVolume;
    m_states.emplace(0.0, rest);
    if (free.byVolume > 0.0 && std::isfinite(rest.slope))
        return;
    m_lowerEnd = End{0.0, !std::isfinite(free.byVolume)};
    m_upperEnd = m_lowerEnd;
}

VolumeBranch::FreeStress VolumeBranch::freeStress(double logStretch, double logVolume) const
{
    const PrincipalStress state = principalStress(m_energy, m_path.shape(logStretch, logVolume));
    const ValueAndSlope mean = m_volumetric.kirchhoffStress(logVolume);
    const Triple& stiffness = state.stiffness[2];
    return {state.stress[2] + mean.value, product(stiffness, m_path.free) + mean.slope,
            product(stiffness, m_path.load)};
}

std::optional<double> VolumeBranch::at(double logStretch)
{
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    if (!std::isfinite(logStretch))
        return notANumber;
    State state = nearestBefore(logStretch);
    while (state.logStretch != logStretch) {
        const std::optional<End>& end = endOn(logStretch);
        if (end && std::fabs(logStretch) >= std::fabs(end->logStretch))
            return end->overflows ? std::optional(notANumber) : std::nullopt;
        const std::optional<State> next = stepTowards(state, logStretch);
        if (!next) {
            endAt(state, logStretch);
            continue;
        }
        state = *next;
        remember(state);
    }
    return state.logVolume;
}

VolumeBranch::State VolumeBranch::nearestBefore(double logStretch) const
{
    // The unloaded state is always there.
    return logStretch < 0.0 ? m_states.lower_bound(logStretch)->second
                            : std::prev(m_states.upper_bound(logStretch))->second;
}

/// Returns a state on the way to a stretch, as far as one step leads; nothing at the end of the branch.
std::optional<VolumeBranch::State> VolumeBranch::stepTowards(const State& from, double logStretch) const
{
    const double way = logStretch - from.logStretch;
    double step = std::min({std::fabs(way), largestStep, largestChangeOfVolume / std::fabs(from.slope)});
    if (step == std::fabs(way)) {
        if (const auto state = stepTo(from, logStretch))
            return state;
        step *= 0.5;
    }
    while (step >= smallestStep) {
        if (const auto state = stepTo(from, from.logStretch + std::copysign(step, way)))
            return state;
        step *= 0.5;
    }
    return std::nullopt;
}

/// Returns the state at a stretch next to a state; nothing if it is not on the branch.
std::optional<VolumeBranch::State> VolumeBranch::stepTo(const State& from, double logStretch) const
{
    const double guess = from.logVolume + from.slope * (logStretch - from.logStretch);
    const std::optional<State> state = solve(logStretch, guess);
    if (!state || !(std::fabs(state->logVolume - guess) < 0.5 * largestChangeOfVolume))
        return std::nullopt;
    return state;
}

/// Solves for the volume by Newton's method. Returns nothing if it does not converge to a state that is stable against changes
/// of volume.
std::optional<VolumeBranch::State> VolumeBranch::solve(double logStretch, double guess) const
{
    // Newton's method doubles the digits in each step, so that the last step needs no check.
    constexpr double halfOfTheDigits = 1e-8;
    constexpr double nothing = 1e-17;
    State state{logStretch, guess, 0.0};
    for (int iteration = 0; iteration < 8; ++iteration) {
        const FreeStress free = freeStress(logStretch, state.logVolume);
        const double step = -free.value / free.byVolume;
        if (!(free.byVolume > 0.0) || !std::isfinite(step))
            return std::nullopt;
        state.logVolume += step;
        state.slope = -free.byStretch / free.byVolume;
        if (std::fabs(step) <= halfOfTheDigits * std::fabs(state.logVolume) + nothing)
            return std::isfinite(state.slope) ? std::optional(state) : std::nullopt;
    }
    return std::nullopt;
}

void VolumeBranch::remember(const State& state)
{
    const State before = nearestBefore(state.logStretch);
    if (std::fabs(state.logStretch - before.logStretch) > spacing ||
        std::fabs(state.logVolume - before.logVolume) > spacing)
        m_states.emplace(state.logStretch, state);
}

void VolumeBranch::endAt(const State& last, double side)
{
    const double beyond = last.logStretch + std::copysign(smallestStep, side);
    const double stress = freeStress(beyond, last.logVolume).value;
    endOn(side) = End{last.logStretch, !std::isfinite(stress)};
}

} // namespace vxConstitutive
