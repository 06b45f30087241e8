#include "vxConstitutive/response/PlasticModel.h"

#include "ConstitutiveTesting.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vxConstitutive;
using vxtest::has;
using vxtest::valueAt;

namespace {

/// "Plastic Example 1" of the library.
const std::vector<HardeningPoint> example{{0.0, 450.0}, {0.05, 608.0}, {0.1, 679.0}, {0.2, 732.0},
                                          {0.3, 752.0}, {0.4, 766.0},  {0.5, 780.0}};
const ElasticConstants steel{206900.0, 0.29};

TEST(HardeningCurve, BilinearRisesByTheHardeningModulus)
{
    const PlasticModel model(250.0, 1450.0, std::nullopt);
    EXPECT_DOUBLE_EQ(valueAt(model, Mode::Plastic, 0.0, Quantity::TrueStress), 250.0);
    EXPECT_DOUBLE_EQ(valueAt(model, Mode::Plastic, 0.2, Quantity::TrueStress), 540.0);
    EXPECT_DOUBLE_EQ(valueAt(model, Mode::Plastic, 0.2, Quantity::Slope), 1450.0);
}

TEST(HardeningCurve, MultilinearIsStraightBetweenPointsAndConstantAfterThem)
{
    const PlasticModel model(example, std::nullopt);
    EXPECT_DOUBLE_EQ(valueAt(model, Mode::Plastic, 0.025, Quantity::TrueStress), 529.0);
    EXPECT_DOUBLE_EQ(valueAt(model, Mode::Plastic, 0.05, Quantity::TrueStress), 608.0);
    EXPECT_DOUBLE_EQ(valueAt(model, Mode::Plastic, 0.45, Quantity::TrueStress), 773.0);
    EXPECT_DOUBLE_EQ(valueAt(model, Mode::Plastic, 9.0, Quantity::TrueStress), 780.0);
    EXPECT_NEAR(valueAt(model, Mode::Plastic, 0.025, Quantity::Slope), 3160.0, 1e-9);
    EXPECT_EQ(valueAt(model, Mode::Plastic, 9.0, Quantity::Slope), 0.0);
}

TEST(HardeningCurve, StrainsAfterTheLastRowAreReported)
{
    CurveRequest request;
    request.mode = Mode::Plastic;
    request.abscissas = {0.0, 0.6};
    EXPECT_TRUE(has(PlasticModel(example, std::nullopt).curve(request).findings, FindingId::PastLastRow));
    EXPECT_FALSE(has(PlasticModel(250.0, 1.0, std::nullopt).curve(request).findings, FindingId::PastLastRow));
}

TEST(HardeningCurve, AnInvalidTableIsReported)
{
    const PlasticModel late({{0.01, 450.0}, {0.02, 500.0}}, std::nullopt);
    EXPECT_EQ(vxtest::firstArgument(late.findings(), FindingId::TableFirstStrain), "0.01");
    const PlasticModel back({{0.0, 450.0}, {0.2, 500.0}, {0.1, 600.0}, {0.2, 700.0}, {0.3, 550.0}}, std::nullopt);
    EXPECT_EQ(vxtest::firstArgument(back.findings(), FindingId::TableStrainsNotRising), "3");
    EXPECT_DOUBLE_EQ(valueAt(back, Mode::Plastic, 0.25, Quantity::TrueStress), 525.0);
    const PlasticModel falling({{0.0, 450.0}, {0.1, 500.0}, {0.2, 480.0}}, std::nullopt);
    EXPECT_EQ(vxtest::firstArgument(falling.findings(), FindingId::HardeningFalls), "0.1");
    EXPECT_TRUE(has(PlasticModel(0.0, 1.0, std::nullopt).findings(), FindingId::ConstantNotPositive));
    EXPECT_TRUE(has(PlasticModel(250.0, -1.0, std::nullopt).findings(), FindingId::HardeningFalls));
    EXPECT_TRUE(has(PlasticModel(250.0, 5e4, steel).findings(), FindingId::HardeningStiff));
    EXPECT_TRUE(PlasticModel(example, steel).findings().empty());
}

TEST(TensileTest, FollowsYoungsModulusUpToTheYieldStress)
{
    const PlasticModel model(example, steel);
    const double strain = 0.001;
    const double stress = 206900.0 * std::log1p(strain);
    EXPECT_NEAR(valueAt(model, Mode::Tensile, strain, Quantity::TrueStress), stress, 1e-9);
    EXPECT_NEAR(valueAt(model, Mode::Tensile, strain, Quantity::NominalStress),
                stress * std::exp(-2.0 * 0.29 * stress / 206900.0), 1e-9);
    EXPECT_EQ(valueAt(model, Mode::Tensile, strain, Quantity::PlasticStrain), 0.0);
}

TEST(TensileTest, AddsElasticAndPlasticStrainAfterIt)
{
    // At the second point: sigma = 608, ep = 0.05.
    const PlasticModel model(example, steel);
    const double strain = std::expm1(0.05 + 608.0 / 206900.0);
    EXPECT_NEAR(valueAt(model, Mode::Tensile, strain, Quantity::TrueStress), 608.0, 1e-9);
    EXPECT_NEAR(valueAt(model, Mode::Tensile, strain, Quantity::PlasticStrain), 0.05, 1e-12);
    EXPECT_NEAR(valueAt(model, Mode::Tensile, strain, Quantity::NominalStress),
                608.0 * std::exp(-0.05 - 0.58 * 608.0 / 206900.0), 1e-9);
}

TEST(TensileTest, CompressionDoesNotNeckAndIsNegative)
{
    const PlasticModel model(example, steel);
    const double strain = std::expm1(-0.2 - 732.0 / 206900.0);
    EXPECT_NEAR(valueAt(model, Mode::Tensile, strain, Quantity::TrueStress), -732.0, 1e-9);
    EXPECT_LT(valueAt(model, Mode::Tensile, strain, Quantity::NominalStress), -732.0);
}

TEST(TensileTest, SlopeIsTheDerivative)
{
    const PlasticModel model(example, steel);
    for (const double strain : {-0.3, -0.02, -0.001, 0.001, 0.02, 0.08}) {
        const auto stress = [&](double e) { return valueAt(model, Mode::Tensile, e, Quantity::NominalStress); };
        const double expected = vxtest::derivative(stress, strain, 1e-4);
        EXPECT_NEAR(valueAt(model, Mode::Tensile, strain, Quantity::Slope), expected, 1e-7 * std::fabs(expected))
            << strain;
    }
}

TEST(Necking, OfARigidPlasticMaterialIsWhereTheModulusIsTheStress)
{
    // sigma = 100 + 500 ep = 500 at ep = 0.8
    const PlasticModel model(100.0, 500.0, ElasticConstants{1e15, 0.5});
    const auto neck = model.necking();
    ASSERT_TRUE(neck.has_value());
    EXPECT_NEAR(neck->engineeringStrain, std::expm1(0.8), 1e-9);
    EXPECT_NEAR(neck->engineeringStress, 500.0 * std::exp(-0.8), 1e-9);
}

TEST(Necking, AtACornerWhereTheModulusDropsBelowTheStress)
{
    // 1420 MPa before and 530 MPa after the point at 0.1, where the stress is 679 MPa.
    const auto neck = PlasticModel(example, steel).necking();
    ASSERT_TRUE(neck.has_value());
    EXPECT_NEAR(neck->trueStress, 679.0, 1e-9);
    EXPECT_NEAR(neck->engineeringStrain, std::expm1(0.1 + 679.0 / 206900.0), 1e-12);
}

TEST(Necking, IsNotAtAPlateauAfterYieldIfTheForceRisesLater)
{
    // A plateau of 285 MPa up to 2 %, then hardening that is above the stress up to 0.2.
    const PlasticModel model({{0.0, 285.0}, {0.02, 285.1}, {0.1, 445.1}, {0.2, 500.0}, {0.3, 510.0}}, steel);
    const auto neck = model.necking();
    ASSERT_TRUE(neck.has_value());
    EXPECT_NEAR(neck->trueStress, 500.0, 1e-9);
    EXPECT_NEAR(neck->engineeringStrain, std::expm1(0.2 + 500.0 / 206900.0), 1e-12);
    CurveRequest request;
    request.mode = Mode::Tensile;
    request.abscissas = {0.01, 0.05};
    const Curve curve = model.curve(request);
    for (const double stress : curve.columns[1].values)
        EXPECT_TRUE(std::isfinite(stress));
    EXPECT_TRUE(curve.unstable.empty());
}

TEST(Necking, IsAtTheFirstPlateauIfTheForceStaysBelowIt)
{
    const PlasticModel model({{0.0, 500.0}, {0.2, 501.0}, {0.21, 515.0}}, steel); // 515 exp(-0.21) is 417
    const auto neck = model.necking();
    ASSERT_TRUE(neck.has_value());
    EXPECT_NEAR(neck->trueStress, 500.0, 1e-9);
}

TEST(Necking, EndsTheCurve)
{
    const PlasticModel model(example, steel);
    CurveRequest request;
    request.mode = Mode::Tensile;
    request.abscissas = {0.0, 0.1, 0.108, 0.12, 0.2};
    const Curve curve = model.curve(request);
    EXPECT_TRUE(std::isfinite(curve.columns[1].values[2]));
    EXPECT_TRUE(std::isnan(curve.columns[1].values[3]));
    ASSERT_EQ(curve.unstable.size(), 1U);
    EXPECT_NEAR(curve.unstable[0].from, model.necking()->engineeringStrain, 1e-12);
    EXPECT_EQ(curve.unstable[0].to, 0.2);
    EXPECT_TRUE(has(curve.findings, FindingId::NeckingAt));
    EXPECT_FALSE(has(curve.findings, FindingId::ResultNotFinite));
}

TEST(Necking, NoCurveReachesMoreThanTheTensileStrength)
{
    const PlasticModel model(250.0, 1450.0, ElasticConstants{200000.0, 0.3});
    const auto neck = model.necking();
    ASSERT_TRUE(neck.has_value());
    CurveRequest request;
    request.mode = Mode::Tensile;
    request.abscissas = evenlySpaced(0.0, neck->engineeringStrain, 1001);
    const Curve curve = model.curve(request);
    for (const double stress : curve.columns[1].values)
        EXPECT_LE(stress, neck->engineeringStress * (1.0 + 1e-12));
    EXPECT_NEAR(curve.columns[1].values.back(), neck->engineeringStress, 1e-6 * neck->engineeringStress);
}

TEST(TensileTest, NeedsYoungsModulus)
{
    CurveRequest request;
    request.mode = Mode::Tensile;
    request.abscissas = {0.1};
    const Curve curve = PlasticModel(250.0, 1450.0, std::nullopt).curve(request);
    EXPECT_TRUE(curve.columns.empty());
    EXPECT_TRUE(has(curve.findings, FindingId::ModulusMissing));
}

TEST(MisesSurface, DoesNotDependOnThePressure)
{
    const PlasticModel model(example, std::nullopt);
    EXPECT_EQ(valueAt(model, Mode::Yield, -1e6, Quantity::MisesStress), 450.0);
    EXPECT_EQ(valueAt(model, Mode::Yield, 1e6, Quantity::MisesStress), 450.0);
}

TEST(PlasticRobustness, AnyConstantsGiveACurveOrFindings)
{
    const double values[] = {0.0, 1.0, -1.0, 1e300, -1e300, std::numeric_limits<double>::infinity(), std::nan("")};
    CurveRequest request;
    request.detail = Detail::Full;
    request.abscissas = {-2.0, -1.0, -0.5, 0.0, 1e-300, 0.1, 1e300, std::nan("")};
    for (const double a : values) {
        for (const double b : values) {
            for (const double e : values) {
                const PlasticModel bilinear(a, b, ElasticConstants{e, 0.3});
                const PlasticModel multilinear({{0.0, a}, {b, e}, {e, b}}, ElasticConstants{a, b});
                for (const Mode mode : bilinear.modes()) {
                    request.mode = mode;
                    for (const Model* model :
                         {static_cast<const Model*>(&bilinear), static_cast<const Model*>(&multilinear)}) {
                        for (const Column& column : model->curve(request).columns)
                            EXPECT_EQ(column.values.size(), request.abscissas.size());
                    }
                }
            }
        }
    }
}

} // namespace
