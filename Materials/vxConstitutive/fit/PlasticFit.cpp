#include "vxConstitutive/fit/PlasticFit.h"

#include "fit/FitSupport.h"
#include "fit/HardeningData.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace vxConstitutive {

namespace {

using vxMat::PropertyId;

/// More points are averaged before they are reduced, because the reduction takes quadratic time.
constexpr std::size_t mostPoints = 1000;

std::vector<const TestData*> pointersTo(const std::vector<TestData>& tests)
{
    std::vector<const TestData*> pointers;
    pointers.reserve(tests.size());
    for (const TestData& test : tests)
        pointers.push_back(&test);
    return pointers;
}

FitResult beginResult(const char* model, const HardeningData& data)
{
    FitResult result;
    result.model = model;
    result.findings = data.findings;
    if (data.tests.empty())
        result.findings.push_back(makeFinding(FindingId::DataMissing, {result.model}));
    if (data.hasTensile)
        result.youngsModulus = data.elastic->youngsModulus;
    return result;
}

void addModulus(const HardeningData& data, FitResult& result)
{
    if (data.modulus)
        result.constants.push_back({PropertyId::YoungsModulus, "E", "Pa", data.modulus->value,
                                    data.modulus->standardError, Determination::Determined});
}

/// Returns the change to Mises plasticity, without the constants of hardening.
MaterialChange misesChange(const char* hardening, const HardeningData& data)
{
    MaterialChange change;
    if (data.hasTensile)
        change.set.push_back({PropertyId::YoungsModulus, data.elastic->youngsModulus, {}, {}});
    change.set.push_back({PropertyId::Plasticity, 1.0, {}, {}});
    change.set.push_back({PropertyId::PlasticYieldType, 0.0, "Mises", {}});
    change.set.push_back({PropertyId::PlasticHardeningType, 0.0, hardening, {}});
    change.remove = {PropertyId::PlasticViscosity, PropertyId::PlasticFAI};
    return change;
}

/// Stores the model in a result that was not cancelled.
void finish(FitResult& result, std::shared_ptr<const Model> model, Jobs& jobs)
{
    setFitted(result, std::move(model));
    result.status = FitStatus::Done;
    jobs.progress()(1.0);
}

bool endIfCancelled(Jobs& jobs, FitResult& result)
{
    if (!jobs.cancelled())
        return false;
    setStatus(result, jobs);
    return true;
}

/// Averages neighbours if there are too many points. Keeps the first point, whose strain is 0.
std::vector<HardeningPoint> condensed(const std::vector<HardeningPoint>& points)
{
    if (points.size() <= mostPoints)
        return points;
    std::vector<HardeningPoint> averages{points.front()};
    const std::size_t rest = points.size() - 1;
    const std::size_t groups = mostPoints - 1;
    for (std::size_t group = 0; group < groups; ++group) {
        const std::size_t from = 1 + group * rest / groups;
        const std::size_t to = 1 + (group + 1) * rest / groups;
        HardeningPoint average;
        for (std::size_t i = from; i < to; ++i) {
            average.plasticStrain += points[i].plasticStrain / static_cast<double>(to - from);
            average.stress += points[i].stress / static_cast<double>(to - from);
        }
        averages.push_back(average);
    }
    return averages;
}

Prediction predictionOf(const PlasticModel& model)
{
    return [&model](const TestData& /*test*/, double strain) { return model.stressAt(strain); };
}

MaterialChange multilinearChange(const HardeningData& data, const std::vector<HardeningPoint>& points)
{
    MaterialChange change = misesChange("Multilinear", data);
    PropertyValue stresses{PropertyId::PlasticYieldStress, 0.0, {}, {}};
    PropertyValue strains{PropertyId::PlasticStrain, 0.0, {}, {}};
    for (const HardeningPoint& point : points) {
        stresses.values.push_back(point.stress);
        strains.values.push_back(point.plasticStrain);
    }
    change.set.push_back(std::move(stresses));
    change.set.push_back(std::move(strains));
    change.remove.push_back(PropertyId::PlasticInitialYieldStress);
    change.remove.push_back(PropertyId::PlasticHardeningFactor);
    return change;
}

MaterialChange bilinearChange(const HardeningData& data, double yield, double modulus)
{
    MaterialChange change = misesChange("Bilinear", data);
    change.set.push_back({PropertyId::PlasticInitialYieldStress, yield, {}, {}});
    change.set.push_back({PropertyId::PlasticHardeningFactor, modulus, {}, {}});
    change.remove.push_back(PropertyId::PlasticYieldStress);
    change.remove.push_back(PropertyId::PlasticStrain);
    return change;
}

/// Returns the problem of a straight line through the points. Its parameters are yield stress and modulus by the largest
/// stress.
LeastSquares bilinearProblem(const FitSet& set, const BoundsById& bounds)
{
    const double scale = set.largestOrdinate;
    const auto scaled = [&](std::int32_t id) {
        const Bounds given = boundsOf(bounds, id, {0.0, Bounds().upper});
        return Bounds{given.lower / scale, given.upper / scale};
    };
    LeastSquares problem;
    problem.residuals = set.points.size();
    problem.bounds = {scaled(PropertyId::PlasticInitialYieldStress), scaled(PropertyId::PlasticHardeningFactor)};
    problem.evaluate = [&set, scale](const double* parameters, double* residuals, double* jacobian) {
        for (std::size_t i = 0; i < set.points.size(); ++i) {
            const FitPoint& point = set.points[i];
            residuals[i] = point.factor * (scale * (parameters[0] + parameters[1] * point.x) - point.y);
            if (jacobian == nullptr)
                continue;
            jacobian[2 * i] = point.factor * scale;
            jacobian[2 * i + 1] = point.factor * scale * point.x;
        }
        return true;
    };
    return problem;
}

void addBilinearConstants(const LeastSquares& problem, const std::vector<double>& parameters, const FitSet& set,
                          FitResult& result)
{
    const double scale = set.largestOrdinate;
    const Certainty certainty = certaintyAt(problem, parameters);
    const auto add = [&](std::size_t i, std::int32_t id, const char* symbol) {
        const Bounds bounds{scale * problem.bounds[i].lower, scale * problem.bounds[i].upper};
        addConstant(result, {id, symbol, "Pa", scale * parameters[i], scale * certainty.errors[i], bounds, {}},
                    set.total, countFree(problem.bounds));
    };
    add(0, PropertyId::PlasticInitialYieldStress, "sigma0");
    add(1, PropertyId::PlasticHardeningFactor, "H");
}

constexpr const char* bilinearName = "bilinear hardening";

/// Completes the result of a fit that has a minimum.
void useMinimum(const LeastSquares& problem, const std::vector<double>& parameters, const HardeningData& data,
                const FitSet& set, Jobs& jobs, FitResult& result)
{
    const double yield = set.largestOrdinate * parameters[0];
    const double modulus = set.largestOrdinate * parameters[1];
    auto model = std::make_shared<PlasticModel>(yield, modulus, data.elastic);
    judge(result, pointersTo(data.tests), ErrorMeasure::OfLargest, set, predictionOf(*model),
          countFree(problem.bounds));
    addBilinearConstants(problem, parameters, set, result);
    addModulus(data, result);
    result.change = bilinearChange(data, yield, modulus);
    finish(result, std::move(model), jobs);
}

FitResult fitLine(const PlasticFitRequest& request, const FitControl& control)
{
    Jobs jobs(control, 1);
    jobs.begin(bilinearName);
    const HardeningData data = takeHardening(request);
    FitResult result = beginResult(bilinearName, data);
    const FitSet set = makeFitSet(pointersTo(data.tests), ErrorMeasure::OfLargest);
    if (!set.usable() || endIfCancelled(jobs, result))
        return result;

    const LeastSquares problem = bilinearProblem(set, request.bounds);
    const Minimum minimum = minimiseLinear(problem, {0.5, 1.0}, jobs.cancelledFunction());
    useMinimum(problem, minimum.parameters, data, set, jobs, result);
    return result;
}

} // namespace

FitResult fitMultilinear(const PlasticFitRequest& request, const FitControl& control)
{
    Jobs jobs(control, 1);
    jobs.begin("multilinear hardening");
    const HardeningData data = takeHardening(request);
    FitResult result = beginResult("multilinear hardening", data);
    if (data.tests.empty() || endIfCancelled(jobs, result))
        return result;

    const double tolerance = std::max(0.0, request.tolerance);
    const std::vector<HardeningPoint> rising = condensed(risingPoints(data, tolerance, result.findings));
    const std::vector<HardeningPoint> points = reducePoints(rising, tolerance * data.largestStress());
    auto model = std::make_shared<PlasticModel>(points, data.elastic);
    const FitSet set = makeFitSet(pointersTo(data.tests), ErrorMeasure::OfLargest);
    judge(result, pointersTo(data.tests), ErrorMeasure::OfLargest, set, predictionOf(*model), points.size());

    addModulus(data, result);
    result.change = multilinearChange(data, points);
    finish(result, std::move(model), jobs);
    return result;
}

FitResult fitBilinear(const PlasticFitRequest& request, const FitControl& control)
{
    return fitWithSolver(bilinearName, [&] { return fitLine(request, control); });
}

} // namespace vxConstitutive
