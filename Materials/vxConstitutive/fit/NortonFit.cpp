#include "fit/FitSupport.h"
#include "vxConstitutive/fit/RateFits.h"
#include "vxConstitutive/response/NortonModel.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace vxConstitutive {

namespace {

using vxMat::PropertyId;

/// A point with the logarithms of stress and time by their reference values.
struct LogPoint
{
    double stress = 0.0;
    double time = 0.0;
    double target = 0.0; ///< strain or rate by the largest one
    double factor = 0.0;
    bool silent = false; ///< at time 0 or stress 0, where the law is 0
};

/// The least squares problem. Its parameters are the logarithm of the strain at the reference stress and time by the largest
/// strain, n, and m + 1 (1 for rates).
using Parameters = std::array<double, 3>;

class NortonProblem
{
public:
    NortonProblem(const FitSet& set, bool rates, const BoundsById& bounds) : m_rates(rates)
    {
        findReferences(set);
        for (const FitPoint& point : set.points)
            m_points.push_back(logPointOf(point, set.largestOrdinate));
        m_scale = set.largestOrdinate;
        const Bounds n = boundsOf(bounds, PropertyId::CreepModulusN, {0.1, 50.0});
        const Bounds m = boundsOf(bounds, PropertyId::CreepModulusM, {-0.99, 0.0});
        const double fixedN = std::max(n.lower, std::min(1.0, n.upper));
        constexpr double widest = 200.0; // as an exponent of e
        m_problem.bounds = {{-widest, widest},
                            spreadsStress() ? n : Bounds{fixedN, fixedN},
                            rates ? Bounds{1.0, 1.0} : Bounds{std::max(1e-3, m.lower + 1.0), m.upper + 1.0}};
        m_problem.residuals = m_points.size();
        m_problem.evaluate = [this](const double* p, double* residuals, double* jacobian) {
            evaluate(p, residuals, jacobian);
            return true;
        };
    }
    NortonProblem(const NortonProblem&) = delete;
    NortonProblem& operator=(const NortonProblem&) = delete;
    ~NortonProblem() = default;

    const LeastSquares& problem() const { return m_problem; }

    /// Returns whether the tests have more than one stress. Otherwise n has no influence.
    bool spreadsStress() const
    {
        const auto [low, high] = std::minmax_element(m_points.begin(), m_points.end(),
                                                     [](const auto& a, const auto& b) { return a.stress < b.stress; });
        constexpr double same = 1e-9;
        return !m_points.empty() && high->stress - low->stress > same;
    }

    std::vector<std::vector<double>> starts() const
    {
        std::vector<std::vector<double>> starts;
        for (const double n : {1.0, 3.0, 5.0, 8.0}) {
            for (const double q : {1.0, 0.5, 0.25})
                starts.push_back({levelFor(n, q), n, q});
        }
        return starts;
    }

    double a(const std::vector<double>& p) const { return std::exp(logA(p)); }

    /// Returns the standard error of A for residuals of standard deviation 1, from the derivatives of A.
    double errorOfA(const std::vector<double>& p, const Certainty& certainty) const
    {
        const Parameters slope{1.0, -m_logStress, (m_rates ? 0.0 : 1.0 / p[2]) - m_logTime};
        double variance = 0.0;
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t k = 0; k < 3; ++k)
                variance += slope[i] * slope[k] * certainty.covariance(i, k);
        }
        return a(p) * std::sqrt(variance);
    }

private:
    double logA(const std::vector<double>& p) const
    {
        const double level = p[0] + std::log(m_scale) - p[1] * m_logStress;
        return m_rates ? level : level + std::log(p[2]) - p[2] * m_logTime;
    }

    /// Sets the references to the geometric means, which makes the exponents nearly independent of the level.
    void findReferences(const FitSet& set)
    {
        double count = 0.0;
        for (const FitPoint& point : set.points) {
            const double stress = std::fabs(m_rates ? point.x : point.test->parameter);
            const double time = m_rates ? 1.0 : point.x;
            if (!(stress > 0.0) || !(time > 0.0))
                continue;
            m_logStress += std::log(stress);
            m_logTime += std::log(time);
            count += 1.0;
        }
        m_logStress /= std::max(count, 1.0);
        m_logTime /= std::max(count, 1.0);
    }

    LogPoint logPointOf(const FitPoint& point, double scale) const
    {
        const double stress = m_rates ? point.x : point.test->parameter;
        const double time = m_rates ? 1.0 : point.x;
        LogPoint log;
        log.target = point.y * (stress < 0.0 ? -1.0 : 1.0) / scale;
        log.factor = point.factor * scale;
        log.silent = stress == 0.0 || time == 0.0;
        if (!log.silent) {
            log.stress = std::log(std::fabs(stress)) - m_logStress;
            log.time = std::log(time) - m_logTime;
        }
        return log;
    }

    void evaluate(const double* p, double* residuals, double* jacobian) const
    {
        for (std::size_t i = 0; i < m_points.size(); ++i) {
            const LogPoint& point = m_points[i];
            const double value = point.silent ? 0.0 : std::exp(p[0] + p[1] * point.stress + exponent(p) * point.time);
            residuals[i] = point.factor * (value - point.target);
            if (jacobian == nullptr)
                continue;
            jacobian[3 * i] = point.factor * value;
            jacobian[3 * i + 1] = point.factor * value * point.stress;
            jacobian[3 * i + 2] = m_rates ? 0.0 : point.factor * value * point.time;
        }
    }

    double exponent(const double* p) const { return m_rates ? 0.0 : p[2]; }

    /// Returns the mean logarithmic level of the data for given exponents.
    double levelFor(double n, double q) const
    {
        double sum = 0.0;
        double count = 0.0;
        for (const LogPoint& point : m_points) {
            if (point.silent || !(point.target > 0.0))
                continue;
            sum += std::log(point.target) - n * point.stress - (m_rates ? 0.0 : q * point.time);
            count += 1.0;
        }
        return count > 0.0 ? sum / count : 0.0;
    }

    bool m_rates;
    double m_scale = 1.0;
    double m_logStress = 0.0;
    double m_logTime = 0.0;
    std::vector<LogPoint> m_points;
    LeastSquares m_problem;
};

std::vector<const TestData*> testsOf(const std::vector<TestData>& tests, Mode mode)
{
    std::vector<const TestData*> found;
    for (const TestData& test : tests) {
        if (test.mode == mode)
            found.push_back(&test);
    }
    return found;
}

/// Returns the creep curves, or the rates if there are no curves.
std::vector<const TestData*> chooseTests(const std::vector<TestData>& tests, std::vector<Finding>& findings)
{
    std::vector<const TestData*> curves = testsOf(tests, Mode::Creep);
    std::vector<const TestData*> rates = testsOf(tests, Mode::CreepRate);
    if (curves.empty())
        return rates;
    if (!rates.empty())
        findings.push_back(makeFinding(FindingId::RatesIgnored));
    return curves;
}

/// Returns the exponent m of a fit of m + 1; exactly 0 for secondary creep, whose m + 1 is 1 but for rounding.
double timeExponent(const std::vector<double>& p)
{
    constexpr double resolution = 1e-14;
    const double m = p[2] - 1.0;
    return std::fabs(m) < resolution ? 0.0 : m;
}

void describeConstants(const NortonProblem& norton, const std::vector<double>& p, const FitSet& set,
                       std::size_t freedoms, FitResult& result)
{
    const Certainty certainty = certaintyAt(norton.problem(), p);
    const bool onlyOne = !norton.spreadsStress();
    const std::string instead = onlyOne ? "A s^n" : "";
    const Bounds& q = norton.problem().bounds[2];
    const Bounds n = onlyOne ? Bounds() : norton.problem().bounds[1];
    addConstant(
        result,
        {PropertyId::CreepModulusA, "A", "Pa^-n s^-(m+1)", norton.a(p), norton.errorOfA(p, certainty), {}, instead},
        set.total, freedoms);
    addConstant(result, {PropertyId::CreepModulusN, "n", "1", p[1], certainty.errors[1], n, instead}, set.total,
                freedoms);
    addConstant(
        result,
        {PropertyId::CreepModulusM, "m", "1", timeExponent(p), certainty.errors[2], {q.lower - 1.0, q.upper - 1.0}, {}},
        set.total, freedoms);
    if (onlyOne)
        result.findings.push_back(makeFinding(FindingId::OneStressOnly));
    result.change.set = {{PropertyId::Creep, 1.0, {}, {}},
                         {PropertyId::CreepModulusA, norton.a(p), {}, {}},
                         {PropertyId::CreepModulusN, p[1], {}, {}},
                         {PropertyId::CreepModulusM, timeExponent(p), {}, {}}};
}

Prediction predictionOf(double a, double n, double m)
{
    return [a, n, m](const TestData& test, double abscissa) {
        CurveRequest request;
        request.mode = test.mode;
        request.abscissas = {abscissa};
        request.stresses = {test.parameter};
        return NortonModel(a, n, m).curve(request).columns[1].values.front();
    };
}

constexpr const char* modelName = "Norton creep";

/// Completes the result of a fit that has a minimum.
void useMinimum(const NortonProblem& norton, const std::vector<double>& p, const NortonFitRequest& request,
                const std::vector<const TestData*>& tests, const FitSet& set, FitResult& result)
{
    const std::size_t freedoms = countFree(norton.problem().bounds);
    judge(result, tests, request.error, set, predictionOf(norton.a(p), p[1], timeExponent(p)), freedoms);
    describeConstants(norton, p, set, freedoms, result);
    setFitted(result, std::make_shared<NortonModel>(norton.a(p), p[1], timeExponent(p)));
}

FitResult fitTests(const NortonFitRequest& request, const FitControl& control)
{
    FitResult result;
    result.model = modelName;
    Jobs jobs(control, 1);
    jobs.begin(result.model);
    const std::vector<TestData> tests = usableTests(request.tests, result.findings);
    const std::vector<const TestData*> used = chooseTests(tests, result.findings);
    const bool rates = !used.empty() && used.front()->mode == Mode::CreepRate;
    const FitSet set = makeFitSet(used, request.error);
    if (!hasData(result, set))
        return result;

    const NortonProblem norton(set, rates, request.bounds);
    const Minimum minimum =
        minimiseFromMany(norton.problem(), norton.starts(), jobs.cancelledFunction(), jobs.progress());
    setStatus(result, jobs);
    if (!minimum.parameters.empty())
        useMinimum(norton, minimum.parameters, request, used, set, result);
    return result;
}

} // namespace

FitResult fitNorton(const NortonFitRequest& request, const FitControl& control)
{
    return fitWithSolver(modelName, [&] { return fitTests(request, control); });
}

} // namespace vxConstitutive
