#include "vxConstitutive/response/NortonModel.h"

#include "ConstitutiveTesting.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vxConstitutive;
using vxtest::has;

namespace {

Curve creepOf(const NortonModel& model, std::vector<double> times, std::vector<double> stresses)
{
    CurveRequest request;
    request.mode = Mode::Creep;
    request.abscissas = std::move(times);
    request.stresses = std::move(stresses);
    request.detail = Detail::Full;
    return model.curve(request);
}

TEST(NortonCreep, GrowsWithStressAndTimeByHand)
{
    // 1e-10 * 2^5 * 4^0.5/0.5 = 1.28e-8, and the rate 1e-10 * 2^5 * 4^-0.5 = 1.6e-9
    const Curve curve = creepOf(NortonModel(1e-10, 5.0, -0.5), {0.0, 4.0}, {2.0, -2.0});
    ASSERT_EQ(curve.columns.size(), 5U);
    EXPECT_EQ(curve.columns[1].values[0], 0.0);
    EXPECT_NEAR(curve.columns[1].values[1], 1.28e-8, 1e-22);
    EXPECT_NEAR(curve.columns[2].values[1], -1.28e-8, 1e-22);
    EXPECT_NEAR(curve.columns[3].values[1], 1.6e-9, 1e-23);
    EXPECT_EQ(columnName(curve.columns[2]), "creep strain at -2 Pa");
}

TEST(NortonCreep, ConstantsOfMetalsInPascalDoNotLeaveTheRangeOfNumbers)
{
    // A of 1e-14 in MPa and s with n = 40 is 1e-254 in Pa; at 100 MPa the strain rate is 1e66 in both.
    const Curve curve = creepOf(NortonModel(1e-254, 40.0, 0.0), {1.0}, {1e8});
    EXPECT_NEAR(std::log10(curve.columns[1].values[0]), 66.0, 1e-9);
}

TEST(NortonCreep, SaysThatStrainsAboveOneAreNotValid)
{
    // 1e-30 * 1e8^4 * 10 = 1e3, and 1e-30 * 1e7^4 * 10 = 0.1
    const NortonModel model(1e-30, 4.0, 0.0);
    const Curve large = creepOf(model, {0.0, 10.0}, {1e7, 1e8});
    EXPECT_NEAR(std::stod(vxtest::firstArgument(large.findings, FindingId::CreepStrainLarge)), 1e3, 1e-3);
    EXPECT_EQ(vxtest::firstArgument(large.findings, FindingId::CreepStrainLarge, 1), "1e+08");
    EXPECT_FALSE(has(creepOf(model, {0.0, 10.0}, {1e7}).findings, FindingId::CreepStrainLarge));
}

TEST(NortonCreep, RatesRiseByTheStressExponent)
{
    CurveRequest request;
    request.mode = Mode::CreepRate;
    request.abscissas = {1.0, 10.0, -10.0};
    request.time = 16.0;
    request.detail = Detail::Full;
    const Curve curve = NortonModel(1e-10, 3.0, -0.25).curve(request);
    EXPECT_NEAR(curve.columns[1].values[0], 0.5e-10, 1e-24);
    EXPECT_NEAR(curve.columns[1].values[1], 0.5e-7, 1e-20);
    EXPECT_NEAR(curve.columns[1].values[2], -0.5e-7, 1e-20);
    EXPECT_NEAR(curve.columns[2].values[1], 1.5e-8, 1e-21);
    EXPECT_EQ(curve.columns[1].parameter, 16.0);
}

TEST(NortonCreep, ACreepCurveNeedsAStress)
{
    EXPECT_TRUE(has(creepOf(NortonModel(1e-10, 5.0, 0.0), {1.0}, {}).findings, FindingId::StressesMissing));
}

TEST(NortonCreep, ExponentsOutsideTheirRangeAreReported)
{
    EXPECT_TRUE(NortonModel(1e-10, 5.0, -0.5).findings().empty());
    EXPECT_TRUE(has(NortonModel(1e-10, 5.0, 0.3).findings(), FindingId::CreepTimeExponent));
    EXPECT_TRUE(has(NortonModel(1e-10, 5.0, -1.0).findings(), FindingId::CreepTimeExponent));
    EXPECT_TRUE(has(NortonModel(1e-10, -5.0, 0.0).findings(), FindingId::CreepStressExponent));
    EXPECT_TRUE(has(NortonModel(0.0, 5.0, 0.0).findings(), FindingId::ConstantNotPositive));
    EXPECT_TRUE(has(NortonModel(1e-33, 5.0, 0.0).findings(), FindingId::CreepConstantSmall));
    EXPECT_TRUE(has(creepOf(NortonModel(1e-10, 5.0, -1.5), {1.0}, {1.0}).findings, FindingId::AbscissaOutside));
}

TEST(NortonCreep, AnyConstantsGiveACurveOrFindings)
{
    const double values[] = {0.0, 1.0, -1.0, 1e300, -1e300, std::numeric_limits<double>::infinity(), std::nan("")};
    for (const double a : values) {
        for (const double n : values) {
            for (const double m : values) {
                const Curve curve = creepOf(NortonModel(a, n, m), {-1.0, 0.0, 1.0, 1e300, std::nan("")}, {0.0, 1.0, a});
                for (const Column& column : curve.columns)
                    EXPECT_EQ(column.values.size(), 5U);
            }
        }
    }
}

} // namespace
