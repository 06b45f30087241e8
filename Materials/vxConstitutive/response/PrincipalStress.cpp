#include "response/PrincipalStress.h"

#include <cmath>

namespace vxConstitutive {

namespace {

/// The invariant I = sum of l_i^p for p = 2 or -2, and its derivatives by ln l_j for changes of shape.
struct Invariant
{
    double value = 0.0;
    Triple slope{};
    SymmetricTriple curvature{};
};

Invariant invariantOf(const Triple& powers, double exponent)
{
    Invariant invariant;
    invariant.value = powers[0] + powers[1] + powers[2];
    const double square = exponent * exponent;
    for (std::size_t i = 0; i < 3; ++i) {
        invariant.slope[i] = exponent * (powers[i] - invariant.value / 3.0);
        for (std::size_t j = 0; j < 3; ++j)
            invariant.curvature[i][j] = square * (invariant.value / 9.0 - (powers[i] + powers[j]) / 3.0);
        invariant.curvature[i][i] += square * powers[i];
    }
    return invariant;
}

} // namespace

PrincipalStress principalStress(const StrainEnergy& energy, const Triple& stretches)
{
    Triple squares{};
    Triple inverses{};
    for (std::size_t i = 0; i < 3; ++i) {
        squares[i] = stretches[i] * stretches[i];
        inverses[i] = 1.0 / squares[i];
    }
    const Invariant first = invariantOf(squares, 2.0);
    const Invariant second = invariantOf(inverses, -2.0);
    const EnergySlopes w = energy.slopes(first.value, second.value);

    PrincipalStress result;
    for (std::size_t i = 0; i < 3; ++i) {
        result.stress[i] = w.w1 * first.slope[i] + w.w2 * second.slope[i];
        for (std::size_t j = 0; j < 3; ++j) {
            const double mixed = first.slope[i] * second.slope[j] + second.slope[i] * first.slope[j];
            result.stiffness[i][j] = w.w1 * first.curvature[i][j] + w.w2 * second.curvature[i][j] +
                                     w.w11 * first.slope[i] * first.slope[j] + w.w12 * mixed;
        }
    }
    return result;
}

double ShapeStiffness::smallestEigenvalue() const
{
    return 0.5 * (uu + vv) - std::hypot(0.5 * (uu - vv), uv);
}

double ShapeStiffness::largestEigenvalue() const
{
    return 0.5 * (uu + vv) + std::hypot(0.5 * (uu - vv), uv);
}

ShapeStiffness onChangesOfShape(const SymmetricTriple& stiffness)
{
    const SymmetricTriple& h = stiffness;
    // u = (1, -1, 0)/sqrt(2), v = (1, 1, -2)/sqrt(6)
    ShapeStiffness result;
    result.uu = (h[0][0] - 2.0 * h[0][1] + h[1][1]) / 2.0;
    result.vv = (h[0][0] + h[1][1] + 4.0 * h[2][2] + 2.0 * h[0][1] - 4.0 * h[0][2] - 4.0 * h[1][2]) / 6.0;
    result.uv = (h[0][0] - h[1][1] - 2.0 * h[0][2] + 2.0 * h[1][2]) / std::sqrt(12.0);
    return result;
}

Triple TestPath::shape(double logStretch, double logVolumeRatio) const
{
    Triple stretches{};
    for (std::size_t i = 0; i < 3; ++i)
        stretches[i] = std::exp(load[i] * logStretch + (free[i] - 1.0 / 3.0) * logVolumeRatio);
    return stretches;
}

const TestPath& testPath(Mode mode)
{
    static const TestPath uniaxial{{1.0, -0.5, -0.5}, {0.0, 0.5, 0.5}};
    static const TestPath equibiaxial{{1.0, 1.0, -2.0}, {0.0, 0.0, 1.0}};
    static const TestPath planar{{1.0, 0.0, -1.0}, {0.0, 0.0, 1.0}};
    if (mode == Mode::Uniaxial)
        return uniaxial;
    return mode == Mode::Equibiaxial ? equibiaxial : planar;
}

double logStretchOfShear(double amountOfShear)
{
    return std::asinh(amountOfShear / 2.0);
}

} // namespace vxConstitutive
