#include "vxConstitutive/response/HyperelasticModel.h"

#include "ConstitutiveTesting.h"
#include "RubberConstants.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vxConstitutive;
using vxtest::arrudaBoyce;
using vxtest::derivative;
using vxtest::firstArgument;
using vxtest::has;
using vxtest::mooneyRivlin;
using vxtest::neoHooke;
using vxtest::valueAt;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const std::vector<Mode> stretchModes{Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar};

double nominal(const HyperelasticConstants& constants, Mode mode, double abscissa)
{
    return valueAt(HyperelasticModel(constants), mode, abscissa,
                   mode == Mode::SimpleShear ? Quantity::NominalShearStress : Quantity::NominalStress);
}

Curve curveOf(const HyperelasticConstants& constants, Mode mode, std::vector<double> abscissas)
{
    CurveRequest request;
    request.mode = mode;
    request.abscissas = std::move(abscissas);
    return HyperelasticModel(constants).curve(request);
}

// --- Stresses, by hand at a stretch of 2 ---

TEST(IncompressibleStress, NeoHookeanByHand)
{
    EXPECT_DOUBLE_EQ(nominal(neoHooke(1.0), Mode::Uniaxial, 2.0), 3.5);       // 2 (2 - 1/4)
    EXPECT_DOUBLE_EQ(nominal(neoHooke(1.0), Mode::Equibiaxial, 2.0), 3.9375); // 2 (2 - 1/32)
    EXPECT_DOUBLE_EQ(nominal(neoHooke(1.0), Mode::Planar, 2.0), 3.75);        // 2 (2 - 1/8)
    EXPECT_DOUBLE_EQ(nominal(neoHooke(1.0), Mode::SimpleShear, 1.5), 3.0);
    EXPECT_DOUBLE_EQ(nominal(neoHooke(1.0), Mode::Uniaxial, 0.5), -7.0); // 2 (1/2 - 4)
}

TEST(IncompressibleStress, MooneyRivlinByHand)
{
    EXPECT_DOUBLE_EQ(nominal(mooneyRivlin(1.0, 2.0), Mode::Uniaxial, 2.0), 7.0);        // 3.5 (1 + 2/2)
    EXPECT_DOUBLE_EQ(nominal(mooneyRivlin(1.0, 2.0), Mode::Equibiaxial, 2.0), 35.4375); // 3.9375 (1 + 2 * 4)
    EXPECT_DOUBLE_EQ(nominal(mooneyRivlin(1.0, 2.0), Mode::Planar, 2.0), 11.25);        // 3.75 (1 + 2)
    EXPECT_DOUBLE_EQ(nominal(mooneyRivlin(1.0, 2.0), Mode::SimpleShear, 1.5), 9.0);     // 2 (1 + 2) 1.5
}

TEST(IncompressibleStress, TheMixedTermByHand)
{
    // At a uniaxial stretch of 2, I1 = 5 and I2 = 4.25: W1 = 1.25, W2 = 2.
    EXPECT_NEAR(nominal(mooneyRivlin(0.0, 0.0, 1.0), Mode::Uniaxial, 2.0), 7.875, 1e-13);
    // In simple shear by 2, I1 = I2 = 7: W1 = W2 = 4.
    EXPECT_DOUBLE_EQ(nominal(mooneyRivlin(0.0, 0.0, 1.0), Mode::SimpleShear, 2.0), 32.0);
}

TEST(IncompressibleStress, ArrudaBoyceByHand)
{
    // At a uniaxial stretch of 2, I1 = 5; with lm = 2 the terms of W1 are 0.5, 0.125, 0.0491, 0.0212 and 0.0094.
    EXPECT_NEAR(nominal(arrudaBoyce(1.0, 2.0), Mode::Uniaxial, 2.0), 2.466505174512987, 1e-14);
}

TEST(IncompressibleStress, TheInverseLangevinFunctionIsStifferThanItsSeries)
{
    CurveRequest request;
    request.abscissas = {2.0, 3.3, 3.4};
    request.chains = ChainStatistics::InverseLangevin;
    const Curve curve = HyperelasticModel(arrudaBoyce(1.0, 2.0)).curve(request);
    EXPECT_NEAR(curve.columns[1].values[0], 2.4924136142000854, 1e-12); // from the function by Newton's method
    EXPECT_GT(curve.columns[1].values[1], 50.0);
    EXPECT_TRUE(std::isnan(curve.columns[1].values[2])); // the chains reach their limit at 3.378
    EXPECT_TRUE(has(curve.findings, FindingId::ResultNotFinite));
}

TEST(IncompressibleStress, TrueStressIsByTheAreaDuringTheTest)
{
    const HyperelasticModel model(mooneyRivlin(1.0, 2.0));
    for (const Mode mode : stretchModes)
        EXPECT_DOUBLE_EQ(valueAt(model, mode, 2.0, Quantity::TrueStress),
                         2.0 * valueAt(model, mode, 2.0, Quantity::NominalStress));
    EXPECT_DOUBLE_EQ(valueAt(model, Mode::SimpleShear, 1.5, Quantity::TrueShearStress), 9.0);
    EXPECT_DOUBLE_EQ(valueAt(model, Mode::SimpleShear, 1.5, Quantity::NormalStressDifference), 13.5);
}

TEST(IncompressibleStress, EquibiaxialTensionIsUniaxialCompression)
{
    // The third direction of an equibiaxial test is compressed to l^-2; the true stresses are opposite.
    const HyperelasticModel model(mooneyRivlin(0.7, 0.3, 0.1));
    EXPECT_NEAR(valueAt(model, Mode::Equibiaxial, 1.5, Quantity::TrueStress),
                -valueAt(model, Mode::Uniaxial, 1.0 / 2.25, Quantity::TrueStress), 1e-12);
}

// --- Change of volume ---

TEST(CompressibleStress, TheVolumetricLawsAreThoseOfTheSolvers)
{
    EXPECT_NEAR(nominal(neoHooke(1.0, 0.5), Mode::Volumetric, 1.1), 2.0 * 0.331 / 0.5 * 1.21, 1e-13);
    EXPECT_NEAR(nominal(arrudaBoyce(1.0, 3.0, 0.5), Mode::Volumetric, 1.1), (1.331 - 1.0 / 1.331) / 0.5 * 1.21, 1e-13);
    EXPECT_NEAR(valueAt(HyperelasticModel(neoHooke(1.0, 0.5)), Mode::Volumetric, 0.9, Quantity::TrueStress),
                2.0 * (0.729 - 1.0) / 0.5, 1e-13);
}

TEST(CompressibleStress, TheLateralSurfaceIsFreeOfStress)
{
    // With C10 = 1/2, D1 = 1 the third stress is s3 + J U' = (l3^2 - I1/3) J^(-2/3) + 2 J (J - 1).
    const HyperelasticModel model(neoHooke(0.5, 1.0));
    for (const double stretch : {0.4, 0.9, 1.5, 4.0}) {
        const double lateral = valueAt(model, Mode::Uniaxial, stretch, Quantity::LateralStretch);
        const double volume = stretch * lateral * lateral;
        const double invariant = stretch * stretch + 2.0 * lateral * lateral;
        const double shape = (lateral * lateral - invariant / 3.0) * std::pow(volume, -2.0 / 3.0);
        EXPECT_NEAR(shape + 2.0 * volume * (volume - 1.0), 0.0, 1e-12) << stretch;
        EXPECT_NEAR(valueAt(model, Mode::Uniaxial, stretch, Quantity::VolumeRatio), volume, 1e-12);
    }
}

// The expected values of the next tests are from a bisection of the stress of the free direction, for energies that hardly resist
// changes of volume.

TEST(CompressibleStress, HasTheLateralStretchOfItsBranchWhateverTheOrderOfTheStretches)
{
    const HyperelasticConstants constants = arrudaBoyce(288091.0, 4.73, 0.0789); // K0 = 25 Pa
    CurveRequest request;
    request.mode = Mode::Equibiaxial;
    request.abscissas = {5.52, 20.0, 2.0, 5.51, 7.0};
    request.detail = Detail::Full;
    const Curve curve = HyperelasticModel(constants).curve(request);
    const std::vector<double> lateral{3.5925979974027467, 0.9283270809698487, 1.9959736980686826, 3.5954971346894053,
                                      3.0411025442667303};
    const std::vector<double> nominalStress{41267.91169659723, 131069.94969764267, 596.4123199060627,
                                            41110.285988062606, 60304.6701468608};
    for (std::size_t i = 0; i < lateral.size(); ++i) {
        EXPECT_NEAR(curve.find(Quantity::LateralStretch)->at(i), lateral[i], 1e-11 * lateral[i]);
        EXPECT_NEAR(curve.find(Quantity::NominalStress)->at(i), nominalStress[i], 1e-9 * nominalStress[i]);
    }
}

TEST(CompressibleStress, HasNoValueBeyondTheEndOfTheBranch)
{
    // Where the volume is halved, the resistance to compression is largest. A state with the volume ratio 0.03 exists at the
    // stretch 0.28, but no compression from the unloaded state leads to it.
    CurveRequest request;
    request.abscissas = {0.35, 0.3, 0.29, 0.28, 0.1, 0.5};
    request.detail = Detail::Full;
    const Curve curve = HyperelasticModel(neoHooke(1.0, 0.3)).curve(request);
    const std::vector<double>& volumes = *curve.find(Quantity::VolumeRatio);
    EXPECT_NEAR(volumes[0], 0.6415784630135233, 1e-12);
    EXPECT_NEAR(volumes[1], 0.49855698691560557, 1e-12);
    EXPECT_NEAR(volumes[2], 0.4249352988651636, 1e-12);
    EXPECT_NEAR(volumes[5], 0.8047398862356401, 1e-12);
    for (const Column& column : curve.columns) {
        EXPECT_EQ(std::isnan(column.values[3]), &column != &curve.columns.front());
        EXPECT_EQ(std::isnan(column.values[4]), &column != &curve.columns.front());
    }
    EXPECT_EQ(firstArgument(curve.findings, FindingId::NoEquilibrium, 1), "0.28");
    EXPECT_EQ(firstArgument(curve.findings, FindingId::NoEquilibrium, 2), "2");
    EXPECT_FALSE(has(curve.findings, FindingId::ResultNotFinite));
}

TEST(CompressibleStress, NeedsResistanceToChangesOfVolume)
{
    // The stiffness of the free direction, K0 + 4/3 mu0, is negative.
    const Curve curve = curveOf(neoHooke(-1.0, 1.0), Mode::Planar, {1.0, 1.1});
    EXPECT_EQ(curve.columns[1].values[0], 0.0);
    EXPECT_TRUE(std::isnan(curve.columns[1].values[1]));
    EXPECT_TRUE(has(curve.findings, FindingId::NoEquilibrium));
}

TEST(CompressibleStress, SmallStrainsFollowHookesLawWithTheInitialModuli)
{
    // mu = 2000 Pa, K = 2000 Pa: E = 9 K mu/(3 K + mu) = 4500 Pa, nu = 0.125.
    const HyperelasticModel model(neoHooke(1000.0, 0.001));
    EXPECT_NEAR(valueAt(model, Mode::Uniaxial, 1.0, Quantity::Slope), 4500.0, 1e-8);
    EXPECT_NEAR(valueAt(model, Mode::Equibiaxial, 1.0, Quantity::Slope), 4500.0 / 0.875, 1e-8);
    EXPECT_NEAR(valueAt(model, Mode::Planar, 1.0, Quantity::Slope), 4500.0 / (1.0 - 0.125 * 0.125), 1e-8);
    EXPECT_NEAR(valueAt(model, Mode::Volumetric, 1.0, Quantity::Slope), 3.0 * 2000.0, 1e-8);
    EXPECT_NEAR(valueAt(model, Mode::Uniaxial, 1.0001, Quantity::LateralStretch), 1.0 - 0.125e-4, 1e-8);
}

TEST(CompressibleStress, AVanishingD1GivesTheIncompressibleCurveToTheLastDigits)
{
    for (const double d1 : {1e-9, 1e-15, 1e-25, 1e-40}) {
        for (const Mode mode : stretchModes)
            EXPECT_NEAR(nominal(mooneyRivlin(1.0, 2.0, 0.1, d1), mode, 2.0),
                        nominal(mooneyRivlin(1.0, 2.0, 0.1), mode, 2.0), 1e4 * d1 + 1e-11);
    }
}

TEST(CompressibleStress, ARequestCanDemandAnIncompressibleCurve)
{
    const HyperelasticModel model(neoHooke(1.0, 1.0));
    EXPECT_DOUBLE_EQ(valueAt(model, Mode::Uniaxial, 2.0, Quantity::NominalStress, Compressibility::Incompressible),
                     3.5);
}

TEST(CompressibleStress, AnIncompressibleCurveOfACompressibleMaterialReportsTheDifference)
{
    CurveRequest request;
    request.mode = Mode::Equibiaxial;
    request.abscissas = evenlySpaced(1.0, 3.0, 21);
    request.compressibility = Compressibility::Incompressible;
    const HyperelasticModel library(neoHooke(1000.0, 0.001)); // Elastomer 1
    EXPECT_TRUE(has(library.findings(), FindingId::FarFromIncompressible));
    const Curve curve = library.curve(request);
    const double factor = std::stod(firstArgument(curve.findings, FindingId::DrawnIncompressible));
    EXPECT_GT(factor, 1.5);
    EXPECT_FALSE(
        has(HyperelasticModel(neoHooke(1000.0, 1e-6)).curve(request).findings, FindingId::DrawnIncompressible));
}

TEST(CompressibleStress, VolumeTestsNeedD1)
{
    const Curve curve = curveOf(neoHooke(1.0), Mode::Volumetric, {1.1});
    EXPECT_TRUE(curve.columns.empty());
    EXPECT_TRUE(has(curve.findings, FindingId::VolumetricNeedsD1));
}

// --- Slopes ---

class SlopeOf : public ::testing::TestWithParam<HyperelasticConstants>
{};

TEST_P(SlopeOf, TheNominalStressIsItsDerivative)
{
    const HyperelasticModel model(GetParam());
    for (const Mode mode : model.modes()) {
        const bool shear = mode == Mode::SimpleShear;
        if (mode == Mode::Volumetric && GetParam().d1 == 0.0)
            continue;
        for (const double abscissa : {0.4, 0.8, 1.0, 1.3, 2.2}) {
            const auto stress = [&](double at) {
                return valueAt(model, mode, at, shear ? Quantity::NominalShearStress : Quantity::NominalStress);
            };
            const double expected = derivative(stress, abscissa, 1e-3);
            EXPECT_NEAR(valueAt(model, mode, abscissa, Quantity::Slope), expected, 1e-9 * (1.0 + std::fabs(expected)))
                << modeRecord(mode).name << " " << abscissa;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, SlopeOf,
                         ::testing::Values(neoHooke(1.0), neoHooke(1.0, 0.3), mooneyRivlin(0.7, 0.4),
                                           mooneyRivlin(0.7, 0.4, 0.2), mooneyRivlin(0.7, 0.4, 0.2, 0.1),
                                           mooneyRivlin(0.7, 0.4, 0.2, 1e-4), arrudaBoyce(1.0, 2.0),
                                           arrudaBoyce(1.0, 2.0, 0.2)));

TEST(Slope, OfTheInverseLangevinFunctionIsItsDerivative)
{
    const HyperelasticModel model(arrudaBoyce(1.0, 3.0));
    CurveRequest request;
    request.chains = ChainStatistics::InverseLangevin;
    request.detail = Detail::Full;
    const auto at = [&](double stretch, Quantity quantity) {
        request.abscissas = {stretch};
        return model.curve(request).find(quantity)->front();
    };
    for (const double stretch : {1.5, 3.0, 4.5}) {
        const double expected = derivative([&](double l) { return at(l, Quantity::NominalStress); }, stretch, 1e-3);
        EXPECT_NEAR(at(stretch, Quantity::Slope), expected, 1e-8 * expected);
    }
}

// --- Stability ---

/// With C10 = 1, equibiaxial tension is unstable for a change of the stretch where l^2 + 2 l^-4 + C01 (2 l^4 + l^-2) = 0. With
/// this C01 that is at a stretch of 2: (4 + 1/8)/(32 + 1/4). For a change that extends one direction and shortens the second,
/// it is unstable where l^2 + C01 l^-2 = 0, in compression.
constexpr double c01FromTwo = 4.125 / 32.25;
const HyperelasticConstants unstableFromTwo = mooneyRivlin(1.0, -c01FromTwo);

TEST(Stability, TheFirstUnstableStretchesAreFoundExactly)
{
    const StabilityReport report = HyperelasticModel(unstableFromTwo).stability(Mode::Equibiaxial, {0.5, 4.0});
    ASSERT_TRUE(report.firstAbove && report.firstBelow);
    EXPECT_NEAR(*report.firstAbove, 2.0, 1e-9);
    EXPECT_NEAR(*report.firstBelow, std::pow(c01FromTwo, 0.25), 1e-9);
    ASSERT_EQ(report.unstable.size(), 2U);
    EXPECT_EQ(report.unstable[0].from, 0.5);
    EXPECT_NEAR(report.unstable[1].from, 2.0, 1e-9);
    EXPECT_EQ(report.unstable[1].to, 4.0);
}

TEST(Stability, AUniaxialTestIsUnstableWhereTheEquibiaxialTestOfTheSameStateIs)
{
    const StabilityReport report = HyperelasticModel(unstableFromTwo).stability(Mode::Uniaxial, {0.1, 4.0});
    ASSERT_TRUE(report.firstAbove && report.firstBelow);
    EXPECT_NEAR(*report.firstBelow, 0.25, 1e-9); // 2^-2
    EXPECT_NEAR(*report.firstAbove, 1.0 / std::sqrt(c01FromTwo), 1e-9);
}

TEST(Stability, ANarrowUnstablePartBetweenSamplesIsFound)
{
    // The margin is negative in a ten-thousandth of the range.
    const auto margin = [](double at) { return (at - 2.034567) * (at - 2.034567) - 2.5e-9; };
    const StabilityReport report = findInstability(margin, 1.0, {1.0, 3.0});
    ASSERT_EQ(report.unstable.size(), 1U);
    EXPECT_NEAR(report.unstable[0].from, 2.034567 - 5e-5, 1e-9);
    EXPECT_NEAR(report.unstable[0].to, 2.034567 + 5e-5, 1e-9);
}

TEST(Stability, SeveralUnstablePartsAreInRisingOrder)
{
    const auto margin = [](double at) { return std::cos(3.0 * at); }; // negative from pi/6 to pi/2, mirrored below 0
    const StabilityReport report = findInstability(margin, 0.0, {-2.0, 2.0});
    ASSERT_EQ(report.unstable.size(), 2U);
    EXPECT_NEAR(report.unstable[0].from, -M_PI / 2.0, 1e-9);
    EXPECT_NEAR(report.unstable[0].to, -M_PI / 6.0, 1e-9);
    EXPECT_NEAR(report.unstable[1].from, M_PI / 6.0, 1e-9);
    EXPECT_NEAR(*report.firstBelow, -M_PI / 6.0, 1e-9);
}

TEST(Stability, ACurveReportsItsUnstablePartAndItsStart)
{
    const Curve curve = curveOf(unstableFromTwo, Mode::Equibiaxial, {1.0, 3.0});
    ASSERT_EQ(curve.unstable.size(), 1U);
    EXPECT_NEAR(curve.unstable[0].from, 2.0, 1e-9);
    EXPECT_EQ(firstArgument(curve.findings, FindingId::UnstableFrom, 1), "2");
    EXPECT_TRUE(curveOf(unstableFromTwo, Mode::Equibiaxial, {1.0, 1.9}).unstable.empty());
}

TEST(Stability, ACurveSaysOnWhichSideItIsUnstable)
{
    // A uniaxial compression to 1/4 is an equibiaxial stretch of 2.
    const Curve curve = curveOf(unstableFromTwo, Mode::Uniaxial, {0.2, 1.0});
    EXPECT_EQ(firstArgument(curve.findings, FindingId::UnstableBelow, 1), "0.25");
    EXPECT_EQ(firstArgument(curve.findings, FindingId::UnstableBelow, 2), "stretch");
    EXPECT_FALSE(has(curve.findings, FindingId::UnstableFrom));
}

TEST(Stability, AMaterialWithoutStiffnessIsUnstableFromTheStart)
{
    for (const double c10 : {0.0, -1.0}) {
        const HyperelasticModel model(neoHooke(c10));
        EXPECT_TRUE(has(model.findings(), FindingId::InitialModulusNegative));
        const StabilityReport report = model.stability(Mode::Uniaxial, {0.5, 2.0});
        EXPECT_EQ(report.firstAbove, 1.0);
        EXPECT_EQ(report.firstBelow, 1.0);
    }
}

TEST(Stability, ANegativeConstantAloneIsNoInstability)
{
    EXPECT_TRUE(HyperelasticModel(mooneyRivlin(1.0, -0.01)).stability(Mode::Planar, {0.5, 2.0}).isStable());
    EXPECT_TRUE(HyperelasticModel(mooneyRivlin(-0.01, 1.0)).stability(Mode::Uniaxial, {0.5, 2.0}).isStable());
}

TEST(Stability, GreatStretchesOfAStableMaterialAreStable)
{
    for (const Mode mode : stretchModes) {
        EXPECT_TRUE(HyperelasticModel(neoHooke(1.0)).stability(mode, {0.02, 50.0}).isStable()) << modeRecord(mode).name;
        EXPECT_TRUE(HyperelasticModel(arrudaBoyce(1.0, 3.0)).stability(mode, {0.05, 20.0}).isStable());
        EXPECT_TRUE(HyperelasticModel(mooneyRivlin(1.0, 0.5)).stability(mode, {1e-8, 1e8}).isStable());
    }
}

TEST(Stability, SimpleShearIsUnstableWherePlanarTensionWithItsPrincipalStretchesIs)
{
    const HyperelasticModel model(mooneyRivlin(1.0, -0.3));
    const StabilityReport planar = model.stability(Mode::Planar, {1.0, 5.0});
    const StabilityReport shear = model.stability(Mode::SimpleShear, {0.0, 5.0});
    ASSERT_TRUE(planar.firstAbove && shear.firstAbove);
    EXPECT_NEAR(*shear.firstAbove, *planar.firstAbove - 1.0 / *planar.firstAbove, 1e-8);
}

TEST(Stability, AHalvedVolumeIsTheEndOfTheQuadraticVolumetricLaw)
{
    // d(J U')/d(ln J) = 2 J (2 J - 1)/D1
    const StabilityReport report = HyperelasticModel(neoHooke(1.0, 0.1)).stability(Mode::Volumetric, {0.5, 1.5});
    ASSERT_TRUE(report.firstBelow.has_value());
    EXPECT_NEAR(*report.firstBelow, std::cbrt(0.5), 1e-9);
    EXPECT_TRUE(HyperelasticModel(arrudaBoyce(1.0, 3.0, 0.1)).stability(Mode::Volumetric, {0.5, 1.5}).isStable());
}

// --- Chains ---

TEST(Chains, TheLockingStretchIsThatOfTheFirstInvariant)
{
    const HyperelasticModel model(arrudaBoyce(1.0, 2.0));                         // I1 = 12
    EXPECT_NEAR(model.lockingStretch(Mode::Uniaxial), 3.3775516419230205, 1e-12); // l^2 + 2/l = 12
    EXPECT_NEAR(model.lockingStretch(Mode::SimpleShear), 3.0, 1e-12);             // g^2 = 9
    const double planar = model.lockingStretch(Mode::Planar);
    EXPECT_NEAR(planar * planar + 1.0 + 1.0 / (planar * planar), 12.0, 1e-10);
    EXPECT_EQ(HyperelasticModel(neoHooke(1.0)).lockingStretch(Mode::Uniaxial), infinity);
}

TEST(Chains, ARangeBeyondTheLockingStretchIsReported)
{
    const Curve beyond = curveOf(arrudaBoyce(1.0, 2.0), Mode::Uniaxial, {1.0, 4.0});
    EXPECT_EQ(firstArgument(beyond.findings, FindingId::LockingInsideRange, 1), "3.37755");
    const Curve near = curveOf(arrudaBoyce(1.0, 2.0), Mode::Uniaxial, {1.0, 3.0}); // chains at 0.9 of their limit
    EXPECT_FALSE(has(near.findings, FindingId::LockingInsideRange));
    EXPECT_TRUE(has(near.findings, FindingId::SeriesFarFromLangevin));
    EXPECT_TRUE(curveOf(arrudaBoyce(1.0, 2.0), Mode::Uniaxial, {1.0, 1.5}).findings.empty());
}

TEST(Chains, TheInitialModulusIsNotMu)
{
    for (const auto& [limit, ratio] : {std::pair(5.15, 1.0234591947917588), std::pair(2.5, 1.11329262745885)}) {
        const HyperelasticModel model(arrudaBoyce(2.0, limit));
        const auto constants = model.constants();
        const auto found = std::find_if(constants.begin(), constants.end(),
                                        [](const Constant& constant) { return std::string(constant.symbol) == "mu0"; });
        ASSERT_NE(found, constants.end());
        EXPECT_NEAR(found->value, 2.0 * ratio, 1e-12);
        EXPECT_EQ(found->origin, Origin::Derived);
        EXPECT_NEAR(valueAt(model, Mode::Uniaxial, 1.0, Quantity::Slope), 6.0 * ratio, 1e-10); // E = 3 mu0
    }
}

// --- Invalid input ---

TEST(HyperelasticRobustness, AnyConstantsGiveACurveOrFindings)
{
    const double values[] = {0.0, 1.0, -1.0, 1e300, infinity, std::nan("")};
    const std::vector<double> abscissas{-1.0, 0.0, 1e-300, 1e-9, 0.5, 1.0, 2.0, 1e9, 1e300, infinity, std::nan("")};
    for (const double a : values) {
        for (const double b : values) {
            for (const double d : {0.0, 1.0, 1e300, std::nan("")}) {
                for (const auto& constants : {mooneyRivlin(a, b, b, d), arrudaBoyce(a, b, d)}) {
                    const HyperelasticModel model(constants);
                    for (const Mode mode : model.modes()) {
                        CurveRequest request;
                        request.mode = mode;
                        request.abscissas = abscissas;
                        request.detail = Detail::Full;
                        const Curve curve = model.curve(request);
                        for (const Column& column : curve.columns)
                            EXPECT_EQ(column.values.size(), abscissas.size());
                    }
                }
            }
        }
    }
}

TEST(HyperelasticRobustness, NumbersNearTheLargestDoubleAreNoValues)
{
    // A plot from -1e308 to 1e308 has no width that a double can hold.
    for (const double d1 : {0.0, 1e-308}) {
        const Curve curve = curveOf(neoHooke(1e308, d1), Mode::Planar, {0.55, 0.9, 1.0, 1.1, 4.0});
        for (const std::size_t column : {1U, 2U}) {
            for (const std::size_t row : {0U, 1U, 3U, 4U})
                EXPECT_TRUE(std::isnan(curve.columns[column].values[row])) << row;
            EXPECT_EQ(curve.columns[column].values[2], 0.0);
        }
        EXPECT_EQ(firstArgument(curve.findings, FindingId::ResultNotFinite, 3), "planar tension (pure shear)");
        EXPECT_EQ(firstArgument(curve.findings, FindingId::ResultNotFinite, 2), "4");
    }
}

TEST(HyperelasticRobustness, AbscissasOutsideTheDomainAreGapsAndCounted)
{
    const Curve curve = curveOf(neoHooke(1.0), Mode::Uniaxial, {-1.0, 0.0, 1.0, 2.0, infinity});
    EXPECT_TRUE(std::isnan(curve.columns[1].values[0]));
    EXPECT_EQ(curve.columns[0].values[0], -1.0);
    EXPECT_DOUBLE_EQ(curve.columns[1].values[3], 3.5);
    EXPECT_EQ(firstArgument(curve.findings, FindingId::AbscissaOutside, 1), "-1");
    EXPECT_EQ(firstArgument(curve.findings, FindingId::AbscissaOutside, 2), "3");
    EXPECT_FALSE(has(curveOf(neoHooke(1.0), Mode::SimpleShear, {-1.0, 0.0}).findings, FindingId::AbscissaOutside));
}

TEST(HyperelasticRobustness, ALimitingStretchOfOneIsAnErrorButNoCrash)
{
    for (const double limit : {1.0, 0.5, 0.0, -3.0}) {
        const HyperelasticModel model(arrudaBoyce(1.0, limit));
        EXPECT_TRUE(has(model.findings(), FindingId::LimitingStretchTooLow)) << limit;
        EXPECT_EQ(model.lockingStretch(Mode::Uniaxial), 1.0);
    }
}

TEST(HyperelasticRobustness, AModeOfOtherModelsIsRefused)
{
    const Curve curve = curveOf(neoHooke(1.0), Mode::Creep, {1.0});
    EXPECT_TRUE(curve.columns.empty());
    EXPECT_TRUE(has(curve.findings, FindingId::ModeNotOfModel));
}

TEST(HyperelasticRobustness, ACurveWithoutAbscissasIsEmpty)
{
    const Curve curve = curveOf(neoHooke(1.0), Mode::Uniaxial, {});
    ASSERT_EQ(curve.columns.size(), 3U);
    EXPECT_TRUE(curve.columns[0].values.empty());
    EXPECT_TRUE(curve.findings.empty());
}

} // namespace
