#include "vxConstitutive/data/UnitFactor.h"

#include <gtest/gtest.h>

using namespace vxConstitutive;

namespace {

TEST(UnitsOfTestData, ConvertToSi)
{
    EXPECT_EQ(unitFactor("MPa", Dimension::Stress), 1e6);
    EXPECT_EQ(unitFactor("N/mm^2", Dimension::Stress), 1e6);
    EXPECT_EQ(unitFactor("N/mm\xC2\xB2", Dimension::Stress), 1e6);
    EXPECT_NEAR(unitFactor("psi", Dimension::Stress).value_or(0.0), 6894.757293168, 1e-9); // NIST SP 811, B.8
    EXPECT_EQ(unitFactor("%", Dimension::Number), 0.01);
    EXPECT_EQ(unitFactor("mm/mm", Dimension::Number), 1.0);
    EXPECT_DOUBLE_EQ(unitFactor("um/m", Dimension::Number).value_or(0.0), 1e-6);
    EXPECT_EQ(unitFactor("min", Dimension::Time), 60.0);
    EXPECT_DOUBLE_EQ(unitFactor("1/h", Dimension::Rate).value_or(0.0), 1.0 / 3600.0);
    EXPECT_EQ(unitFactor("s^-1", Dimension::Rate), 1.0);
}

TEST(UnitsOfTestData, AUnitOfAnotherDimensionIsRefused)
{
    EXPECT_EQ(unitFactor("MPa", Dimension::Number), std::nullopt);
    EXPECT_EQ(unitFactor("kN", Dimension::Stress), std::nullopt);
    EXPECT_EQ(unitFactor("h", Dimension::Rate), std::nullopt);
    EXPECT_EQ(unitFactor("degree", Dimension::Number), std::nullopt);
}

TEST(UnitsOfTestData, ATextThatIsNotAUnitIsRefused)
{
    EXPECT_EQ(unitFactor("stress", Dimension::Stress), std::nullopt);
    EXPECT_EQ(unitFactor("MPa)", Dimension::Stress), std::nullopt);
    EXPECT_EQ(unitFactor("\xFF", Dimension::Number), std::nullopt);
}

} // namespace
