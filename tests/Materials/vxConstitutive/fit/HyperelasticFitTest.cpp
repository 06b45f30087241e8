#include "vxConstitutive/fit/HyperelasticFit.h"

#include "ConstitutiveTesting.h"

#include "vxConstitutive/response/HyperelasticModel.h"
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

const std::vector<double> stretches = evenlySpaced(1.1, 3.0, 20);

HyperelasticConstants constantsOf(ModelKind kind, double a, double b, double c = 0.0)
{
    HyperelasticConstants constants;
    constants.kind = kind;
    constants.c10 = a;
    constants.c01 = b;
    constants.c11 = c;
    constants.mu = a;
    constants.limitingStretch = b;
    return constants;
}

/// Returns the test data of a model, without noise.
TestData exactTest(const HyperelasticConstants& constants, Mode mode, const std::vector<double>& abscissas)
{
    const HyperelasticModel model(constants);
    const Quantity quantity = mode == Mode::SimpleShear ? Quantity::NominalShearStress : Quantity::NominalStress;
    return makeTest(mode, abscissas, [&](double at) { return valueAt(model, mode, at, quantity); });
}

FitResult fitOne(HyperelasticForm form, std::vector<TestData> tests,
                 StabilityDemand stability = StabilityDemand::OverData)
{
    HyperelasticFitRequest request;
    request.tests = std::move(tests);
    request.forms = {form};
    request.stability = stability;
    return fitHyperelastic(request).front();
}

double fittedValue(const FitResult& result, std::int32_t id)
{
    const FittedConstant* const constant = result.find(id);
    if (constant == nullptr) {
        ADD_FAILURE() << result.model << " has no constant " << id;
        return std::nan("");
    }
    return constant->value;
}

double changed(const FitResult& result, std::int32_t id)
{
    for (const PropertyValue& value : result.change.set) {
        if (value.propertyId == id)
            return value.value;
    }
    ADD_FAILURE() << result.model << " does not set " << id;
    return std::nan("");
}

/// Returns a test in simple shear. Its Neo-Hookean fit is a straight line through 0 with the slope 2 C10.
TestData shearOf(std::vector<double> amounts, std::vector<double> stresses)
{
    TestData test = makeTest(Mode::SimpleShear, amounts, [](double) { return 0.0; });
    test.ordinates = std::move(stresses);
    return test;
}

// --- Results ---

TEST(HyperelasticFit, FindsTheConstantsOfExactData)
{
    const auto neoHooke = constantsOf(ModelKind::NeoHooke, 4e5, 0.0);
    EXPECT_NEAR(fittedValue(fitOne(HyperelasticForm::NeoHooke, {exactTest(neoHooke, Mode::Planar, stretches)}),
                            PropertyId::MaterialConstantC10),
                4e5, 1e-4);

    const auto mooney = constantsOf(ModelKind::MooneyRivlin, 3e5, 5e4);
    for (const Mode mode : {Mode::Uniaxial, Mode::Equibiaxial}) {
        const FitResult result = fitOne(HyperelasticForm::MooneyRivlin, {exactTest(mooney, mode, stretches)});
        EXPECT_NEAR(fittedValue(result, PropertyId::MaterialConstantC10), 3e5, 1e-3) << modeRecord(mode).name;
        EXPECT_NEAR(fittedValue(result, PropertyId::MaterialConstantC01), 5e4, 1e-3);
        EXPECT_LT(result.residual, 1e-9);
        EXPECT_NEAR(result.rSquared, 1.0, 1e-12);
    }

    const auto mixed = constantsOf(ModelKind::MooneyRivlin, 3e5, 5e4, 2e4);
    const FitResult three =
        fitOne(HyperelasticForm::MooneyRivlinC11,
               {exactTest(mixed, Mode::Uniaxial, stretches), exactTest(mixed, Mode::SimpleShear, {0.5, 1.0, 2.0})});
    EXPECT_NEAR(fittedValue(three, PropertyId::MaterialConstantC10), 3e5, 1e-2);
    EXPECT_NEAR(fittedValue(three, PropertyId::MaterialConstantC01), 5e4, 1e-2);
    EXPECT_NEAR(fittedValue(three, PropertyId::MaterialConstantC11), 2e4, 1e-2);

    for (const double limit : {1.8, 2.5, 6.0}) {
        const auto chains = constantsOf(ModelKind::ArrudaBoyce, 3e5, limit);
        const FitResult result =
            fitOne(HyperelasticForm::ArrudaBoyce,
                   {exactTest(chains, Mode::Uniaxial, stretches), exactTest(chains, Mode::Equibiaxial, stretches)});
        EXPECT_NEAR(fittedValue(result, PropertyId::InitialShearModulusMu), 3e5, 1.0) << limit;
        EXPECT_NEAR(fittedValue(result, PropertyId::LimitingNetworkStretch), limit, 1e-5);
    }
}

TEST(HyperelasticFit, StandardErrorsAreThoseOfLinearRegression)
{
    // By hand: slope 1.2 = (2 * 2 + 4 * 5)/(4 + 16); residuals 0.4 and -0.2; variance 0.2/1, of the slope 0.2/20.
    const FitResult result = fitOne(HyperelasticForm::NeoHooke, {shearOf({1.0, 2.0}, {2.0, 5.0})});
    const FittedConstant* const c10 = result.find(PropertyId::MaterialConstantC10);
    ASSERT_NE(c10, nullptr);
    EXPECT_NEAR(c10->value, 1.2, 1e-12);
    ASSERT_TRUE(c10->standardError.has_value());
    EXPECT_NEAR(*c10->standardError, 0.1, 1e-12);
    EXPECT_EQ(c10->determination, Determination::Determined);
    EXPECT_NEAR(result.tests.at(0).rms, std::sqrt(0.1), 1e-12);
    EXPECT_NEAR(result.tests.at(0).relativeError, std::sqrt(0.1) / 5.0, 1e-12);
    EXPECT_NEAR(result.tests.at(0).largestError, 0.08, 1e-12);
    EXPECT_NEAR(result.tests.at(0).rSquared, 1.0 - 0.2 / 4.5, 1e-12);
    EXPECT_NEAR(result.residual, std::sqrt(0.1) / 5.0, 1e-12);
}

TEST(HyperelasticFit, TheErrorMeasureSetsTheWeightOfSmallStrains)
{
    // Two slopes that contradict each other: 2 at small and 1 at large amounts of shear.
    HyperelasticFitRequest request;
    request.forms = {HyperelasticForm::NeoHooke};
    request.tests = {shearOf({0.1}, {0.4}), shearOf({10.0}, {20.0})};
    const auto c10 = [&](ErrorMeasure error) {
        request.error = error;
        return fittedValue(fitHyperelastic(request).front(), PropertyId::MaterialConstantC10);
    };
    EXPECT_NEAR(c10(ErrorMeasure::Absolute), 400.08 / 400.04, 1e-9); // (0.2 * 0.4 + 20 * 20)/(0.04 + 400)
    // By the largest of each: (0.5 * 1 + 1 * 1)/(0.25 + 1)
    EXPECT_NEAR(c10(ErrorMeasure::OfLargest), 1.2, 1e-9);
    request.tests = {shearOf({0.1, 10.0}, {0.4, 20.0})};
    EXPECT_NEAR(c10(ErrorMeasure::OfEach), 1.2, 1e-9);
}

TEST(HyperelasticFit, WeightsPullTowardsTheirTest)
{
    HyperelasticFitRequest request;
    request.forms = {HyperelasticForm::NeoHooke};
    request.tests = {shearOf({1.0}, {2.0}), shearOf({1.0}, {4.0})};
    request.tests[0].weight = 1e6;
    EXPECT_NEAR(fittedValue(fitHyperelastic(request).front(), PropertyId::MaterialConstantC10), 1.0, 1e-5);
    request.tests[0].weight = 0.0; // left out
    EXPECT_NEAR(fittedValue(fitHyperelastic(request).front(), PropertyId::MaterialConstantC10), 2.0, 1e-9);
}

TEST(HyperelasticFit, DoesNotDependOnTheOrderOfPoints)
{
    auto test = vxtest::rubberTest("treloar-uniaxial.csv", Mode::Uniaxial);
    HyperelasticFitRequest request;
    request.tests = {test};
    const auto before = fitHyperelastic(request);
    std::mt19937 random(7);
    for (std::size_t i = test.abscissas.size(); i > 1; --i) {
        const std::size_t k = random() % i;
        std::swap(test.abscissas[i - 1], test.abscissas[k]);
        std::swap(test.ordinates[i - 1], test.ordinates[k]);
    }
    request.tests = {test};
    const auto after = fitHyperelastic(request);
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_EQ(before[i].model, after[i].model);
        for (std::size_t k = 0; k < before[i].constants.size(); ++k)
            EXPECT_EQ(before[i].constants[k].value, after[i].constants[k].value);
    }
}

TEST(HyperelasticFit, TheRightModelIsRankedFirst)
{
    std::mt19937 random(3);
    std::normal_distribution<double> noise(0.0, 2e3);
    const auto noisy = [&](const HyperelasticConstants& constants) {
        HyperelasticFitRequest request;
        for (const Mode mode : {Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar}) {
            request.tests.push_back(exactTest(constants, mode, stretches));
            for (double& stress : request.tests.back().ordinates)
                stress += noise(random);
        }
        return fitHyperelastic(request).front().model;
    };
    EXPECT_EQ(noisy(constantsOf(ModelKind::ArrudaBoyce, 3e5, 2.2)), "Arruda-Boyce");
    EXPECT_EQ(noisy(constantsOf(ModelKind::MooneyRivlin, 3e5, 1e5, 3e4)), "Mooney-Rivlin with C11");
}

TEST(HyperelasticFit, TheModelDrawsTheFittedCurve)
{
    const auto mooney = constantsOf(ModelKind::MooneyRivlin, 3e5, 5e4);
    const FitResult result = fitOne(HyperelasticForm::MooneyRivlin, {exactTest(mooney, Mode::Uniaxial, stretches)});
    ASSERT_NE(result.fitted, nullptr);
    EXPECT_NEAR(valueAt(*result.fitted, Mode::Equibiaxial, 2.0, Quantity::NominalStress), 3.9375 * (3e5 + 4.0 * 5e4),
                1.0);
}

// --- Changes of materials ---

TEST(HyperelasticFitChange, SetsTheModelAndRemovesContradictingConstants)
{
    const auto mooney = constantsOf(ModelKind::MooneyRivlin, 3e5, 5e4);
    const FitResult result = fitOne(HyperelasticForm::MooneyRivlin, {exactTest(mooney, Mode::Uniaxial, stretches)});
    EXPECT_EQ(changed(result, PropertyId::MooneyRivlin), 1.0);
    EXPECT_NEAR(changed(result, PropertyId::MaterialConstantC10), 3e5, 1e-3);
    EXPECT_NEAR(changed(result, PropertyId::MaterialConstantC01), 5e4, 1e-3);
    for (const std::int32_t id :
         {PropertyId::NeoHooke, PropertyId::ArrudaBoyce, PropertyId::IsotropicElasticity,
          PropertyId::MaterialConstantC11, PropertyId::LimitingNetworkStretch, PropertyId::InitialShearModulusMu})
        EXPECT_NE(std::find(result.change.remove.begin(), result.change.remove.end(), id), result.change.remove.end())
            << id;
    // Without volumetric data, the fit does not change D1.
    for (const PropertyValue& value : result.change.set)
        EXPECT_NE(value.propertyId, PropertyId::IncompressibilityParameterD1);
}

TEST(HyperelasticFitVolume, D1ComesFromVolumetricTestsAlone)
{
    const auto mooney = constantsOf(ModelKind::MooneyRivlin, 3e5, 5e4);
    const TestData shape = exactTest(mooney, Mode::Uniaxial, stretches);
    const double d1 = 1e-9;
    const TestData quadratic =
        makeTest(Mode::Volumetric, {0.95, 0.97, 0.99}, [=](double ratio) { return 2.0 * (ratio - 1.0) / d1; });
    const FitResult result = fitOne(HyperelasticForm::MooneyRivlin, {shape, quadratic});
    EXPECT_NEAR(fittedValue(result, PropertyId::IncompressibilityParameterD1), d1, 1e-15);
    EXPECT_NEAR(fittedValue(result, PropertyId::MaterialConstantC01), 5e4, 1e-3);
    EXPECT_NEAR(changed(result, PropertyId::IncompressibilityParameterD1), d1, 1e-15);

    const TestData logarithmic =
        makeTest(Mode::Volumetric, {0.9, 0.95}, [=](double ratio) { return (ratio - 1.0 / ratio) / d1; });
    EXPECT_NEAR(fittedValue(fitOne(HyperelasticForm::ArrudaBoyce, {shape, logarithmic}),
                            PropertyId::IncompressibilityParameterD1),
                d1, 1e-15);
}

TEST(HyperelasticFitVolume, PressuresOfTheWrongSignAreReported)
{
    const auto mooney = constantsOf(ModelKind::MooneyRivlin, 3e5, 5e4);
    const TestData wrong = makeTest(Mode::Volumetric, {0.95, 0.97}, [](double) { return 1e7; });
    const FitResult result = fitOne(HyperelasticForm::NeoHooke, {exactTest(mooney, Mode::Uniaxial, stretches), wrong});
    EXPECT_TRUE(has(result.findings, FindingId::VolumetricIgnored));
    EXPECT_EQ(result.find(PropertyId::IncompressibilityParameterD1), nullptr);
}

// --- Undetermined constants ---

TEST(HyperelasticFitDoubts, PlanarDataAloneDetermineOnlyTheSumOfTheConstants)
{
    const auto mooney = constantsOf(ModelKind::MooneyRivlin, 3e5, 5e4);
    for (const Mode mode : {Mode::Planar, Mode::SimpleShear}) {
        const FitResult result = fitOne(HyperelasticForm::MooneyRivlin, {exactTest(mooney, mode, stretches)});
        EXPECT_NEAR(fittedValue(result, PropertyId::MaterialConstantC10), 3.5e5, 1e-3);
        EXPECT_EQ(fittedValue(result, PropertyId::MaterialConstantC01), 0.0);
        EXPECT_EQ(result.find(PropertyId::MaterialConstantC01)->determination, Determination::Undetermined);
        EXPECT_EQ(firstArgument(result.findings, FindingId::Undetermined, 1), "C10 + C01");
    }
}

TEST(HyperelasticFitDoubts, UndeterminedModelsAreRankedBehindDeterminedOnes)
{
    HyperelasticFitRequest request;
    request.tests = {vxtest::rubberTest("treloar-planar.csv", Mode::Planar)};
    const auto results = fitHyperelastic(request);
    EXPECT_EQ(results.at(0).model, "Arruda-Boyce");
    EXPECT_EQ(results.at(1).model, "Neo-Hookean");
}

TEST(HyperelasticFitDoubts, ALimitingStretchTendsToInfinityIfTheDataDoNotStiffen)
{
    const auto neoHooke = constantsOf(ModelKind::NeoHooke, 3e5, 0.0);
    const FitResult result = fitOne(HyperelasticForm::ArrudaBoyce, {exactTest(neoHooke, Mode::Uniaxial, stretches)});
    EXPECT_TRUE(has(result.findings, FindingId::LimitingStretchInfinite));
    EXPECT_EQ(result.find(PropertyId::LimitingNetworkStretch)->determination, Determination::Undetermined);
    EXPECT_NEAR(fittedValue(result, PropertyId::InitialShearModulusMu), 6e5, 1.0);
}

TEST(HyperelasticFitDoubts, OnePointIsEnoughForOneConstantButNotForItsError)
{
    const FitResult result = fitOne(HyperelasticForm::NeoHooke, {shearOf({1.0}, {3.0})});
    EXPECT_NEAR(fittedValue(result, PropertyId::MaterialConstantC10), 1.5, 1e-12);
    EXPECT_FALSE(result.find(PropertyId::MaterialConstantC10)->standardError.has_value());
    EXPECT_TRUE(has(result.findings, FindingId::FewPoints));
    const FitResult three = fitOne(HyperelasticForm::MooneyRivlinC11, {shearOf({1.0}, {3.0})});
    EXPECT_EQ(three.find(PropertyId::MaterialConstantC11)->determination, Determination::Undetermined);
}

TEST(HyperelasticFitDoubts, NoiseMakesAPoorConstantPoor)
{
    const FitResult result = fitOne(HyperelasticForm::NeoHooke, {shearOf({1.0, 1.0, 1.0}, {-3.0, 0.5, 4.0})});
    EXPECT_EQ(result.find(PropertyId::MaterialConstantC10)->determination, Determination::Poor);
    EXPECT_TRUE(has(result.findings, FindingId::PoorlyDetermined));
}

// --- Bounds ---

TEST(HyperelasticFitBounds, AreKeptAndReported)
{
    const auto mooney = constantsOf(ModelKind::MooneyRivlin, 3e5, 5e4);
    HyperelasticFitRequest request;
    request.forms = {HyperelasticForm::MooneyRivlin};
    request.tests = {exactTest(mooney, Mode::Uniaxial, stretches)};
    request.bounds[PropertyId::MaterialConstantC01] = {0.0, 1e4};
    FitResult result = fitHyperelastic(request).front();
    EXPECT_DOUBLE_EQ(fittedValue(result, PropertyId::MaterialConstantC01), 1e4);
    EXPECT_EQ(result.find(PropertyId::MaterialConstantC01)->determination, Determination::AtBound);
    EXPECT_TRUE(has(result.findings, FindingId::AtBound));

    request.bounds[PropertyId::MaterialConstantC01] = {2e4, 2e4};
    result = fitHyperelastic(request).front();
    EXPECT_DOUBLE_EQ(fittedValue(result, PropertyId::MaterialConstantC01), 2e4);
    EXPECT_EQ(result.find(PropertyId::MaterialConstantC01)->determination, Determination::Fixed);
}

TEST(HyperelasticFitBounds, AlsoHoldForTheLimitingStretch)
{
    HyperelasticFitRequest request;
    request.forms = {HyperelasticForm::ArrudaBoyce};
    request.tests = {exactTest(constantsOf(ModelKind::ArrudaBoyce, 3e5, 2.5), Mode::Uniaxial, stretches)};
    request.bounds[PropertyId::LimitingNetworkStretch] = {3.0, 5.0};
    EXPECT_NEAR(fittedValue(fitHyperelastic(request).front(), PropertyId::LimitingNetworkStretch), 3.0, 1e-9);
    request.bounds[PropertyId::LimitingNetworkStretch] = {4.0, 4.0};
    EXPECT_NEAR(fittedValue(fitHyperelastic(request).front(), PropertyId::LimitingNetworkStretch), 4.0, 1e-12);
}

// --- Stability ---

class StableFit : public ::testing::Test
{
protected:
    StableFit() { m_request.tests = {vxtest::rubberTest("treloar-uniaxial.csv", Mode::Uniaxial)}; }

    FitResult fit(HyperelasticForm form, StabilityDemand demand)
    {
        m_request.forms = {form};
        m_request.stability = demand;
        return fitHyperelastic(m_request).front();
    }

    static bool isStable(const FitResult& result, Range range)
    {
        const auto& model = dynamic_cast<const HyperelasticModel&>(*result.fitted);
        const std::vector<Mode> modes{Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar};
        return std::all_of(modes.begin(), modes.end(),
                           [&](Mode mode) { return model.stability(mode, range).isStable(); });
    }

    HyperelasticFitRequest m_request;
};

TEST_F(StableFit, BlindLeastSquaresOfUniaxialDataIsUnstableFromStretchOne)
{
    const FitResult result = fit(HyperelasticForm::MooneyRivlin, StabilityDemand::None);
    EXPECT_FALSE(isStable(result, {1.0, 1.01}));
    EXPECT_TRUE(result.stable.at(1).unstableAbove);
    EXPECT_EQ(result.stable.at(1).range.to, 1.0);
    EXPECT_FALSE(result.residualWithoutStability.has_value());
}

TEST_F(StableFit, KeepsEveryModeStableOverTheDataAndShowsTheCost)
{
    for (const HyperelasticForm form : {HyperelasticForm::MooneyRivlin, HyperelasticForm::MooneyRivlinC11}) {
        const FitResult free = fit(form, StabilityDemand::None);
        const FitResult result = fit(form, StabilityDemand::OverData);
        EXPECT_TRUE(isStable(result, {1.0, 7.61})) << result.model;
        ASSERT_TRUE(result.residualWithoutStability.has_value());
        EXPECT_NEAR(*result.residualWithoutStability, free.residual, 1e-9);
        EXPECT_GT(result.residual, free.residual);
        EXPECT_TRUE(has(result.findings, FindingId::StabilityCost));
        EXPECT_FALSE(has(result.findings, FindingId::StabilityNotReached));
    }
}

TEST_F(StableFit, IsAsGoodAsAnyStableNeighbour)
{
    // An independent search: no stable pair of constants on a fine grid has a smaller residual.
    const FitResult result = fit(HyperelasticForm::MooneyRivlin, StabilityDemand::OverData);
    const TestData& test = m_request.tests[0];
    const double largest = *std::max_element(test.ordinates.begin(), test.ordinates.end());
    double best = 1e300;
    for (const double c10 : evenlySpaced(2e5, 5e5, 61)) {
        for (const double c01 : evenlySpaced(-2e4, 2e4, 81)) {
            const HyperelasticModel model(constantsOf(ModelKind::MooneyRivlin, c10, c01));
            double sum = 0.0;
            for (std::size_t i = 0; i < test.abscissas.size(); ++i) {
                const double l = test.abscissas[i];
                const double difference = 2.0 * (l - 1.0 / (l * l)) * (c10 + c01 / l) - test.ordinates[i];
                sum += difference * difference / (largest * largest);
            }
            const double residual = std::sqrt(sum / static_cast<double>(test.abscissas.size()));
            if (residual < best && model.stability(Mode::Equibiaxial, {1.0, 7.61}).isStable())
                best = residual;
        }
    }
    EXPECT_LE(result.residual, best * 1.001);
}

TEST_F(StableFit, ARangeCanBeRequested)
{
    m_request.stableRange = {0.9, 1.5};
    const FitResult narrow = fit(HyperelasticForm::MooneyRivlinC11, StabilityDemand::OverRange);
    const FitResult wide = fit(HyperelasticForm::MooneyRivlinC11, StabilityDemand::OverData);
    EXPECT_TRUE(isStable(narrow, {0.9, 1.5}));
    EXPECT_LE(narrow.residual, wide.residual);
}

TEST_F(StableFit, ArrudaBoyceIsStableWithoutTheDemand)
{
    const FitResult result = fit(HyperelasticForm::ArrudaBoyce, StabilityDemand::OverData);
    EXPECT_TRUE(isStable(result, {1.0, 7.61}));
    EXPECT_FALSE(result.residualWithoutStability.has_value());
}

TEST_F(StableFit, DataOfAMaterialThatSoftensHaveNoStableFit)
{
    m_request.tests = {makeTest(Mode::Uniaxial, stretches, [](double l) { return 1.0 - l; })};
    for (const HyperelasticForm form : hyperelasticForms()) {
        const FitResult result = fit(form, StabilityDemand::OverData);
        const bool refused = result.status == FitStatus::Failed && has(result.findings, FindingId::NoMinimum);
        EXPECT_TRUE(refused || has(result.findings, FindingId::AtBound)) << result.model;
    }
}

// --- Cancellation and invalid data ---

TEST(HyperelasticFitControl, ProgressRisesToTheEnd)
{
    HyperelasticFitRequest request;
    request.tests = {vxtest::rubberTest("treloar-uniaxial.csv", Mode::Uniaxial)};
    double last = 0.0;
    std::vector<std::string> models;
    FitControl control;
    control.progress = [&](const FitProgress& progress) {
        EXPECT_GE(progress.part, last);
        EXPECT_LE(progress.part, 1.0);
        last = progress.part;
        if (models.empty() || models.back() != progress.model)
            models.push_back(progress.model);
    };
    fitHyperelastic(request, control);
    EXPECT_EQ(models.size(), 4U);
    EXPECT_EQ(last, 1.0);
}

TEST(HyperelasticFitControl, CanBeCancelledAtAnyMoment)
{
    HyperelasticFitRequest request;
    request.tests = {vxtest::rubberTest("treloar-uniaxial.csv", Mode::Uniaxial)};
    int calls = 0;
    FitControl counting;
    counting.cancelled = [&] {
        ++calls;
        return false;
    };
    fitHyperelastic(request, counting);
    ASSERT_GT(calls, 20);
    const int all = calls;
    for (int end = 0; end < all; end += 3) {
        calls = 0;
        FitControl control;
        control.cancelled = [&] { return calls++ >= end; };
        const auto results = fitHyperelastic(request, control);
        ASSERT_EQ(results.size(), 4U);
        EXPECT_TRUE(std::any_of(results.begin(), results.end(), [](const FitResult& result) {
            return result.status == FitStatus::Cancelled;
        })) << end;
        EXPECT_EQ(calls, end + 1); // no further call after the first true
        for (const FitResult& result : results)
            EXPECT_EQ(has(result.findings, FindingId::Cancelled), result.status == FitStatus::Cancelled);
    }
}

TEST(HyperelasticFitControl, ASingleMinimumIsLookedForOnce)
{
    HyperelasticFitRequest request;
    request.tests = {vxtest::rubberTest("treloar-uniaxial.csv", Mode::Uniaxial),
                     vxtest::rubberTest("treloar-equibiaxial.csv", Mode::Equibiaxial)};
    const auto stepsOf = [&](HyperelasticForm form) {
        int calls = 0; // one for each step of the minimisation
        FitControl control;
        control.cancelled = [&calls] { return ++calls < 0; };
        request.forms = {form};
        EXPECT_EQ(fitHyperelastic(request, control).front().status, FitStatus::Done);
        return calls;
    };
    EXPECT_LT(stepsOf(HyperelasticForm::MooneyRivlin), 3); // linear
    EXPECT_LT(stepsOf(HyperelasticForm::ArrudaBoyce), 20);
}

TEST(HyperelasticFitRobustness, MissingDataAreReported)
{
    HyperelasticFitRequest request;
    for (const FitResult& result : fitHyperelastic(request)) {
        EXPECT_EQ(result.status, FitStatus::Failed);
        EXPECT_TRUE(has(result.findings, FindingId::DataMissing));
        EXPECT_EQ(result.fitted, nullptr);
        EXPECT_TRUE(result.change.set.empty());
    }
    request.tests = {makeTest(Mode::Volumetric, {0.9}, [](double) { return -1e6; }),
                     makeTest(Mode::Creep, {1.0}, [](double) { return 1.0; }),
                     makeTest(Mode::Uniaxial, {}, [](double) { return 1.0; })};
    EXPECT_TRUE(has(fitHyperelastic(request).front().findings, FindingId::DataMissing));
    request.forms.clear();
    EXPECT_TRUE(fitHyperelastic(request).empty());
}

TEST(HyperelasticFitRobustness, AllZerosAreRefused)
{
    const FitResult result =
        fitOne(HyperelasticForm::ArrudaBoyce, {makeTest(Mode::Uniaxial, stretches, [](double) { return 0.0; })});
    EXPECT_EQ(result.status, FitStatus::Failed);
    EXPECT_TRUE(has(result.findings, FindingId::AllZero));
}

TEST(HyperelasticFitRobustness, InvalidPointsAreLeftOut)
{
    TestData test = shearOf({1.0, std::nan(""), 2.0, 3.0}, {2.0, 1.0, HUGE_VAL, 6.0});
    test.ordinates.push_back(9.0); // without an abscissa
    const FitResult result = fitOne(HyperelasticForm::NeoHooke, {test});
    EXPECT_NEAR(fittedValue(result, PropertyId::MaterialConstantC10), 1.0, 1e-12);
    EXPECT_EQ(firstArgument(result.findings, FindingId::PointsOutside), "2");
}

TEST(HyperelasticFitRobustness, HugeTinyAndAbsurdNumbersEndInResultsOrFindings)
{
    for (const double scale : {1e-300, 1e-30, 1e30, 1e150, 1e300}) {
        for (const double factor : {1e-6, 1.0, 1e3, 1e100}) {
            HyperelasticFitRequest request;
            request.tests = {makeTest(Mode::Uniaxial, {1.0 + 0.1 * factor, 1.0 + 0.3 * factor, 1.0 + 0.5 * factor},
                                      [=](double l) { return scale * (l - 1.0); })};
            for (const FitResult& result : fitHyperelastic(request)) {
                EXPECT_TRUE(result.fitted != nullptr || !result.findings.empty()) << scale << " " << factor;
            }
        }
    }
}

TEST(HyperelasticFitRobustness, AMillionPointsAreAveraged)
{
    const double c10 = 3e5;
    std::mt19937 random(1);
    std::uniform_real_distribution<double> stretch(1.0, 3.0);
    std::normal_distribution<double> noise(0.0, 1e4);
    TestData test;
    test.mode = Mode::Planar;
    for (int i = 0; i < 1000000; ++i) {
        const double l = stretch(random);
        test.abscissas.push_back(l);
        test.ordinates.push_back(2.0 * c10 * (l - 1.0 / (l * l * l)) + noise(random));
    }
    const FitResult result = fitOne(HyperelasticForm::NeoHooke, {test});
    const FittedConstant* const constant = result.find(PropertyId::MaterialConstantC10);
    ASSERT_TRUE(constant != nullptr && constant->standardError);
    EXPECT_TRUE(has(result.findings, FindingId::Condensed));
    EXPECT_NEAR(constant->value, c10, 5.0 * *constant->standardError);
    EXPECT_NEAR(result.tests[0].rms, 1e4, 100.0);
    // 1e4/sqrt(sum of the squares of 2 (l - l^-3)), whose mean is 15.07
    EXPECT_NEAR(*constant->standardError, 1e4 / std::sqrt(1e6 * 15.07), 0.01);
}

} // namespace
