#include "vxConstitutive/fit/Ranking.h"

#include "ConstitutiveTesting.h"

#include "vxConstitutive/fit/HyperelasticFit.h"
#include "vxConstitutive/response/HyperelasticModel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace vxConstitutive;
using vxtest::firstArgument;
using vxtest::has;
using vxtest::makeTest;

namespace {

/// Returns a fitted model as rankFits() sees it.
FitResult resultOf(const std::string& model, double residual, std::size_t freeConstants, std::size_t points = 25)
{
    HyperelasticConstants constants;
    constants.c10 = 1.0;
    FitResult result;
    result.model = model;
    result.status = FitStatus::Done;
    result.residual = residual;
    result.points = points;
    result.freeConstants = freeConstants;
    result.resolution = 0.001;
    result.fitted = std::make_shared<HyperelasticModel>(constants);
    return result;
}

std::vector<FitResult> ranked(std::vector<FitResult> results)
{
    rankFits(results);
    return results;
}

FitResult with(FitResult result, Determination determination)
{
    FittedConstant constant;
    constant.determination = determination;
    result.constants.push_back(constant);
    return result;
}

TEST(RankingOfFits, IsByTheCorrectedCriterionOfSchwarz)
{
    const auto results = ranked({resultOf("one", 0.1, 1), resultOf("two", 0.05, 2)});
    EXPECT_EQ(results[0].model, "two");
    EXPECT_NEAR(results[0].criterion, 25.0 * std::log(0.05 * 0.05 + 1e-6) + 25.0 * 2.0 * std::log(25.0) / 21.0, 1e-9);
    EXPECT_NEAR(results[1].criterion, 25.0 * std::log(0.1 * 0.1 + 1e-6) + 25.0 * 1.0 * std::log(25.0) / 22.0, 1e-9);
}

TEST(RankingOfFits, AFurtherConstantMustLowerTheResidual)
{
    EXPECT_EQ(ranked({resultOf("one", 0.1, 1), resultOf("two", 0.1 / 1.07, 2)})[0].model, "one");
    EXPECT_EQ(ranked({resultOf("one", 0.1, 1), resultOf("two", 0.1 / 1.10, 2)})[0].model, "two");
    const auto longCurve = [](double part) {
        return ranked({resultOf("one", 0.1, 1, 100000), resultOf("two", 0.1 / part, 2, 100000)})[0].model;
    };
    EXPECT_EQ(longCurve(1.02), "one") << "a hundred thousand points of one curve are no hundred thousand tests";
    EXPECT_EQ(longCurve(1.03), "two");
}

TEST(RankingOfFits, ResidualsBelowTheAccuracyOfTestsAreEqual)
{
    EXPECT_EQ(ranked({resultOf("three", 1e-12, 3), resultOf("two", 1e-9, 2), resultOf("one", 1e-5, 1)})[0].model,
              "one");
}

TEST(RankingOfFits, AConstantForEachPointIsNoModel)
{
    EXPECT_EQ(ranked({resultOf("three", 1e-12, 3, 3), resultOf("one", 0.2, 1, 3)})[0].model, "one");
    EXPECT_EQ(ranked({resultOf("two", 1e-12, 2, 1), resultOf("one", 1e-12, 1, 1)})[0].model, "one");
}

TEST(RankingOfFits, DoubtfulModelsAreBehindOthersOfAboutEqualResidual)
{
    const FitResult sure = resultOf("sure", 0.1, 2);
    FitResult unstable = resultOf("unstable", 0.098, 2);
    unstable.findings.push_back(makeFinding(FindingId::StabilityNotReached, {unstable.model}));
    for (const FitResult& doubtful : {with(resultOf("poor", 0.098, 2), Determination::Poor),
                                      with(resultOf("at its bound", 0.098, 2), Determination::AtBound), unstable})
    {
        const auto results = ranked({doubtful, sure});
        EXPECT_EQ(results[0].model, "sure");
        EXPECT_EQ(firstArgument(results[1].findings, FindingId::RankedForDoubts), "sure");
    }
    EXPECT_EQ(ranked({with(resultOf("poor", 0.05, 2), Determination::Poor), sure})[0].model, "poor");
    EXPECT_EQ(ranked({with(resultOf("arbitrary", 0.05, 2), Determination::Undetermined), sure})[0].model, "sure");
}

TEST(RankingOfFits, SaysWhyTheLeastResidualIsNotFirst)
{
    const auto results = ranked({resultOf("two", 0.0987, 2), resultOf("one", 0.1, 1), resultOf("worse", 0.3, 2)});
    const std::vector<Finding>& findings = results[1].findings;
    ASSERT_TRUE(has(findings, FindingId::RankedForConstants));
    EXPECT_EQ(describe(findings[0]),
              "The residual is less than that of one (0.0987 instead of 0.1), but not by so much that "
              "2 free constants are better than 1.");
    EXPECT_TRUE(results[0].findings.empty());
    EXPECT_TRUE(results[2].findings.empty());
}

TEST(RankingOfFits, FailedModelsAreLast)
{
    FitResult failed;
    failed.model = "failed";
    const auto results = ranked({failed, with(resultOf("arbitrary", 0.5, 2), Determination::Undetermined)});
    EXPECT_EQ(results[1].model, "failed");
    EXPECT_TRUE(results[1].findings.empty());
}

TEST(RankingOfFits, NoiseSeldomMakesAModelWithNeedlessConstantsTheFirst)
{
    std::mt19937 random(11);
    std::normal_distribution<double> noise(0.0, 8e3); // 1 % of the largest stress
    constexpr int trials = 60;
    int right = 0;
    for (int trial = 0; trial < trials; ++trial) {
        HyperelasticFitRequest request;
        request.tests = {makeTest(Mode::Uniaxial, evenlySpaced(1.1, 2.0, 20),
                                  [&](double l) { return 4e5 * (l - 1.0 / (l * l)) + noise(random); })};
        right += fitHyperelastic(request).front().model == "Neo-Hookean" ? 1 : 0;
    }
    EXPECT_GE(right, trials * 85 / 100) << "of " << trials;
}

} // namespace
