#include "Spacing.h"

#include "fit/FitSupport.h"
#include "vxConstitutive/fit/EstimateText.h"
#include "vxConstitutive/fit/RateFits.h"
#include "vxConstitutive/response/ViscoElasticModel.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace vxConstitutive {

namespace {

using vxMat::PropertyId;

/// Returns the range of the times greater than 0.
Range timesOf(const FitSet& set)
{
    Range times{std::numeric_limits<double>::infinity(), 0.0};
    for (const FitPoint& point : set.points) {
        if (point.x > 0.0)
            times = {std::min(times.from, point.x), std::max(times.to, point.x)};
    }
    return times.to > 0.0 ? times : Range{1.0, 1.0};
}

/// Stores the residuals, and unless it is null their derivatives, at the instantaneous modulus by the largest measured one, g, and
/// the logarithm of the relaxation time.
void evaluate(const FitSet& set, const double* p, double* residuals, double* jacobian)
{
    const double time = std::exp(p[2]);
    for (std::size_t i = 0; i < set.points.size(); ++i) {
        const FitPoint& point = set.points[i];
        const double factor = point.factor * set.largestOrdinate;
        const double x = point.x / time;
        const double decay = std::exp(-x);
        const double shape = 1.0 - p[1] + p[1] * decay;
        residuals[i] = factor * p[0] * shape - point.factor * point.y;
        if (jacobian == nullptr)
            continue;
        jacobian[3 * i] = factor * shape;
        jacobian[3 * i + 1] = factor * p[0] * (decay - 1.0);
        jacobian[3 * i + 2] = factor * p[0] * p[1] * decay * x;
    }
}

LeastSquares problemOf(const FitSet& set, Range times, const BoundsById& bounds)
{
    constexpr double beyond = 100.0; // the measured times
    const Bounds g = boundsOf(bounds, PropertyId::ShearRelaxationModulus, {0.0, 1.0});
    const Bounds tau = boundsOf(bounds, PropertyId::RelaxationTime, {times.from / beyond, times.to * beyond});
    LeastSquares problem;
    problem.residuals = set.points.size();
    problem.bounds = {{0.0, Bounds().upper},
                      {std::max(0.0, g.lower), std::min(1.0, g.upper)},
                      {std::log(std::max(tau.lower, 1e-300)), std::log(tau.upper)}};
    problem.evaluate = [&set](const double* p, double* residuals, double* jacobian) {
        evaluate(set, p, residuals, jacobian);
        return true;
    };
    return problem;
}

std::vector<std::vector<double>> startsOf(Range times)
{
    std::vector<std::vector<double>> starts;
    for (const double tau : spreadByFactor(times.from / 2.0, times.to * 2.0, 8))
        starts.push_back({1.0, 0.5, std::log(tau)});
    return starts;
}

void describeConstants(const LeastSquares& problem, const std::vector<double>& p, const FitSet& set, FitResult& result)
{
    const double scale = set.largestOrdinate;
    const double tau = std::exp(p[2]);
    const Bounds& g = problem.bounds[1];
    const Bounds times{std::exp(problem.bounds[2].lower), std::exp(problem.bounds[2].upper)};
    const Bounds moduli{-1.0, Bounds().upper};
    const Certainty certainty = certaintyAt(problem, p);
    const ConstantOfFit constants[] = {
        {0, "G0", "Pa", p[0] * scale, certainty.errors[0] * scale, moduli, {}},
        {PropertyId::ShearRelaxationModulus, "g", "1", p[1], certainty.errors[1], g, {}},
        {PropertyId::RelaxationTime, "tau", "s", tau, certainty.errors[2] * tau, times, {}},
    };
    for (const ConstantOfFit& constant : constants)
        addConstant(result, constant, set.total, countFree(problem.bounds));
}

/// Stores what the material gets, and a doubt about a relaxation time that was not measured.
void setChange(double g, double tau, Range times, FitResult& result)
{
    if (tau < times.from || tau > times.to)
        result.findings.push_back(
            makeFinding(FindingId::RelaxationTimeOutside, {roundedText(tau, residualDigits), times.from, times.to}));
    result.change.set = {{PropertyId::ViscoElasticity, 1.0, {}, {}},
                         {PropertyId::ShearRelaxationModulus, g, {}, {}},
                         {PropertyId::RelaxationTime, tau, {}, {}}};
}

std::vector<const TestData*> relaxationTests(const std::vector<TestData>& tests)
{
    std::vector<const TestData*> used;
    for (const TestData& test : tests) {
        if (test.mode == Mode::Relaxation)
            used.push_back(&test);
    }
    return used;
}

Prediction predictionOf(double modulus, double ratio, double relaxationTime)
{
    return [=](const TestData& /*test*/, double time) {
        return modulus * (1.0 - ratio + ratio * std::exp(-time / relaxationTime));
    };
}

constexpr const char* modelName = "visco-elasticity";

/// Completes the result of a fit that has a minimum.
void useMinimum(const LeastSquares& problem, const std::vector<double>& p, const RelaxationFitRequest& request,
                const std::vector<const TestData*>& tests, const FitSet& set, FitResult& result)
{
    const double modulus = p[0] * set.largestOrdinate;
    const double tau = std::exp(p[2]);
    judge(result, tests, request.error, set, predictionOf(modulus, p[1], tau), countFree(problem.bounds));
    describeConstants(problem, p, set, result);
    setChange(p[1], tau, timesOf(set), result);
    setFitted(result, std::make_shared<ViscoElasticModel>(p[1], tau, modulus));
}

FitResult fitTests(const RelaxationFitRequest& request, const FitControl& control)
{
    FitResult result;
    result.model = modelName;
    Jobs jobs(control, 1);
    jobs.begin(result.model);
    const std::vector<TestData> tests = usableTests(request.tests, result.findings);
    const std::vector<const TestData*> used = relaxationTests(tests);
    const FitSet set = makeFitSet(used, request.error);
    if (!hasData(result, set))
        return result;

    const Range times = timesOf(set);
    const LeastSquares problem = problemOf(set, times, request.bounds);
    const Minimum minimum = minimiseFromMany(problem, startsOf(times), jobs.cancelledFunction(), jobs.progress());
    setStatus(result, jobs);
    if (!minimum.parameters.empty())
        useMinimum(problem, minimum.parameters, request, used, set, result);
    return result;
}

} // namespace

FitResult fitRelaxation(const RelaxationFitRequest& request, const FitControl& control)
{
    return fitWithSolver(modelName, [&] { return fitTests(request, control); });
}

} // namespace vxConstitutive
