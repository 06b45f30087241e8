#include "vxConstitutive/fit/FitBounds.h"

#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>

#include <cmath>

using namespace vxConstitutive;
using testing::HasSubstr;
using vxMat::PropertyId;

namespace {

BoundsReading boundsOf(const char* text, Mode mode = Mode::Uniaxial)
{
    return readBounds(text, mode, *vxUnits::UnitSystem::parse("mm-t-s"));
}

TEST(BoundsOfConstants, AreReadWithUnitsAndInThoseOfTheProject)
{
    const BoundsReading read = boundsOf(" C10 = 0:1 ; C01=100 kPa;lm=2:");
    EXPECT_EQ(read.problem, "");
    ASSERT_EQ(read.bounds.size(), 3U);
    EXPECT_EQ(read.bounds.at(PropertyId::MaterialConstantC10).lower, 0.0);
    EXPECT_NEAR(read.bounds.at(PropertyId::MaterialConstantC10).upper, 1e6, 1e-3);
    EXPECT_NEAR(read.bounds.at(PropertyId::MaterialConstantC01).lower, 1e5, 1e-3);
    EXPECT_NEAR(read.bounds.at(PropertyId::MaterialConstantC01).upper, 1e5, 1e-3);
    EXPECT_TRUE(std::isinf(read.bounds.at(PropertyId::LimitingNetworkStretch).upper));
}

TEST(BoundsOfConstants, AreThoseOfTheModelsOfTheTests)
{
    EXPECT_EQ(boundsOf("n=3", Mode::Creep).bounds.at(PropertyId::CreepModulusN).upper, 3.0);
    EXPECT_THAT(boundsOf("n=3").problem, HasSubstr("\"n\" is not a constant of these models; they have C10, C01"));
}

TEST(BoundsOfConstants, AreRefusedAsAWholeIfOneCannotBeRead)
{
    EXPECT_THAT(boundsOf("C01=1;C10").problem, HasSubstr("must have the form"));
    EXPECT_THAT(boundsOf("C01=1;C10=2:1").problem, HasSubstr("the lower bound is above the upper one"));
    EXPECT_THAT(boundsOf("C01=1;C10=1 kg").problem, HasSubstr("C10: "));
    EXPECT_THAT(boundsOf("C01=1;C10=").problem, HasSubstr("C10: "));
    EXPECT_TRUE(boundsOf("C01=1;C10").bounds.empty());
}

TEST(BoundsOfConstants, AreNoneInAnEmptyText)
{
    EXPECT_TRUE(boundsOf(" ; ").bounds.empty());
    EXPECT_EQ(boundsOf("").problem, "");
}

} // namespace
