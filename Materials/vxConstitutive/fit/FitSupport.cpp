#include "fit/FitSupport.h"

#include "fit/SolverLibrary.h"
#include "vxConstitutive/fit/EstimateText.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace vxConstitutive {

namespace {

/// A test with more points is fitted by averages.
constexpr std::size_t mostPoints = 2000;

/// Relative differences are never divided by less than this part of the largest ordinate.
constexpr double smallestPart = 0.01;

/// The part of the largest ordinate below which differences tell nothing about a model: machines of ISO 7500-1, class 0.5, may
/// be wrong by 0.5 % of the force.
constexpr double resolutionOfTests = 0.001;

double largestOf(const TestData& test)
{
    double largest = 0.0;
    for (const double y : test.ordinates)
        largest = std::max(largest, std::fabs(y));
    return largest;
}

/// Returns the divisor of the difference at an ordinate.
double divisor(ErrorMeasure error, double ordinate, double largestOfTest, double largestOfAll)
{
    if (error == ErrorMeasure::Absolute)
        return 1.0;
    const double largest = largestOfTest > 0.0 ? largestOfTest : largestOfAll;
    return error == ErrorMeasure::OfEach ? std::max(std::fabs(ordinate), smallestPart * largest) : largest;
}

std::vector<std::size_t> orderOf(const TestData& test)
{
    std::vector<std::size_t> order(test.abscissas.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return std::pair(test.abscissas[a], test.ordinates[a]) < std::pair(test.abscissas[b], test.ordinates[b]);
    });
    return order;
}

/// Returns the points of a test in rising order, averaged in groups if there are many. The factor is the size of the group.
std::vector<FitPoint> pointsOf(const TestData& test)
{
    const std::vector<std::size_t> order = orderOf(test);
    const std::size_t groups = std::min(order.size(), mostPoints);
    std::vector<FitPoint> points;
    points.reserve(groups);
    for (std::size_t group = 0; group < groups; ++group) {
        const std::size_t from = group * order.size() / groups;
        const std::size_t to = (group + 1) * order.size() / groups;
        FitPoint point{&test, 0.0, 0.0, static_cast<double>(to - from)};
        for (std::size_t i = from; i < to; ++i) {
            point.x += test.abscissas[order[i]] / point.factor;
            point.y += test.ordinates[order[i]] / point.factor;
        }
        points.push_back(point);
    }
    return points;
}

/// Returns the weight of each point of a test. The weights of all points of all tests add up to 1.
double weightOfPoint(const TestData& test, ErrorMeasure error, double allWeights, std::size_t allPoints)
{
    if (error == ErrorMeasure::Absolute)
        return test.weight / allWeights * (1.0 / static_cast<double>(allPoints));
    return test.weight / allWeights / static_cast<double>(test.abscissas.size());
}

/// Returns the sum of the weights: over points if differences are absolute, over tests otherwise.
double sumOfWeights(const std::vector<const TestData*>& tests, ErrorMeasure error, std::size_t total)
{
    double sum = 0.0;
    for (const TestData* test : tests) {
        const double share = static_cast<double>(test->abscissas.size()) / static_cast<double>(total);
        sum += error == ErrorMeasure::Absolute ? test->weight * share : test->weight;
    }
    return sum;
}

} // namespace

std::vector<TestData> usableTests(const std::vector<TestData>& tests, std::vector<Finding>& findings)
{
    std::vector<TestData> usable;
    std::size_t outside = 0;
    for (const TestData& test : tests) {
        if (!(test.weight > 0.0) || !std::isfinite(test.weight))
            continue;
        TestData kept = test;
        kept.abscissas.clear();
        kept.ordinates.clear();
        for (std::size_t i = 0; i < std::min(test.abscissas.size(), test.ordinates.size()); ++i) {
            if (!isInDomain(test.mode, test.abscissas[i], test.ordinates[i])) {
                ++outside;
                continue;
            }
            kept.abscissas.push_back(test.abscissas[i]);
            kept.ordinates.push_back(test.ordinates[i]);
        }
        usable.push_back(std::move(kept));
    }
    if (outside > 0)
        findings.push_back(makeFinding(FindingId::PointsOutside, {static_cast<double>(outside)}));
    return usable;
}

namespace {

/// Adds what is doubtful about the points of a test, which has at least one.
void examinePoints(const TestData& test, std::vector<Finding>& findings)
{
    if (largestOf(test) == 0.0)
        findings.push_back(makeFinding(FindingId::AllZero, {test.name}));
    if (test.abscissas.size() > mostPoints)
        findings.push_back(makeFinding(FindingId::Condensed, {test.name, static_cast<double>(test.abscissas.size()),
                                                              static_cast<double>(mostPoints)}));
}

/// Adds the points of a test, of which each measured one has a weight.
void addPoints(const TestData& test, ErrorMeasure error, double weight, FitSet& set)
{
    const double largest = largestOf(test);
    for (FitPoint point : pointsOf(test)) {
        point.factor = std::sqrt(weight * point.factor) / divisor(error, point.y, largest, set.largestOrdinate);
        set.points.push_back(point);
    }
}

} // namespace

FitSet makeFitSet(const std::vector<const TestData*>& tests, ErrorMeasure error)
{
    FitSet set;
    for (const TestData* test : tests) {
        set.total += test->abscissas.size();
        set.largestOrdinate = std::max(set.largestOrdinate, largestOf(*test));
    }
    const double weights = sumOfWeights(tests, error, set.total);
    for (const TestData* test : tests) {
        if (test->abscissas.empty()) {
            set.findings.push_back(makeFinding(FindingId::NoPoints, {test->name}));
            continue;
        }
        examinePoints(*test, set.findings);
        addPoints(*test, error, weightOfPoint(*test, error, weights, set.total), set);
    }
    return set;
}

namespace {

/// Sums over the points of one test.
struct Sums
{
    double weighted = 0.0; ///< weighted squares of the residuals
    double squares = 0.0;  ///< squares of the differences
    double spread = 0.0;   ///< squares of the distances from the mean of the test
    double farthest = 0.0; ///< the largest difference
};

Sums sumUp(const TestData& test, ErrorMeasure error, double weight, double largestOfAll, const Prediction& predict)
{
    const double largest = largestOf(test);
    const auto count = static_cast<double>(test.ordinates.size());
    const double mean = std::accumulate(test.ordinates.begin(), test.ordinates.end(), 0.0) / count;
    Sums sums;
    for (std::size_t i = 0; i < test.ordinates.size(); ++i) {
        const double ordinate = test.ordinates[i];
        const double difference = predict(test, test.abscissas[i]) - ordinate;
        const double part = difference / divisor(error, ordinate, largest, largestOfAll);
        sums.weighted += weight * part * part;
        sums.squares += difference * difference;
        sums.spread += (ordinate - mean) * (ordinate - mean);
        sums.farthest = std::max(sums.farthest, std::fabs(difference));
    }
    return sums;
}

TestAgreement agreementOf(const TestData& test, const Sums& sums)
{
    const double largest = largestOf(test);
    const double unit = largest > 0.0 ? largest : 1.0;
    const double rms = std::sqrt(sums.squares / static_cast<double>(test.ordinates.size()));
    const double rSquared = sums.spread > 0.0 ? 1.0 - sums.squares / sums.spread : 0.0;
    return {test.name, test.mode, test.ordinates.size(), rms, rms / unit, sums.farthest / unit, rSquared};
}

} // namespace

void judge(FitResult& result, const std::vector<const TestData*>& tests, ErrorMeasure error, const FitSet& set,
           const Prediction& predict, std::size_t freedoms)
{
    const double weights = sumOfWeights(tests, error, set.total);
    Sums all;
    for (const TestData* test : tests) {
        if (test->abscissas.empty())
            continue;
        const double weight = weightOfPoint(*test, error, weights, set.total);
        const Sums sums = sumUp(*test, error, weight, set.largestOrdinate, predict);
        result.tests.push_back(agreementOf(*test, sums));
        all.weighted += sums.weighted;
        all.squares += sums.squares;
        all.spread += sums.spread;
    }
    const double freedom = set.total > freedoms ? static_cast<double>(set.total - freedoms) : 1.0;
    result.residual = std::sqrt(all.weighted);
    result.residualPerFreedom = result.residual * std::sqrt(static_cast<double>(set.total) / freedom);
    result.rSquared = all.spread > 0.0 ? 1.0 - all.squares / all.spread : 0.0;
    result.points = set.total;
    result.freeConstants = freedoms;
    result.resolution = resolutionOfTests * (error == ErrorMeasure::Absolute ? set.largestOrdinate : 1.0);
}

namespace {

bool liesAt(double value, double bound)
{
    constexpr double closeness = 1e-9;
    return std::isfinite(bound) && std::fabs(value - bound) <= closeness * (1.0 + std::fabs(bound));
}

Determination determinationOf(const ConstantOfFit& constant)
{
    if (constant.bounds.lower >= constant.bounds.upper)
        return Determination::Fixed;
    if (!constant.determinedInstead.empty() || std::isinf(constant.error))
        return Determination::Undetermined;
    if (liesAt(constant.value, constant.bounds.lower) || liesAt(constant.value, constant.bounds.upper))
        return Determination::AtBound;
    return Determination::Determined;
}

} // namespace

void addConstant(FitResult& result, const ConstantOfFit& constant, std::size_t points, std::size_t freedoms)
{
    FittedConstant fitted{constant.propertyId, constant.symbol, constant.unit,
                          constant.value,      std::nullopt,    determinationOf(constant)};
    if (fitted.determination == Determination::Undetermined && constant.determinedInstead.empty())
        result.findings.push_back(makeFinding(FindingId::NoInfluence, {constant.symbol}));
    else if (fitted.determination == Determination::Undetermined)
        result.findings.push_back(makeFinding(FindingId::Undetermined, {constant.symbol, constant.determinedInstead}));
    if (fitted.determination == Determination::AtBound)
        result.findings.push_back(makeFinding(FindingId::AtBound, {constant.symbol, constant.value}));
    if (fitted.determination == Determination::Determined && points > freedoms) {
        const double error = constant.error * result.residual / std::sqrt(static_cast<double>(points - freedoms));
        fitted.standardError = error;
        constexpr double poor = 0.5;
        constexpr double percent = 100.0;
        if (error > poor * std::fabs(constant.value)) {
            fitted.determination = Determination::Poor;
            result.findings.push_back(
                makeFinding(FindingId::PoorlyDetermined,
                            {constant.symbol, roundedText(percent * error / std::fabs(constant.value), errorDigits)}));
        }
    }
    result.constants.push_back(std::move(fitted));
}

Bounds boundsOf(const BoundsById& bounds, std::int32_t propertyId, Bounds fallback)
{
    const auto found = bounds.find(propertyId);
    if (found == bounds.end())
        return fallback;
    return {std::min(found->second.lower, found->second.upper), std::max(found->second.lower, found->second.upper)};
}

std::size_t countFree(const std::vector<Bounds>& bounds)
{
    const auto isFree = [](const Bounds& one) { return one.lower < one.upper; };
    return static_cast<std::size_t>(std::count_if(bounds.begin(), bounds.end(), isFree));
}

void Jobs::begin(std::string name)
{
    m_name = std::move(name);
    ++m_begun;
    report(0.0);
}

std::function<void(double)> Jobs::progress()
{
    return [this](double part) { report(part); };
}

bool Jobs::cancelled()
{
    m_cancelled = m_cancelled || (m_control.cancelled && m_control.cancelled());
    return m_cancelled;
}

std::function<bool()> Jobs::cancelledFunction()
{
    return [this] { return cancelled(); };
}

void Jobs::report(double partOfJob) const
{
    if (m_control.progress)
        m_control.progress({m_name, (static_cast<double>(m_begun) - 1.0 + partOfJob) / static_cast<double>(m_count)});
}

bool hasData(FitResult& result, const FitSet& set)
{
    result.findings.insert(result.findings.end(), set.findings.begin(), set.findings.end());
    if (!set.usable())
        result.findings.push_back(makeFinding(FindingId::DataMissing, {result.model}));
    return set.usable();
}

void setStatus(FitResult& result, Jobs& jobs)
{
    const bool cancelled = jobs.cancelled();
    result.status = cancelled ? FitStatus::Cancelled : FitStatus::Done;
    if (cancelled)
        result.findings.push_back(makeFinding(FindingId::Cancelled, {result.model}));
}

FitResult fitWithSolver(const std::string& model, const std::function<FitResult()>& fit)
{
    try {
        return fit();
    } catch (const SolverMissing& missing) {
        FitResult failed;
        failed.model = model;
        failed.findings.push_back(makeFinding(FindingId::SolverUnavailable, {model, std::string(missing.what())}));
        return failed;
    }
}

namespace {

/// Returns a finding of a fitted model, with the digits that the standard errors justify.
Finding ofFit(Finding finding, const FitResult& result)
{
    const FittedConstant* const mu = result.find(vxMat::PropertyId::InitialShearModulusMu);
    if (finding.id != FindingId::InitialModulusDerived || mu == nullptr || !mu->standardError)
        return finding;
    const double initial = vxMat::readNumber(finding.arguments[1]);
    const double part = *mu->standardError / std::fabs(mu->value);
    return makeFinding(finding.id, {estimateText(mu->value, mu->standardError), estimateText(initial, part * initial)});
}

} // namespace

void setFitted(FitResult& result, std::shared_ptr<const Model> model)
{
    for (const Finding& finding : model->findings())
        result.findings.push_back(ofFit(finding, result));
    result.fitted = std::move(model);
}

const FittedConstant* FitResult::find(std::int32_t propertyId) const
{
    const auto found = std::find_if(constants.begin(), constants.end(), [propertyId](const FittedConstant& constant) {
        return constant.propertyId == propertyId;
    });
    return found == constants.end() ? nullptr : &*found;
}

} // namespace vxConstitutive
