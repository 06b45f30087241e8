#include "fit/HardeningData.h"

#include "fit/FitSupport.h"
#include "vxConstitutive/fit/EstimateText.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace vxConstitutive {

namespace {

/// A tensile curve in rising order of engineering strain.
struct TensileCurve
{
    std::vector<double> strain;
    std::vector<double> stress;

    std::size_t size() const { return strain.size(); }
};

TensileCurve sorted(const TestData& test)
{
    std::vector<std::size_t> order(test.abscissas.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return test.abscissas[a] < test.abscissas[b]; });
    TensileCurve curve;
    for (const std::size_t index : order) {
        if (test.abscissas[index] < 0.0)
            continue;
        curve.strain.push_back(test.abscissas[index]);
        curve.stress.push_back(test.ordinates[index]);
    }
    return curve;
}

/// A straight line by least squares.
struct Line
{
    double slope = 0.0;
    double foot = 0.0; ///< strain at which the stress is 0
    std::optional<double> standardError;
};

/// A measured point of engineering strain and stress.
struct CurvePoint
{
    double strain = 0.0;
    double stress = 0.0;
};

/// Returns the points from a stress to another one, up to the first point above it.
std::vector<CurvePoint> pointsBetween(const TensileCurve& curve, double lowStress, double highStress)
{
    std::vector<CurvePoint> points;
    for (std::size_t i = 0; i < curve.size() && curve.stress[i] <= highStress; ++i) {
        if (curve.stress[i] >= lowStress)
            points.push_back({curve.strain[i], curve.stress[i]});
    }
    return points;
}

CurvePoint meanOf(const std::vector<CurvePoint>& points)
{
    const auto count = static_cast<double>(points.size());
    CurvePoint mean{};
    for (const CurvePoint& point : points) {
        mean.strain += point.strain / count;
        mean.stress += point.stress / count;
    }
    return mean;
}

/// Returns the line through points; nothing if it does not rise.
std::optional<Line> fitLine(const std::vector<CurvePoint>& points)
{
    const CurvePoint mean = meanOf(points);
    double xx = 0.0;
    double xy = 0.0;
    double yy = 0.0;
    for (const CurvePoint& point : points) {
        const double x = point.strain - mean.strain;
        const double y = point.stress - mean.stress;
        xx += x * x;
        xy += x * y;
        yy += y * y;
    }
    if (points.size() < 2 || !(xy > 0.0))
        return std::nullopt;
    const double slope = xy / xx;
    Line line{slope, mean.strain - mean.stress / slope, std::nullopt};
    if (points.size() > 2)
        line.standardError =
            std::sqrt(std::max(0.0, yy - slope * xy) / (xx * (static_cast<double>(points.size()) - 2.0)));
    return line;
}

/// The point at which a curve crosses the elastic line moved by the offset.
struct Yield
{
    double strain = 0.0;
    double stress = 0.0;
};

std::optional<Yield> findYield(const TensileCurve& curve, double modulus, double offset)
{
    const auto above = [&](std::size_t i) { return curve.stress[i] - modulus * (curve.strain[i] - offset); };
    for (std::size_t i = 1; i < curve.size(); ++i) {
        if (!(above(i) <= 0.0) || !(above(i - 1) > 0.0))
            continue;
        const double part = above(i - 1) / (above(i - 1) - above(i));
        return Yield{curve.strain[i - 1] + part * (curve.strain[i] - curve.strain[i - 1]),
                     curve.stress[i - 1] + part * (curve.stress[i] - curve.stress[i - 1])};
    }
    return std::nullopt;
}

/// Returns the line of the elastic part. Iterates, because its range depends on the yield stress, which depends on its slope.
std::optional<Line> findElasticLine(const TensileCurve& curve, double offset)
{
    if (curve.size() == 0)
        return std::nullopt;
    constexpr double low = 0.1;
    constexpr double high = 0.5;
    double yield = 0.5 * *std::max_element(curve.stress.begin(), curve.stress.end());
    std::optional<Line> line;
    for (int step = 0; step < 10; ++step) {
        const std::optional<Line> next = fitLine(pointsBetween(curve, low * yield, high * yield));
        if (!next)
            break;
        line = next;
        TensileCurve moved = curve;
        for (double& strain : moved.strain)
            strain -= line->foot;
        const std::optional<Yield> found = findYield(moved, line->slope, offset);
        if (!found || found->stress == yield)
            break;
        yield = found->stress;
    }
    return line;
}

/// Returns the true stress by the change of the cross section in PlasticModel: sigma = s exp(ep + 2 nu sigma/E).
double trueStress(double stress, double strain, const ElasticConstants& elastic)
{
    const double logStrain = std::log1p(strain);
    double sigma = stress * (1.0 + strain);
    for (int step = 0; step < 20; ++step) {
        const double next =
            stress * std::exp(logStrain - sigma / elastic.youngsModulus * (1.0 - 2.0 * elastic.poissonsRatio));
        if (next == sigma)
            break;
        sigma = next;
    }
    return sigma;
}

/// Returns the index after the largest force beyond the yield point. An upper yield stress is ignored.
std::size_t endOfUniformStrain(const TensileCurve& curve, double yieldStrain)
{
    const auto begin = std::upper_bound(curve.strain.begin(), curve.strain.end(), yieldStrain) - curve.strain.begin();
    const auto largest = std::max_element(curve.stress.begin() + begin, curve.stress.end());
    return largest == curve.stress.end() ? curve.size() : static_cast<std::size_t>(largest - curve.stress.begin()) + 1;
}

/// Returns the yield point, and the points after it and before `end`, as true stress against plastic strain.
TestData hardeningOf(const TestData& test, const TensileCurve& curve, const ElasticConstants& elastic,
                     const Yield& yield, std::size_t end)
{
    TestData plastic;
    plastic.name = test.name;
    plastic.mode = Mode::Plastic;
    plastic.weight = test.weight;
    plastic.abscissas.push_back(0.0);
    plastic.ordinates.push_back(trueStress(yield.stress, yield.strain, elastic));
    for (std::size_t i = 0; i < end; ++i) {
        if (curve.strain[i] <= yield.strain)
            continue;
        const double stress = trueStress(curve.stress[i], curve.strain[i], elastic);
        const double strain = std::log1p(curve.strain[i]) - stress / elastic.youngsModulus;
        if (strain > 0.0 && std::isfinite(stress)) {
            plastic.abscissas.push_back(strain);
            plastic.ordinates.push_back(stress);
        }
    }
    return plastic;
}

/// Returns the plastic part of a tensile curve whose strain begins at 0.
std::optional<TestData> plasticPart(const TestData& test, const TensileCurve& curve, const ElasticConstants& elastic,
                                    double offset, std::vector<Finding>& findings)
{
    const std::optional<Yield> yield = findYield(curve, elastic.youngsModulus, offset);
    if (!yield) {
        findings.push_back(makeFinding(FindingId::NoPlasticPart, {test.name}));
        return std::nullopt;
    }
    const std::size_t end = endOfUniformStrain(curve, yield->strain);
    if (end < curve.size())
        findings.push_back(
            makeFinding(FindingId::CutAtNecking, {curve.strain[end - 1], static_cast<double>(curve.size() - end)}));
    return hardeningOf(test, curve, elastic, *yield, end);
}

/// Returns the elastic line of the first tensile curve that has an elastic part.
std::optional<Line> modulusOf(const std::vector<TestData>& tests, double offset)
{
    for (const TestData& test : tests) {
        if (test.mode != Mode::Tensile)
            continue;
        if (const auto line = findElasticLine(sorted(test), offset))
            return line;
    }
    return std::nullopt;
}

/// Adds a finding if the given Young's modulus is not that of the curve.
void compareModuli(const Line& measured, double given, std::vector<Finding>& findings)
{
    constexpr double percent = 100.0;
    constexpr double close = 0.01; // about the accuracy of an extensometer
    const double difference = measured.slope / given - 1.0;
    if (std::fabs(difference) > close)
        findings.push_back(
            makeFinding(FindingId::ModulusDiffers, {estimateText(measured.slope, measured.standardError), given,
                                                    roundedText(percent * difference, errorDigits)}));
}

void takeTensile(const PlasticFitRequest& request, const TestData& test, HardeningData& data)
{
    TensileCurve curve = sorted(test);
    if (!request.youngsModulus) {
        const std::optional<Line> line = findElasticLine(curve, request.offset);
        for (double& strain : curve.strain)
            strain -= line ? line->foot : 0.0;
    }
    auto plastic = plasticPart(test, curve, *data.elastic, request.offset, data.findings);
    if (!plastic)
        return;
    data.tests.push_back(std::move(*plastic));
    data.hasTensile = true;
}

/// Returns all points in rising order.
std::vector<HardeningPoint> sortedPoints(const std::vector<TestData>& tests)
{
    std::vector<HardeningPoint> points;
    for (const TestData& test : tests) {
        for (std::size_t i = 0; i < test.abscissas.size(); ++i)
            points.push_back({test.abscissas[i], test.ordinates[i]});
    }
    std::sort(points.begin(), points.end(), [](const HardeningPoint& a, const HardeningPoint& b) {
        return std::pair(a.plasticStrain, a.stress) < std::pair(b.plasticStrain, b.stress);
    });
    return points;
}

/// The mean of neighbouring points.
struct Block
{
    double strain;
    double stress;
    double count;
};

Block joined(const Block& one, const Block& other)
{
    const double count = one.count + other.count;
    return {(one.strain * one.count + other.strain * other.count) / count,
            (one.stress * one.count + other.stress * other.count) / count, count};
}

/// Returns blocks whose strain and stress rise. Joins each block that is not above the one before with it (pool adjacent
/// violators).
std::vector<Block> risingBlocks(const std::vector<HardeningPoint>& points)
{
    std::vector<Block> blocks;
    for (const HardeningPoint& point : points) {
        Block last{point.plasticStrain, point.stress, 1.0};
        while (!blocks.empty() && (last.stress < blocks.back().stress || last.strain <= blocks.back().strain)) {
            last = joined(last, blocks.back());
            blocks.pop_back();
        }
        blocks.push_back(last);
    }
    return blocks;
}

double largestFall(const std::vector<HardeningPoint>& points)
{
    double fall = 0.0;
    double highest = -std::numeric_limits<double>::infinity();
    for (const HardeningPoint& point : points) {
        highest = std::max(highest, point.stress);
        fall = std::max(fall, highest - point.stress);
    }
    return fall;
}

} // namespace

double HardeningData::largestStress() const
{
    double largest = 0.0;
    for (const TestData& test : tests) {
        for (const double stress : test.ordinates)
            largest = std::max(largest, stress);
    }
    return largest;
}

HardeningData takeHardening(const PlasticFitRequest& request)
{
    HardeningData data;
    const std::vector<TestData> tests = usableTests(request.tests, data.findings);
    const auto line = modulusOf(tests, request.offset);
    if (request.youngsModulus && *request.youngsModulus > 0.0) {
        data.elastic = ElasticConstants{*request.youngsModulus, request.poissonsRatio};
        if (line)
            compareModuli(*line, *request.youngsModulus, data.findings);
    } else if (line) {
        data.modulus = MeasuredModulus{line->slope, line->standardError};
        data.elastic = ElasticConstants{line->slope, request.poissonsRatio};
        data.findings.push_back(
            makeFinding(FindingId::ModulusFromCurve, {estimateText(line->slope, line->standardError)}));
    }
    for (const TestData& test : tests) {
        if (test.mode == Mode::Plastic && !test.abscissas.empty())
            data.tests.push_back(test);
        if (test.mode == Mode::Tensile && data.elastic)
            takeTensile(request, test, data);
        if (test.mode == Mode::Tensile && !data.elastic)
            data.findings.push_back(makeFinding(FindingId::NoElasticPart, {test.name}));
    }
    return data;
}

std::vector<HardeningPoint> risingPoints(const HardeningData& data, double tolerance, std::vector<Finding>& findings)
{
    const std::vector<HardeningPoint> points = sortedPoints(data.tests);
    constexpr double percent = 100.0;
    const double fall = largestFall(points);
    const double largest = data.largestStress();
    if (fall > tolerance * largest)
        findings.push_back(makeFinding(FindingId::StressFalls, {roundedText(percent * fall / largest, errorDigits)}));

    std::vector<HardeningPoint> rising;
    for (const Block& block : risingBlocks(points))
        rising.push_back({block.strain, block.stress});
    if (!rising.empty())
        rising.front().plasticStrain = 0.0;
    return rising;
}

namespace {

/// The fewest lines from the first point to a point.
struct Way
{
    std::size_t lines = 0;
    std::size_t before = 0; ///< the point at which the last line begins
};

/// Shortens the ways of all points to which a line from a point leads. The line is allowed if its slope is in the wedge that the
/// points between them leave.
void shortenWays(const std::vector<HardeningPoint>& points, std::size_t from, double tolerance, std::vector<Way>& ways)
{
    double low = -std::numeric_limits<double>::infinity();
    double high = std::numeric_limits<double>::infinity();
    for (std::size_t k = from + 1; k < points.size() && low <= high; ++k) {
        const double length = points[k].plasticStrain - points[from].plasticStrain;
        const double rise = points[k].stress - points[from].stress;
        const double slope = rise / length;
        if (slope >= low && slope <= high && ways[from].lines + 1 < ways[k].lines)
            ways[k] = {ways[from].lines + 1, from};
        low = std::max(low, (rise - tolerance) / length);
        high = std::min(high, (rise + tolerance) / length);
    }
}

} // namespace

std::vector<HardeningPoint> reducePoints(const std::vector<HardeningPoint>& points, double tolerance)
{
    if (points.size() < 3)
        return points;
    const std::size_t none = points.size();
    std::vector<Way> ways(points.size(), Way{none, none});
    ways[0].lines = 0;
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
        shortenWays(points, i, tolerance, ways);
    std::vector<HardeningPoint> reduced;
    for (std::size_t k = points.size() - 1; k != none; k = ways[k].before)
        reduced.push_back(points[k]);
    std::reverse(reduced.begin(), reduced.end());
    return reduced;
}

} // namespace vxConstitutive
