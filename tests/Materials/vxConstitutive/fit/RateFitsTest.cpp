#include "vxConstitutive/fit/RateFits.h"

#include "ConstitutiveTesting.h"

#include "vxConstitutive/response/NortonModel.h"
#include "vxMaterial/model/PropertyId.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace vxConstitutive;
using vxMat::PropertyId;
using vxtest::has;
using vxtest::makeTest;

namespace {

/// Returns a creep curve without noise.
TestData creepTest(double a, double n, double m, double stress, const std::vector<double>& times)
{
    TestData test = makeTest(Mode::Creep, times, [=](double t) {
        return std::copysign(std::exp(std::log(a) + n * std::log(std::fabs(stress))), stress) * std::pow(t, m + 1.0) /
               (m + 1.0);
    });
    test.parameter = stress;
    return test;
}

double fittedValue(const FitResult& result, std::int32_t id)
{
    const FittedConstant* const constant = result.find(id);
    return constant != nullptr ? constant->value : std::nan("");
}

const std::vector<double> hours{0.0, 3.6e3, 3.6e4, 1.8e5, 3.6e5};

TEST(NortonFit, FindsTheConstantsOfCreepCurves)
{
    struct Case
    {
        double a;
        double n;
        double m;
    };
    for (const Case& c : {Case{1e-46, 5.0, 0.0}, Case{3e-30, 3.0, -0.4}, Case{1e-90, 10.0, -0.8}}) {
        NortonFitRequest request;
        for (const double stress : {50e6, 100e6, 150e6})
            request.tests.push_back(creepTest(c.a, c.n, c.m, stress, hours));
        const FitResult result = fitNorton(request);
        ASSERT_EQ(result.status, FitStatus::Done);
        EXPECT_NEAR(std::log10(fittedValue(result, PropertyId::CreepModulusA)), std::log10(c.a), 1e-6);
        EXPECT_NEAR(fittedValue(result, PropertyId::CreepModulusN), c.n, 1e-7);
        EXPECT_NEAR(fittedValue(result, PropertyId::CreepModulusM), c.m, 1e-7);
        EXPECT_LT(result.residual, 1e-8);
    }
}

TEST(NortonFit, CompressionCreepsLikeTension)
{
    NortonFitRequest request;
    request.tests = {creepTest(1e-46, 5.0, -0.3, 80e6, hours), creepTest(1e-46, 5.0, -0.3, -120e6, hours)};
    EXPECT_NEAR(fittedValue(fitNorton(request), PropertyId::CreepModulusN), 5.0, 1e-6);
}

TEST(NortonFit, RatesGiveSecondaryCreep)
{
    NortonFitRequest request;
    request.tests = {makeTest(Mode::CreepRate, {50e6, 80e6, 130e6}, [](double s) { return 2e-46 * std::pow(s, 5.0); })};
    const FitResult result = fitNorton(request);
    EXPECT_NEAR(fittedValue(result, PropertyId::CreepModulusN), 5.0, 1e-7);
    EXPECT_EQ(fittedValue(result, PropertyId::CreepModulusM), 0.0);
    EXPECT_EQ(result.find(PropertyId::CreepModulusM)->determination, Determination::Fixed);
    EXPECT_NEAR(std::log10(fittedValue(result, PropertyId::CreepModulusA)), std::log10(2e-46), 1e-6);
    request.tests.push_back(creepTest(1e-46, 5.0, 0.0, 80e6, hours));
    EXPECT_TRUE(has(fitNorton(request).findings, FindingId::RatesIgnored));
}

TEST(NortonFit, OneStressDoesNotDetermineItsExponent)
{
    NortonFitRequest request;
    request.tests = {creepTest(1e-46, 5.0, -0.3, 80e6, hours)};
    FitResult result = fitNorton(request);
    EXPECT_TRUE(has(result.findings, FindingId::OneStressOnly));
    EXPECT_EQ(result.find(PropertyId::CreepModulusN)->determination, Determination::Undetermined);
    EXPECT_NEAR(fittedValue(result, PropertyId::CreepModulusM), -0.3, 1e-7);
    request.bounds[PropertyId::CreepModulusN] = {5.0, 5.0};
    result = fitNorton(request);
    EXPECT_NEAR(std::log10(fittedValue(result, PropertyId::CreepModulusA)), -46.0, 1e-6);
}

TEST(NortonFit, SecondaryCreepHasATimeExponentOfExactlyZero)
{
    NortonFitRequest request;
    request.tests = {
        makeTest(Mode::Creep, {0.0, 3600.0, 7200.0, 10800.0, 14400.0}, [](double t) { return 1e-3 * t / 3600.0; })};
    request.tests[0].parameter = 1e8;
    request.bounds[PropertyId::CreepModulusN] = {3.0, 3.0};
    const FitResult result = fitNorton(request);
    EXPECT_EQ(fittedValue(result, PropertyId::CreepModulusM), 0.0);
}

TEST(NortonFit, StandardErrorsCoverTheScatterOfManyFits)
{
    // The scatter of the results of many fits with different noise must agree with the standard errors.
    std::mt19937 random(11);
    std::normal_distribution<double> noise(0.0, 0.01);
    double sum = 0.0;
    double squares = 0.0;
    double errors = 0.0;
    constexpr int fits = 200;
    for (int i = 0; i < fits; ++i) {
        NortonFitRequest request;
        request.tests = {creepTest(1e-46, 5.0, -0.3, 80e6, evenlySpaced(3.6e3, 3.6e5, 20)),
                         creepTest(1e-46, 5.0, -0.3, 100e6, evenlySpaced(3.6e3, 3.6e5, 20))};
        for (TestData& test : request.tests) {
            for (double& strain : test.ordinates)
                strain += noise(random) * test.ordinates.back();
        }
        const FitResult result = fitNorton(request);
        const FittedConstant* const n = result.find(PropertyId::CreepModulusN);
        ASSERT_TRUE(n != nullptr && n->standardError);
        sum += n->value;
        squares += n->value * n->value;
        errors += *n->standardError / fits;
    }
    const double mean = sum / fits;
    const double scatter = std::sqrt(squares / fits - mean * mean);
    EXPECT_NEAR(mean, 5.0, 4.0 * scatter / std::sqrt(fits));
    EXPECT_NEAR(errors, scatter, 0.2 * scatter);
}

TEST(NortonFit, BadDataAndCancellingEndInFindings)
{
    NortonFitRequest request;
    EXPECT_TRUE(has(fitNorton(request).findings, FindingId::DataMissing));
    request.tests = {creepTest(1e-46, 5.0, 0.0, 80e6, {})};
    EXPECT_EQ(fitNorton(request).status, FitStatus::Failed);
    request.tests = {creepTest(1e-46, 5.0, 0.0, 80e6, {0.0})};
    EXPECT_EQ(fitNorton(request).status, FitStatus::Failed); // all strains are 0
    for (const double stress : {0.0, -1e8, 1e300}) {
        request.tests = {makeTest(Mode::Creep, hours, [](double t) { return 1e-9 * t; })};
        request.tests[0].parameter = stress;
        EXPECT_FALSE(fitNorton(request).findings.empty());
    }
    request.tests = {creepTest(1e-46, 5.0, 0.0, 80e6, hours), creepTest(1e-46, 5.0, 0.0, 90e6, hours)};
    int calls = 0;
    FitControl control;
    control.cancelled = [&] { return ++calls > 7; };
    const FitResult result = fitNorton(request, control);
    EXPECT_EQ(result.status, FitStatus::Cancelled);
    EXPECT_TRUE(has(result.findings, FindingId::Cancelled));
}

TestData relaxationTest(double modulus, double g, double tau, const std::vector<double>& times)
{
    return makeTest(Mode::Relaxation, times, [=](double t) { return modulus * (1.0 - g + g * std::exp(-t / tau)); });
}

TEST(RelaxationFit, FindsTheConstantsOfExactData)
{
    for (const double tau : {0.1, 3.0, 80.0}) {
        RelaxationFitRequest request;
        request.tests = {relaxationTest(2e6, 0.6, tau, spacedByFactor(0.01, 100.0, 40))};
        const FitResult result = fitRelaxation(request);
        ASSERT_EQ(result.status, FitStatus::Done);
        EXPECT_NEAR(fittedValue(result, PropertyId::ShearRelaxationModulus), 0.6, 1e-6) << tau;
        EXPECT_NEAR(fittedValue(result, PropertyId::RelaxationTime), tau, 1e-5 * tau);
        EXPECT_NEAR(result.find(0)->value, 2e6, 1.0);
        EXPECT_EQ(result.change.set.size(), 3U);
    }
}

TEST(RelaxationFit, ARelaxationTimeOutsideTheDataIsReported)
{
    RelaxationFitRequest request;
    request.tests = {relaxationTest(2e6, 0.6, 1000.0, evenlySpaced(0.0, 10.0, 40))};
    EXPECT_TRUE(has(fitRelaxation(request).findings, FindingId::RelaxationTimeOutside));
}

TEST(RelaxationFit, AModulusThatDoesNotRelaxHasNoRelaxationTime)
{
    RelaxationFitRequest request;
    request.tests = {makeTest(Mode::Relaxation, evenlySpaced(0.0, 10.0, 40), [](double) { return 2e6; })};
    const FitResult result = fitRelaxation(request);
    EXPECT_NEAR(fittedValue(result, PropertyId::ShearRelaxationModulus), 0.0, 1e-6);
    EXPECT_NE(result.find(PropertyId::RelaxationTime)->determination, Determination::Determined);
}

TEST(RelaxationFit, BadDataAndCancellingEndInFindings)
{
    RelaxationFitRequest request;
    EXPECT_TRUE(has(fitRelaxation(request).findings, FindingId::DataMissing));
    request.tests = {makeTest(Mode::Relaxation, {0.0}, [](double) { return 2e6; })};
    EXPECT_FALSE(fitRelaxation(request).findings.empty());
    request.tests = {makeTest(Mode::Relaxation, {1.0, 2.0}, [](double) { return 0.0; })};
    EXPECT_EQ(fitRelaxation(request).status, FitStatus::Failed);
    request.tests = {makeTest(Mode::Relaxation, evenlySpaced(0.0, 10.0, 5), [](double t) { return 1.0 + t; })};
    EXPECT_FALSE(fitRelaxation(request).findings.empty());
    FitControl control;
    control.cancelled = [] { return true; };
    EXPECT_EQ(fitRelaxation(request, control).status, FitStatus::Cancelled);
}

} // namespace
