#include "vxConstitutive/fit/PlasticFit.h"

#include "ConstitutiveTesting.h"

#include "vxConstitutive/response/PlasticModel.h"
#include "vxMaterial/model/PropertyId.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

using namespace vxConstitutive;
using vxMat::PropertyId;
using vxtest::firstArgument;
using vxtest::has;
using vxtest::makeTest;
using vxtest::valueAt;

namespace {

const ElasticConstants steel{210e9, 0.3};

const std::vector<double>& listOf(const FitResult& result, std::int32_t id)
{
    static const std::vector<double> none;
    for (const PropertyValue& value : result.change.set) {
        if (value.propertyId == id)
            return value.values;
    }
    ADD_FAILURE() << "no list " << id;
    return none;
}

std::string wordOf(const FitResult& result, std::int32_t id)
{
    for (const PropertyValue& value : result.change.set) {
        if (value.propertyId == id)
            return value.text;
    }
    return {};
}

/// Returns the engineering curve of a model up to a strain. After necking, the stress falls.
TestData tensileTest(const PlasticModel& model, double to, std::size_t points)
{
    return makeTest(Mode::Tensile, evenlySpaced(0.0, to, points), [&](double strain) {
        const auto neck = model.necking();
        const double end = neck ? neck->engineeringStrain : 1e300;
        if (strain <= end)
            return valueAt(model, Mode::Tensile, strain, Quantity::NominalStress);
        return neck->engineeringStress * (1.0 - 3.0 * (strain - end));
    });
}

TEST(MultilinearFit, FindsTheCornersOfAPiecewiseStraightCurve)
{
    const std::vector<HardeningPoint> points{{0.0, 300e6}, {0.02, 400e6}, {0.05, 460e6}, {0.09, 490e6}};
    const PlasticModel model(points, steel);
    PlasticFitRequest request;
    request.tests = {tensileTest(model, 0.0948, 2001)};
    request.youngsModulus = steel.youngsModulus;
    request.poissonsRatio = steel.poissonsRatio;
    request.offset = 1e-4;
    request.tolerance = 0.001;
    const FitResult result = fitMultilinear(request);
    ASSERT_EQ(result.status, FitStatus::Done);
    const auto& stresses = listOf(result, PropertyId::PlasticYieldStress);
    const auto& strains = listOf(result, PropertyId::PlasticStrain);
    ASSERT_EQ(stresses.size(), 4U);
    ASSERT_EQ(strains.size(), 4U);
    EXPECT_EQ(strains[0], 0.0);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(strains[i], points[i].plasticStrain, 1e-3) << i;
        EXPECT_NEAR(stresses[i], points[i].stress, 2e6) << i;
    }
    EXPECT_EQ(wordOf(result, PropertyId::PlasticYieldType), "Mises");
    EXPECT_EQ(wordOf(result, PropertyId::PlasticHardeningType), "Multilinear");
    EXPECT_LT(result.tests.at(0).largestError, 0.001);
}

TEST(MultilinearFit, FewerPointsSufficeForAWiderTolerance)
{
    // A smooth curve: sigma = 300 + 500 ep^0.4 MPa.
    const TestData test = makeTest(Mode::Plastic, evenlySpaced(0.0, 0.3, 301),
                                   [](double ep) { return 300e6 + 500e6 * std::pow(ep, 0.4); });
    PlasticFitRequest request;
    request.tests = {test};
    std::size_t before = 1000;
    for (const double tolerance : {0.0, 0.001, 0.005, 0.02, 0.2}) {
        request.tolerance = tolerance;
        const FitResult result = fitMultilinear(request);
        const std::size_t count = listOf(result, PropertyId::PlasticStrain).size();
        EXPECT_LT(count, before) << tolerance;
        EXPECT_LE(result.tests.at(0).largestError, tolerance + 1e-12);
        before = count;
    }
    EXPECT_EQ(before, 2U);
}

TEST(MultilinearFit, NoCurveWithFewerPointsIsWithinTheTolerance)
{
    // Tries all subsets of the points of a small curve.
    const std::vector<double> strains{0.0, 0.01, 0.02, 0.04, 0.06, 0.09, 0.12, 0.16, 0.2, 0.25};
    const auto curve = [](double ep) { return 300e6 + 500e6 * std::pow(ep, 0.4); };
    PlasticFitRequest request;
    request.tests = {makeTest(Mode::Plastic, strains, curve)};
    request.tolerance = 0.02;
    const std::size_t found = listOf(fitMultilinear(request), PropertyId::PlasticStrain).size();
    std::size_t fewest = strains.size();
    for (unsigned subset = 0; subset < 256; ++subset) { // of the eight inner points
        std::vector<HardeningPoint> points{{strains[0], curve(strains[0])}};
        for (std::size_t i = 0; i < 8; ++i) {
            if ((subset >> i & 1U) != 0)
                points.push_back({strains[i + 1], curve(strains[i + 1])});
        }
        points.push_back({strains[9], curve(strains[9])});
        const PlasticModel model(points, std::nullopt);
        const bool within = std::all_of(strains.begin(), strains.end(), [&](double ep) {
            return std::fabs(model.stressAt(ep) - curve(ep)) <= 0.02 * curve(0.25);
        });
        if (within)
            fewest = std::min(fewest, points.size());
    }
    EXPECT_EQ(found, fewest);
}

TEST(MultilinearFit, LeavesOutThePartAfterNecking)
{
    const PlasticModel model({{0.0, 300e6}, {0.1, 500e6}, {0.3, 520e6}}, steel);
    const auto neck = model.necking();
    ASSERT_TRUE(neck.has_value());
    PlasticFitRequest request;
    request.tests = {tensileTest(model, 0.2, 401)};
    request.youngsModulus = steel.youngsModulus;
    const FitResult result = fitMultilinear(request);
    EXPECT_NEAR(std::stod(firstArgument(result.findings, FindingId::CutAtNecking)), neck->engineeringStrain, 0.0006);
    EXPECT_NEAR(listOf(result, PropertyId::PlasticStrain).back(), 0.1, 0.002);
}

TEST(MultilinearFit, TakesYoungsModulusFromTheCurveAndMovesItsFoot)
{
    const PlasticModel model({{0.0, 300e6}, {0.1, 500e6}}, steel);
    TestData test = tensileTest(model, 0.1, 5001);
    for (double& strain : test.abscissas)
        strain += 0.0004; // slack of the grips
    PlasticFitRequest request;
    request.tests = {test};
    request.poissonsRatio = 0.3;
    const FitResult result = fitMultilinear(request);
    const FittedConstant* const modulus = result.find(PropertyId::YoungsModulus);
    ASSERT_NE(modulus, nullptr);
    EXPECT_NEAR(modulus->value, 210e9, 0.005 * 210e9);
    EXPECT_TRUE(has(result.findings, FindingId::ModulusFromCurve));
    EXPECT_NEAR(listOf(result, PropertyId::PlasticYieldStress)[0], 300e6 + 0.002 * 2e9, 2e6);
    request.youngsModulus = 210e9;
    EXPECT_EQ(fitMultilinear(request).find(PropertyId::YoungsModulus), nullptr);
}

TEST(MultilinearFit, SaysThatTheGivenModulusIsNotThatOfTheCurve)
{
    const PlasticModel model({{0.0, 300e6}, {0.1, 500e6}}, steel);
    PlasticFitRequest request;
    request.tests = {tensileTest(model, 0.1, 5001)};
    request.youngsModulus = 1.005 * 210e9;
    EXPECT_FALSE(has(fitMultilinear(request).findings, FindingId::ModulusDiffers));
    request.youngsModulus = 190e9;
    for (const FitResult& result : {fitMultilinear(request), fitBilinear(request)}) {
        ASSERT_TRUE(has(result.findings, FindingId::ModulusDiffers));
        EXPECT_NEAR(std::stod(firstArgument(result.findings, FindingId::ModulusDiffers, 0)), 210e9, 1e9);
        EXPECT_EQ(firstArgument(result.findings, FindingId::ModulusDiffers, 1), "1.9e+11");
        EXPECT_NEAR(std::stod(firstArgument(result.findings, FindingId::ModulusDiffers, 2)), 10.5, 0.5);
        EXPECT_EQ(result.youngsModulus, 190e9);
    }
}

TEST(MultilinearFit, SetsTheModulusWithWhichTheElasticPartWasTakenOff)
{
    const PlasticModel model({{0.0, 300e6}, {0.1, 500e6}}, steel);
    const auto modulusOf = [](const FitResult& result) {
        for (const PropertyValue& value : result.change.set) {
            if (value.propertyId == PropertyId::YoungsModulus)
                return value.value;
        }
        return 0.0;
    };
    PlasticFitRequest request;
    request.tests = {tensileTest(model, 0.1, 5001)};
    EXPECT_NEAR(modulusOf(fitMultilinear(request)), 210e9, 1e9);
    request.youngsModulus = 200e9;
    EXPECT_EQ(modulusOf(fitMultilinear(request)), 200e9);
    EXPECT_EQ(modulusOf(fitBilinear(request)), 200e9);
    request.tests = {makeTest(Mode::Plastic, evenlySpaced(0.0, 0.1, 11), [](double ep) { return 3e8 + 1e9 * ep; })};
    EXPECT_EQ(modulusOf(fitMultilinear(request)), 0.0) << "nothing was taken off";
    EXPECT_FALSE(fitMultilinear(request).youngsModulus.has_value());
}

TEST(MultilinearFit, AveragesNoiseUntilTheStressDoesNotFall)
{
    std::mt19937 random(5);
    std::normal_distribution<double> noise(0.0, 5e6);
    TestData test = makeTest(Mode::Plastic, evenlySpaced(0.0, 0.2, 2000),
                             [&](double ep) { return 300e6 + 400e6 * std::sqrt(ep) + noise(random); });
    std::shuffle(test.ordinates.begin(), test.ordinates.end(), random); // and once without any order
    PlasticFitRequest request;
    request.tests = {test};
    for (int pass = 0; pass < 2; ++pass) {
        const FitResult result = fitMultilinear(request);
        const auto& stresses = listOf(result, PropertyId::PlasticYieldStress);
        const auto& strains = listOf(result, PropertyId::PlasticStrain);
        EXPECT_TRUE(std::is_sorted(stresses.begin(), stresses.end()));
        EXPECT_TRUE(std::adjacent_find(strains.begin(), strains.end(), std::greater_equal<>()) == strains.end());
        EXPECT_TRUE(has(result.findings, FindingId::StressFalls));
        EXPECT_LT(stresses.size(), 40U);
        request.tests = {makeTest(Mode::Plastic, evenlySpaced(0.0, 0.2, 2000),
                                  [&](double ep) { return 300e6 + 400e6 * std::sqrt(ep) + noise(random); })};
    }
}

TEST(MultilinearFit, CurvesThatDoNotYieldOrHaveNoElasticPartAreRefused)
{
    PlasticFitRequest request;
    request.tests = {makeTest(Mode::Tensile, evenlySpaced(0.0, 0.001, 11), [](double e) { return 210e9 * e; })};
    FitResult result = fitMultilinear(request);
    EXPECT_EQ(result.status, FitStatus::Failed);
    EXPECT_TRUE(has(result.findings, FindingId::NoPlasticPart));
    request.tests = {makeTest(Mode::Tensile, {0.1, 0.2}, [](double) { return 400e6; })};
    result = fitMultilinear(request);
    EXPECT_TRUE(has(result.findings, FindingId::NoElasticPart));
    request.tests.clear();
    EXPECT_TRUE(has(fitMultilinear(request).findings, FindingId::DataMissing));
    EXPECT_TRUE(has(fitBilinear(request).findings, FindingId::DataMissing));
}

TEST(BilinearFit, FindsTheConstantsOfExactData)
{
    const PlasticModel model(250e6, 1.45e9, steel);
    PlasticFitRequest request;
    request.tests = {tensileTest(model, 0.1, 1001)};
    request.youngsModulus = steel.youngsModulus;
    request.poissonsRatio = steel.poissonsRatio;
    const FitResult result = fitBilinear(request);
    ASSERT_NE(result.find(PropertyId::PlasticHardeningFactor), nullptr);
    EXPECT_NEAR(result.find(PropertyId::PlasticInitialYieldStress)->value, 250e6, 1e5);
    EXPECT_NEAR(result.find(PropertyId::PlasticHardeningFactor)->value, 1.45e9, 2e6);
    EXPECT_EQ(wordOf(result, PropertyId::PlasticHardeningType), "Bilinear");
}

TEST(BilinearFit, StandardErrorsAreThoseOfLinearRegression)
{
    // By hand: points (0, 1), (1, 2), (2, 4): line 5/6 + 3/2 x; residuals 1/6, -1/3, 1/6, variance 1/6.
    PlasticFitRequest request;
    request.tests = {makeTest(Mode::Plastic, {0.0, 1.0, 2.0}, [](double x) { return x == 2.0 ? 4.0 : 1.0 + x; })};
    const FitResult result = fitBilinear(request);
    const FittedConstant* const slope = result.find(PropertyId::PlasticHardeningFactor);
    const FittedConstant* const yield = result.find(PropertyId::PlasticInitialYieldStress);
    ASSERT_TRUE(slope != nullptr && yield != nullptr);
    EXPECT_NEAR(yield->value, 5.0 / 6.0, 1e-9);
    EXPECT_NEAR(slope->value, 1.5, 1e-9);
    EXPECT_NEAR(slope->standardError.value_or(0.0), std::sqrt(1.0 / 6.0 / 2.0), 1e-9);
    EXPECT_NEAR(yield->standardError.value_or(0.0), std::sqrt(1.0 / 6.0 * 5.0 / 6.0), 1e-9);
}

TEST(BilinearFit, SofteningEndsAtTheBoundOfNoHardening)
{
    PlasticFitRequest request;
    request.tests = {makeTest(Mode::Plastic, {0.0, 0.1, 0.2}, [](double x) { return 400e6 - 1e8 * x; })};
    const FitResult result = fitBilinear(request);
    EXPECT_EQ(result.find(PropertyId::PlasticHardeningFactor)->determination, Determination::AtBound);
    request.bounds[PropertyId::PlasticHardeningFactor] = {-1e9, 1e9};
    EXPECT_NEAR(fitBilinear(request).find(PropertyId::PlasticHardeningFactor)->value, -1e8, 1.0);
}

TEST(PlasticFitControl, CanBeCancelled)
{
    PlasticFitRequest request;
    request.tests = {makeTest(Mode::Plastic, {0.0, 0.1, 0.2}, [](double x) { return 400e6 + 1e8 * x; })};
    FitControl control;
    control.cancelled = [] { return true; };
    for (const FitResult& result : {fitMultilinear(request, control), fitBilinear(request, control)}) {
        EXPECT_EQ(result.status, FitStatus::Cancelled);
        EXPECT_TRUE(has(result.findings, FindingId::Cancelled));
    }
}

TEST(PlasticFitRobustness, AnyCurveEndsInAResultOrFindings)
{
    const std::vector<TestData> tests{
        makeTest(Mode::Tensile, {0.1}, [](double) { return 1e6; }),
        makeTest(Mode::Tensile, {0.0, 0.0, 0.0}, [](double) { return 0.0; }),
        makeTest(Mode::Tensile, {0.0, 0.1, 0.1, 0.1}, [](double x) { return x; }),
        makeTest(Mode::Tensile, evenlySpaced(-0.5, 0.5, 100), [](double x) { return std::sin(100.0 * x) * 1e9; }),
        makeTest(Mode::Tensile, evenlySpaced(0.0, 0.5, 100), [](double x) { return -1e9 * x; }),
        makeTest(Mode::Tensile, evenlySpaced(0.0, 1e300, 100), [](double x) { return x; }),
        makeTest(Mode::Plastic, {0.3, 0.3, 0.3}, [](double) { return 1e6; }),
        makeTest(Mode::Plastic, {0.0, 1.0}, [](double) { return -1e6; }),
        makeTest(Mode::Uniaxial, {1.0, 1.1}, [](double x) { return x; })};
    for (const TestData& test : tests) {
        PlasticFitRequest request;
        request.tests = {test};
        for (const FitResult& result : {fitMultilinear(request), fitBilinear(request)})
            EXPECT_TRUE(result.fitted != nullptr || !result.findings.empty());
    }
}

} // namespace
