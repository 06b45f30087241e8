#include "fit/StabilityRegion.h"

#include "Spacing.h"

#include "response/PrincipalStress.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vxConstitutive {

namespace {

/// The number of states of each mode on each side of the unloaded state.
constexpr std::size_t statesOfSide = 24;

ShapeStiffness stiffnessOf(const StrainEnergy& energy, const Triple& shape)
{
    return onChangesOfShape(principalStress(energy, shape).stiffness);
}

} // namespace

StabilityRegion::StabilityRegion(Range range)
{
    add(Mode::Uniaxial, 1.0);
    for (const Mode mode : {Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar}) {
        for (const double end : {range.from, range.to}) {
            if (!(end > 0.0) || end == 1.0)
                continue;
            const std::vector<double> stretches = spreadByFactor(1.0, end, statesOfSide + 1);
            std::for_each(stretches.begin() + 1, stretches.end(), [&](double stretch) { add(mode, stretch); });
        }
    }
}

void StabilityRegion::add(Mode mode, double stretch)
{
    const Triple shape = testPath(mode).shape(std::log(stretch), 0.0);
    // Transforms H to inv(L) H inv(L)^T with the Cholesky factor L of the Neo-Hookean stiffness.
    const ShapeStiffness base = stiffnessOf(StrainEnergy::mooneyRivlin(1.0), shape);
    const double l11 = std::sqrt(base.uu);
    const double l21 = base.uv / l11;
    const double l22 = std::sqrt(base.vv - l21 * l21);
    const auto relative = [&](const ShapeStiffness& h) {
        const double uu = h.uu / (l11 * l11);
        const double uv = (h.uv / l11 - uu * l21) / l22;
        const double vv = (h.vv - 2.0 * l21 * h.uv / l11 + l21 * l21 * uu) / (l22 * l22);
        return Matrix{uu, uv, vv};
    };
    const State state{relative(stiffnessOf(StrainEnergy::mooneyRivlin(0.0, 1.0, 0.0), shape)),
                      relative(stiffnessOf(StrainEnergy::mooneyRivlin(0.0, 0.0, 1.0), shape))};
    const Matrix& c01 = state.c01;
    const Matrix& c11 = state.c11;
    const double sum = c01.uu + c01.uv + c01.vv + c11.uu + c11.uv + c11.vv;
    if (std::isfinite(sum))
        m_states.push_back(state);
}

StateMargin StabilityRegion::margin(std::size_t state, const MooneyConstants& constants) const
{
    const Matrix& m01 = m_states[state].c01;
    const Matrix& m11 = m_states[state].c11;
    const auto combine = [&](double c01, double c11) { return constants[1] * c01 + constants[2] * c11; };
    const double uu = combine(m01.uu, m11.uu);
    const double uv = combine(m01.uv, m11.uv);
    const double vv = combine(m01.vv, m11.vv);
    const double radius = std::hypot(0.5 * (uu - vv), uv);

    // (c, s) is the eigenvector of the smallest eigenvalue.
    const double angle = 0.5 * std::atan2(-uv, -0.5 * (uu - vv));
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const auto project = [&](const Matrix& m) { return c * c * m.uu + 2.0 * c * s * m.uv + s * s * m.vv; };
    return {constants[0] + 0.5 * (uu + vv) - radius, {1.0, project(m01), project(m11)}};
}

double StabilityRegion::smallestMargin(const MooneyConstants& constants) const
{
    double smallest = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < m_states.size(); ++i)
        smallest = std::min(smallest, margin(i, constants).value);
    return smallest;
}

} // namespace vxConstitutive
