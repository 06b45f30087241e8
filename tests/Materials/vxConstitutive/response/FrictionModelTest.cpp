#include "vxConstitutive/response/FrictionModel.h"

#include "ConstitutiveTesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace vxConstitutive;
using vxtest::has;

namespace {

FrictionModel modelOf(ModelKind kind, double angle)
{
    FrictionConstants constants;
    constants.kind = kind;
    constants.frictionAngle = angle;
    return FrictionModel(constants);
}

Curve yieldOf(ModelKind kind, double angle, std::vector<double> pressures, std::optional<double> cohesion)
{
    CurveRequest request;
    request.mode = Mode::Yield;
    request.abscissas = std::move(pressures);
    request.cohesion = cohesion;
    return modelOf(kind, angle).curve(request);
}

/// The Mises stress and the pressure of principal stresses, which are positive in tension.
struct State
{
    double pressure;
    double mises;
};

State stateOf(double a, double b, double c)
{
    return {-(a + b + c) / 3.0, std::sqrt(0.5 * ((a - b) * (a - b) + (b - c) * (b - c) + (c - a) * (c - a)))};
}

TEST(MohrCoulomb, MeridiansHaveTheStressesOfTheCriterion)
{
    // Triaxial tests with c = 3 and 30 degrees: sigma_max = sigma_min (1 + sin)/(1 - sin) + 2 c cos/(1 - sin) in compression.
    const double cohesion = 3.0;
    const double confining = 10.0;
    const double axial = 3.0 * confining + 2.0 * cohesion * std::sqrt(3.0); // 30 degrees: factors 3 and 2 sqrt(3)
    const State compression = stateOf(-axial, -confining, -confining);
    const State extension = stateOf(-confining, -axial, -axial);
    const Curve first = yieldOf(ModelKind::MohrCoulomb, 30.0, {compression.pressure}, cohesion);
    const Curve second = yieldOf(ModelKind::MohrCoulomb, 30.0, {extension.pressure}, cohesion);
    EXPECT_NEAR(first.find(Quantity::MisesStressCompression)->front(), compression.mises, 1e-12);
    EXPECT_NEAR(second.find(Quantity::MisesStressExtension)->front(), extension.mises, 1e-12);
    EXPECT_EQ(first.columns[0].unit, "Pa");
}

TEST(MohrCoulomb, WithoutFrictionIsTresca)
{
    const Curve curve = yieldOf(ModelKind::MohrCoulomb, 0.0, {-100.0, 100.0}, 3.0);
    for (const std::size_t column : {1U, 2U}) {
        EXPECT_NEAR(curve.columns[column].values[0], 6.0, 1e-12); // twice the cohesion
        EXPECT_NEAR(curve.columns[column].values[1], 6.0, 1e-12);
    }
}

TEST(DruckerPrager, ConesGoThroughTheMeridiansOfMohrCoulomb)
{
    const std::vector<double> pressures{-1.0, 0.0, 5.0};
    const Curve cone = yieldOf(ModelKind::DruckerPrager, 20.0, pressures, 2.0);
    const Curve pyramid = yieldOf(ModelKind::MohrCoulomb, 20.0, pressures, 2.0);
    EXPECT_EQ(*cone.find(Quantity::MisesStressOuter), *pyramid.find(Quantity::MisesStressCompression));
    EXPECT_EQ(*cone.find(Quantity::MisesStressInner), *pyramid.find(Quantity::MisesStressExtension));
    const double tangent = std::tan(20.0 * M_PI / 180.0);
    const double root = std::sqrt(9.0 + 12.0 * tangent * tangent);
    EXPECT_NEAR(cone.find(Quantity::MisesStressPlaneStrain)->at(2),
                std::sqrt(3.0) * (3.0 * 2.0 + 3.0 * 5.0 * tangent) / root, 1e-12);
}

TEST(FrictionSurface, WithoutACohesionIsInMultiplesOfIt)
{
    const Curve relative = yieldOf(ModelKind::DruckerPrager, 20.0, {-1.0, 2.5}, std::nullopt);
    const Curve absolute = yieldOf(ModelKind::DruckerPrager, 20.0, {-1e5, 2.5e5}, 1e5);
    EXPECT_TRUE(has(relative.findings, FindingId::NormalisedByCohesion));
    EXPECT_EQ(relative.columns[1].unit, "1");
    EXPECT_EQ(columnName(relative.columns[0]), "pressure / cohesion");
    for (std::size_t i = 0; i < 2; ++i)
        EXPECT_NEAR(absolute.columns[1].values[i], 1e5 * relative.columns[1].values[i], 1e-6);
}

TEST(FrictionSurface, EndsAtItsApex)
{
    const double apex = -2.0 / std::tan(30.0 * M_PI / 180.0);
    const Curve curve = yieldOf(ModelKind::MohrCoulomb, 30.0, {apex - 0.1, apex + 1e-9}, 2.0);
    EXPECT_TRUE(std::isnan(curve.columns[1].values[0]));
    EXPECT_NEAR(curve.columns[1].values[1], 0.0, 1e-8);
    EXPECT_EQ(vxtest::firstArgument(curve.findings, FindingId::NoYieldBeyondApex), "-3.4641"); // Pa
    const Curve relative = yieldOf(ModelKind::MohrCoulomb, 30.0, {-2.0, 1.0}, std::nullopt);
    EXPECT_EQ(vxtest::firstArgument(relative.findings, FindingId::NoYieldBeyondMultiple), "-1.73205");
    EXPECT_FALSE(has(relative.findings, FindingId::NoYieldBeyondApex));
    EXPECT_FALSE(has(curve.findings, FindingId::ResultNotFinite));
}

TEST(FrictionSurface, HasNoStressAtItsApex)
{
    for (const double angle : {5.0, 20.0, 33.0, 45.0, 60.0}) {
        const double apex = -1.0 / std::tan(angle * M_PI / 180.0);
        for (const double pressure : {apex, std::nextafter(apex, 0.0), std::nextafter(apex, -1e9)}) {
            const Curve curve = yieldOf(ModelKind::DruckerPrager, angle, {pressure}, std::nullopt);
            for (const std::size_t column : {1U, 2U, 3U})
                EXPECT_EQ(curve.columns[column].values[0], 0.0) << angle;
        }
    }
}

TEST(FrictionConstants, MissingConstantsOfTheCatalogueAreReported)
{
    FrictionConstants constants;
    constants.frictionAngle = 20.0;
    constants.viscosity = 500.0;
    const FrictionModel model(constants);
    for (const FindingId id : {FindingId::CohesionMissing, FindingId::DilationMissing, FindingId::FrictionMatchMissing,
                               FindingId::ViscosityAmbiguous})
        EXPECT_TRUE(has(model.findings(), id)) << findingRecord(id).key;
    EXPECT_FALSE(has(modelOf(ModelKind::MohrCoulomb, 20.0).findings(), FindingId::FrictionMatchMissing));
}

TEST(FrictionConstants, AnglesOutsideTheirRangeAreErrorsAndSmallOnesDoubts)
{
    for (const double angle : {-1.0, 90.0, 1e300, std::nan("")}) {
        EXPECT_TRUE(has(modelOf(ModelKind::DruckerPrager, angle).findings(), FindingId::FrictionAngleOutside)) << angle;
        EXPECT_TRUE(yieldOf(ModelKind::DruckerPrager, angle, {1.0}, 1.0).columns.empty());
    }
    EXPECT_TRUE(has(modelOf(ModelKind::DruckerPrager, 0.35).findings(), FindingId::FrictionAngleRadian));
    EXPECT_FALSE(has(modelOf(ModelKind::DruckerPrager, 0.0).findings(), FindingId::FrictionAngleRadian));
    EXPECT_FALSE(has(modelOf(ModelKind::DruckerPrager, 20.0).findings(), FindingId::FrictionAngleRadian));
}

} // namespace
