#include "vxConstitutive/response/LinearElasticModel.h"

#include "ConstitutiveTesting.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vxConstitutive;
using vxtest::has;
using vxtest::valueAt;

namespace {

TEST(LinearElasticity, StiffnessesOfTheTestsByHand)
{
    const LinearElasticModel model(210.0, 0.25);
    EXPECT_NEAR(valueAt(model, Mode::Uniaxial, 1.01, Quantity::NominalStress), 2.1, 1e-12);
    EXPECT_NEAR(valueAt(model, Mode::Equibiaxial, 1.01, Quantity::TrueStress), 2.8, 1e-12); // 2.1/0.75
    EXPECT_NEAR(valueAt(model, Mode::Planar, 1.01, Quantity::NominalStress), 2.24, 1e-12);  // 2.1/0.9375
    EXPECT_NEAR(valueAt(model, Mode::SimpleShear, 0.01, Quantity::NominalShearStress), 0.84, 1e-12);
    EXPECT_NEAR(valueAt(model, Mode::Volumetric, 1.01, Quantity::NominalStress), 4.2, 1e-12);
    EXPECT_NEAR(valueAt(model, Mode::Uniaxial, 1.3, Quantity::Slope), 210.0, 1e-12);
}

TEST(LinearElasticity, AnIncompressibleCurveHasThePoissonsRatioOneHalf)
{
    const LinearElasticModel model(210.0, 0.25);
    EXPECT_NEAR(valueAt(model, Mode::Equibiaxial, 1.01, Quantity::NominalStress, Compressibility::Incompressible), 4.2,
                1e-12);
    CurveRequest request;
    request.mode = Mode::Volumetric;
    request.abscissas = {1.01};
    request.compressibility = Compressibility::Incompressible;
    EXPECT_TRUE(has(model.curve(request).findings, FindingId::VolumetricNeedsD1));
}

TEST(LinearElasticity, LargeStrainsAreReported)
{
    const LinearElasticModel model(210.0, 0.25);
    CurveRequest request;
    request.abscissas = {0.96, 1.04};
    EXPECT_TRUE(model.curve(request).findings.empty());
    request.abscissas = {0.9, 1.04};
    EXPECT_EQ(vxtest::firstArgument(model.curve(request).findings, FindingId::SmallStrainExceeded), "0.1");
}

TEST(LinearElasticity, ConstantsOutsideTheirRangeAreReported)
{
    EXPECT_TRUE(LinearElasticModel(210.0, 0.25).findings().empty());
    EXPECT_TRUE(has(LinearElasticModel(0.0, 0.25).findings(), FindingId::ConstantNotPositive));
    EXPECT_TRUE(has(LinearElasticModel(std::nan(""), 0.25).findings(), FindingId::ConstantNotPositive));
    for (const double ratio : {0.5, 0.7, -1.0, -3.0, std::nan("")})
        EXPECT_TRUE(has(LinearElasticModel(210.0, ratio).findings(), FindingId::PoissonsRatioOutside)) << ratio;
}

TEST(LinearElasticity, DerivedModuli)
{
    const auto constants = LinearElasticModel(210.0, 0.25).constants();
    ASSERT_EQ(constants.size(), 4U);
    EXPECT_NEAR(constants[2].value, 84.0, 1e-12);
    EXPECT_NEAR(constants[3].value, 140.0, 1e-12);
}

} // namespace
