#include "Spacing.h"

#include "fit/HyperelasticFitParts.h"
#include "vxConstitutive/fit/EstimateText.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace vxConstitutive {

namespace {

using vxMat::PropertyId;

/// The default bounds of the limiting stretch. At the upper one, the series is Neo-Hookean.
constexpr Bounds limitingStretches{1.0, 1000.0};

/// The least squares problem of Arruda-Boyce. Its parameters are Mu by the largest stress, and 1/lm^2, which is 0 for
/// chains without a limit.
class ArrudaBoyceProblem
{
public:
    explicit ArrudaBoyceProblem(const HyperelasticFitData& data) : m_scale(data.shape.largestOrdinate)
    {
        // The stress is dW/dI1 times that of a Neo-Hookean material with C10 = 1.
        const StrainEnergy neoHooke = StrainEnergy::mooneyRivlin(m_scale);
        for (const FitPoint& point : data.shape.points) {
            const double stress = incompressibleStress(neoHooke, point.test->mode, point.x);
            m_rows.push_back(
                {point.factor * stress, incompressibleInvariant(point.test->mode, point.x), point.factor * point.y});
        }
        const Bounds mu = boundsOf(data.bounds, PropertyId::InitialShearModulusMu, {0.0, Bounds().upper});
        const Bounds limit = boundsOf(data.bounds, PropertyId::LimitingNetworkStretch, limitingStretches);
        m_problem.residuals = m_rows.size();
        m_problem.bounds = {{mu.lower / m_scale, mu.upper / m_scale},
                            {inverseSquare(limit.upper), inverseSquare(limit.lower)}};
        m_problem.evaluate = [this](const double* parameters, double* residuals, double* jacobian) {
            evaluate(parameters, residuals, jacobian);
            return true;
        };
    }
    ArrudaBoyceProblem(const ArrudaBoyceProblem&) = delete;
    ArrudaBoyceProblem& operator=(const ArrudaBoyceProblem&) = delete;
    ~ArrudaBoyceProblem() = default;

    const LeastSquares& problem() const { return m_problem; }
    double scale() const { return m_scale; }

    double largestChainStretch() const
    {
        double invariant = 3.0;
        for (const Row& row : m_rows)
            invariant = std::max(invariant, row.invariant);
        return std::sqrt(invariant / 3.0);
    }

    /// Returns the parameters of a limiting stretch with the best Mu, within the bounds.
    std::vector<double> startAt(double limitingStretch) const
    {
        const double theta = withinBounds(inverseSquare(limitingStretch), m_problem.bounds[1]);
        double product = 0.0;
        double square = 0.0;
        for (const Row& row : m_rows) {
            const double stress = row.stress * StrainEnergy::fiveTermSlope(row.invariant * theta).value;
            product += stress * row.target;
            square += stress * stress;
        }
        return {withinBounds(square > 0.0 ? product / square : 1.0, m_problem.bounds[0]), theta};
    }

private:
    struct Row
    {
        double stress;
        double invariant;
        double target;
    };

    static double inverseSquare(double stretch) { return 1.0 / (stretch * stretch); }
    static double withinBounds(double value, const Bounds& bounds)
    {
        return std::max(bounds.lower, std::min(value, bounds.upper));
    }

    void evaluate(const double* parameters, double* residuals, double* jacobian) const
    {
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const Row& row = m_rows[i];
            const ValueAndSlope slope = StrainEnergy::fiveTermSlope(row.invariant * parameters[1]);
            residuals[i] = row.stress * parameters[0] * slope.value - row.target;
            if (jacobian == nullptr)
                continue;
            jacobian[2 * i] = row.stress * slope.value;
            jacobian[2 * i + 1] = row.stress * parameters[0] * slope.slope * row.invariant;
        }
    }

    double m_scale;
    std::vector<Row> m_rows;
    LeastSquares m_problem;
};

/// A limiting stretch with the best Mu, as a start of the minimisation.
struct Candidate
{
    std::vector<double> parameters;
    double cost = 0.0;
};

/// Returns candidates from short chains to chains far from their limit.
std::vector<Candidate> candidatesOf(const ArrudaBoyceProblem& series)
{
    constexpr std::size_t count = 24;
    constexpr double shortest = 1.01;
    constexpr double nearest = 0.6; // of the stretch of the chains in the data
    constexpr double farthest = 10.0;
    std::vector<Candidate> candidates;
    for (const double part : spreadByFactor(nearest, farthest, count)) {
        Candidate candidate{series.startAt(std::max(part * series.largestChainStretch(), shortest)), 0.0};
        candidate.cost = costAt(series.problem(), candidate.parameters);
        candidates.push_back(std::move(candidate));
    }
    return candidates;
}

/// Returns the candidates that are better than their neighbours. The others lead to the same minima.
std::vector<std::vector<double>> startsOf(const ArrudaBoyceProblem& series)
{
    const std::vector<Candidate> candidates = candidatesOf(series);
    std::vector<std::vector<double>> starts;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        const double cost = candidates[i].cost;
        const bool falls = i == 0 || cost < candidates[i - 1].cost;
        const bool rises = i + 1 == candidates.size() || cost <= candidates[i + 1].cost;
        if (falls && rises)
            starts.push_back(candidates[i].parameters);
    }
    return starts;
}

std::vector<ConstantOfFit> fittedConstants(const ArrudaBoyceProblem& series, const HyperelasticConstants& constants,
                                           const Certainty& certainty)
{
    const double scale = series.scale();
    const double limit = constants.limitingStretch;
    const Bounds& mu = series.problem().bounds[0];
    const Bounds& theta = series.problem().bounds[1];
    const Bounds muBounds{mu.lower * scale, mu.upper * scale};
    const Bounds limitBounds{1.0 / std::sqrt(theta.upper), 1.0 / std::sqrt(theta.lower)};
    const double limitError = certainty.errors[1] * limit * limit * limit / 2.0;
    return {{PropertyId::InitialShearModulusMu, "Mu", "Pa", constants.mu, certainty.errors[0] * scale, muBounds, {}},
            {PropertyId::LimitingNetworkStretch, "lm", "1", limit, limitError, limitBounds, {}}};
}

} // namespace

namespace {

HyperelasticConstants constantsOf(const ArrudaBoyceProblem& series, const std::vector<double>& parameters)
{
    HyperelasticConstants constants;
    constants.kind = ModelKind::ArrudaBoyce;
    constants.mu = parameters[0] * series.scale();
    constants.limitingStretch = 1.0 / std::sqrt(parameters[1]);
    return constants;
}

/// Notes that the limiting stretch has no influence if the chains of the data are far from it.
void examineLimit(const ArrudaBoyceProblem& series, HyperelasticMinimum& result)
{
    constexpr double far = 10.0;
    const double chains = series.largestChainStretch();
    if (result.constants.limitingStretch <= far * chains)
        return;
    result.fitted.back().determinedInstead = "Mu";
    result.findings.push_back(makeFinding(FindingId::LimitingStretchInfinite, {roundedText(chains, residualDigits)}));
}

} // namespace

HyperelasticMinimum fitArrudaBoyce(const HyperelasticFitData& data, const std::function<void(double)>& progress)
{
    const ArrudaBoyceProblem series(data);
    const LeastSquares& problem = series.problem();
    const Minimum best = minimiseFromMany(problem, startsOf(series), data.cancelled, progress);
    HyperelasticMinimum result;
    result.found = !best.parameters.empty();
    if (!result.found)
        return result;
    result.constants = constantsOf(series, best.parameters);
    result.fitted = fittedConstants(series, result.constants, certaintyAt(problem, best.parameters));
    result.freedoms = countFree(problem.bounds);
    examineLimit(series, result);
    return result;
}

} // namespace vxConstitutive
