#include "fit/HyperelasticFitParts.h"
#include "fit/StabilityRegion.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace vxConstitutive {

namespace {

using vxMat::PropertyId;

constexpr std::array<const char*, 3> symbols{"C10", "C01", "C11"};
constexpr std::array<std::int32_t, 3> propertyIds{PropertyId::MaterialConstantC10, PropertyId::MaterialConstantC01,
                                                  PropertyId::MaterialConstantC11};

StrainEnergy energyOf(const MooneyConstants& c)
{
    return StrainEnergy::mooneyRivlin(c[0], c[1], c[2]);
}

/// The linear least squares problem of the constants in units of the largest stress.
class MooneyProblem
{
public:
    MooneyProblem(const HyperelasticFitData& data, std::size_t count)
        : m_data(data), m_count(count), m_scale(data.shape.largestOrdinate)
    {
        for (std::size_t k = 0; k < count; ++k) {
            MooneyConstants one{};
            one[k] = m_scale;
            m_columns.push_back(columnOf(energyOf(one)));
            m_bounds.push_back(scaledBounds(k));
        }
        for (const FitPoint& point : data.shape.points)
            m_target.push_back(point.factor * point.y);
        findIndependent();
    }

    const std::vector<Bounds>& bounds() const { return m_bounds; }
    double scale() const { return m_scale; }
    bool isIndependent(std::size_t k) const { return m_independent[k]; }

    LeastSquares problem() const
    {
        LeastSquares problem;
        problem.residuals = m_target.size();
        problem.bounds = m_bounds;
        problem.evaluate = [this](const double* c, double* residuals, double* jacobian) {
            evaluate(c, residuals, jacobian);
            return true;
        };
        return problem;
    }

    /// Returns the problem with penalties for states whose stability is less than `margin`.
    LeastSquares penalised(const StabilityRegion& region, double weight, double margin) const
    {
        LeastSquares problem;
        const std::size_t rows = m_target.size();
        problem.residuals = rows + region.size();
        problem.bounds = m_bounds;
        const double factor = std::sqrt(weight / static_cast<double>(region.size()));
        problem.evaluate = [=, &region](const double* c, double* residuals, double* jacobian) {
            evaluate(c, residuals, jacobian);
            for (std::size_t i = 0; i < region.size(); ++i)
                penalise(region.margin(i, expand(c)), margin, factor, residuals + rows + i,
                         jacobian != nullptr ? jacobian + (rows + i) * m_count : nullptr);
            return true;
        };
        return problem;
    }

    MooneyConstants expand(const double* c) const
    {
        MooneyConstants constants{};
        std::copy(c, c + m_count, constants.begin());
        return constants;
    }

private:
    std::vector<double> columnOf(const StrainEnergy& energy) const
    {
        std::vector<double> column;
        for (const FitPoint& point : m_data.shape.points)
            column.push_back(point.factor * incompressibleStress(energy, point.test->mode, point.x));
        return column;
    }

    Bounds scaledBounds(std::size_t k) const
    {
        Bounds fallback;
        if (m_count == 1 && m_data.stableRange)
            fallback.lower = 0.0;
        const Bounds bounds = boundsOf(m_data.bounds, propertyIds[k], fallback);
        return {bounds.lower / m_scale, bounds.upper / m_scale};
    }

    void evaluate(const double* c, double* residuals, double* jacobian) const
    {
        for (std::size_t i = 0; i < m_target.size(); ++i) {
            residuals[i] = -m_target[i];
            for (std::size_t k = 0; k < m_count; ++k) {
                residuals[i] += m_columns[k][i] * c[k];
                if (jacobian != nullptr)
                    jacobian[i * m_count + k] = m_columns[k][i];
            }
        }
    }

    void penalise(const StateMargin& state, double margin, double factor, double* residual, double* row) const
    {
        const double lack = std::max(0.0, margin - state.value);
        *residual = factor * lack;
        for (std::size_t k = 0; row != nullptr && k < m_count; ++k)
            row[k] = lack > 0.0 ? -factor * state.slope[k] : 0.0;
    }

    /// Fixes each constant whose column is a combination of the columns before it, at the value in its bounds nearest to 0.
    void findIndependent()
    {
        constexpr double resolution = 1e-7;
        std::vector<std::vector<double>> basis;
        for (std::size_t k = 0; k < m_count; ++k) {
            std::vector<double> rest = m_columns[k];
            const double length = norm(rest);
            for (int pass = 0; pass < 2; ++pass) { // a second pass removes the rounding errors of the first
                for (const auto& direction : basis)
                    subtractPart(rest, direction);
            }
            const double left = norm(rest);
            const bool independent = left > resolution * length;
            m_independent.push_back(independent);
            if (!independent) {
                const double held = std::max(m_bounds[k].lower, std::min(0.0, m_bounds[k].upper));
                m_bounds[k] = {held, held};
                continue;
            }
            for (double& value : rest)
                value /= left;
            basis.push_back(std::move(rest));
        }
    }

    static double norm(const std::vector<double>& v)
    {
        double sum = 0.0;
        for (const double value : v)
            sum += value * value;
        return std::sqrt(sum);
    }

    static void subtractPart(std::vector<double>& v, const std::vector<double>& direction)
    {
        double part = 0.0;
        for (std::size_t i = 0; i < v.size(); ++i)
            part += v[i] * direction[i];
        for (std::size_t i = 0; i < v.size(); ++i)
            v[i] -= part * direction[i];
    }

    const HyperelasticFitData& m_data;
    std::size_t m_count;
    double m_scale;
    std::vector<std::vector<double>> m_columns;
    std::vector<double> m_target;
    std::vector<Bounds> m_bounds;
    std::vector<bool> m_independent;
};

HyperelasticConstants constantsOf(HyperelasticForm form, const MooneyConstants& scaled, double scale)
{
    HyperelasticConstants constants;
    constants.kind = form == HyperelasticForm::NeoHooke ? ModelKind::NeoHooke : ModelKind::MooneyRivlin;
    constants.c10 = scaled[0] * scale;
    constants.c01 = scaled[1] * scale;
    constants.c11 = scaled[2] * scale;
    return constants;
}

/// Moves constants towards Neo-Hookean ones, which are stable everywhere, by the smallest step that makes them stable.
MooneyConstants moveInside(HyperelasticForm form, const MooneyConstants& from, double neoHooke, double scale,
                           Range range)
{
    const auto mixed = [&](double part) {
        return MooneyConstants{from[0] + part * (neoHooke - from[0]), from[1] * (1.0 - part), from[2] * (1.0 - part)};
    };
    const auto stableAt = [&](double part) { return isStable(constantsOf(form, mixed(part), scale), range); };
    if (stableAt(0.0))
        return from;
    double unstable = 0.0;
    double stable = 1.0;
    constexpr double closeness = 1e-6;
    while (stable - unstable > closeness) {
        const double middle = 0.5 * (unstable + stable);
        (stableAt(middle) ? stable : unstable) = middle;
    }
    return mixed(stable);
}

/// Returns the best stable constants; nothing if even Neo-Hookean ones are unstable. `start` are the best constants without
/// regard to stability.
std::optional<std::vector<double>> minimiseStably(const HyperelasticFitData& data, HyperelasticForm form,
                                                  const MooneyProblem& mooney, std::vector<double> start)
{
    const MooneyProblem single(data, 1);
    const double neoHooke = minimiseLinear(single.problem(), {1.0}, data.cancelled).parameters.front();
    if (!(neoHooke > 0.0))
        return std::nullopt;

    // The penalty grows step by step. Its boundary is slightly inside the true one.
    constexpr double margin = 2e-4;
    const StabilityRegion region(*data.stableRange);
    for (const double weight : {1e2, 1e4, 1e6, 1e8}) {
        const LeastSquares problem = mooney.penalised(region, weight, margin * neoHooke);
        start = minimise(problem, start, data.cancelled).parameters;
    }
    const MooneyConstants inside =
        moveInside(form, mooney.expand(start.data()), neoHooke, mooney.scale(), *data.stableRange);
    std::copy(inside.begin(), inside.begin() + static_cast<std::ptrdiff_t>(start.size()), start.begin());
    return start;
}

void describeConstants(const MooneyProblem& mooney, const std::vector<double>& scaled, HyperelasticMinimum& minimum)
{
    const Certainty certainty = certaintyAt(mooney.problem(), scaled);
    for (std::size_t k = 0; k < scaled.size(); ++k) {
        const double scale = mooney.scale();
        const Bounds& bounds = mooney.bounds()[k];
        ConstantOfFit constant{propertyIds[k],
                               symbols[k],
                               "Pa",
                               scaled[k] * scale,
                               certainty.errors[k] * scale,
                               {bounds.lower * scale, bounds.upper * scale},
                               {}};
        if (!mooney.isIndependent(k)) {
            constant.bounds = {};
            constant.determinedInstead = k == 1 ? "C10 + C01" : "C10, C01";
        } else if (bounds.lower < bounds.upper) {
            ++minimum.freedoms;
        }
        minimum.fitted.push_back(std::move(constant));
    }
}

} // namespace

HyperelasticMinimum fitMooneyRivlin(const HyperelasticFitData& data, HyperelasticForm form, std::size_t count)
{
    const MooneyProblem mooney(data, count);
    HyperelasticMinimum result;
    std::vector<double> best =
        minimiseLinear(mooney.problem(), std::vector<double>(count, 1.0), data.cancelled).parameters;
    const HyperelasticConstants free = constantsOf(form, mooney.expand(best.data()), mooney.scale());
    if (data.stableRange && count > 1 && !isStable(free, *data.stableRange)) {
        auto stable = minimiseStably(data, form, mooney, best);
        if (!stable) {
            result.findings.push_back(
                makeFinding(FindingId::NoMinimum, {std::string(hyperelasticFormRecord(form).name)}));
            return result;
        }
        best = std::move(*stable);
        result.withoutStability = free;
    }
    result.isStable = data.stableRange && count > 1;
    result.constants = constantsOf(form, mooney.expand(best.data()), mooney.scale());
    result.found = true;
    describeConstants(mooney, best, result);
    return result;
}

} // namespace vxConstitutive
