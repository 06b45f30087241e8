#include "vxConstitutive/fit/EstimateText.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace vxConstitutive;

namespace {

TEST(TextOfAnEstimate, HasTheDigitsThatItsStandardErrorJustifies)
{
    EXPECT_EQ(estimateText(406123.4, 1234.0), "406100");
    EXPECT_EQ(estimateText(2.03456789e11, 1.6e9), "2.035e+11");
    EXPECT_EQ(estimateText(-0.0123456, 0.00098), "-0.01235");
    EXPECT_EQ(estimateText(0.99996, 0.012), "1");
    EXPECT_EQ(estimateText(4.7299663, 0.019), "4.73");
}

TEST(TextOfAnEstimate, KeepsTwoToSixDigits)
{
    EXPECT_EQ(estimateText(1.23456, 50.0), "1.2");
    EXPECT_EQ(estimateText(1.23456789, 1e-12), "1.23457");
    EXPECT_EQ(estimateText(1.23456789, std::nullopt), "1.23457");
    EXPECT_EQ(estimateText(1.23456789, 0.0), "1.23457");
    EXPECT_EQ(estimateText(1.23456789, HUGE_VAL), "1.23457");
    EXPECT_EQ(estimateText(0.0, 0.1), "0");
    EXPECT_EQ(estimateText(std::nan(""), 0.1), "nan");
}

TEST(TextOfAnEstimate, RoundsOtherNumbersToTheirDigits)
{
    EXPECT_EQ(roundedText(1234.0, errorDigits), "1200");
    EXPECT_EQ(roundedText(0.048349, residualDigits), "0.0483");
    EXPECT_EQ(roundedText(HUGE_VAL, residualDigits), "inf");
}

} // namespace
