#include "vxMaterial/json/NumberWords.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using vxjson::numberOfWord;
using vxjson::wordOfNumber;
using Limits = std::numeric_limits<double>;

TEST(NumberWords, SpellWhatJsonCannotExpress)
{
    EXPECT_EQ(wordOfNumber(Limits::infinity()), "Infinity");
    EXPECT_EQ(wordOfNumber(-Limits::infinity()), "-Infinity");
    EXPECT_EQ(wordOfNumber(Limits::quiet_NaN()), "NaN");
    EXPECT_EQ(wordOfNumber(-Limits::quiet_NaN()), "NaN");
    for (const double finite : {0.0, -1.5, Limits::max(), Limits::denorm_min()})
        EXPECT_EQ(wordOfNumber(finite), "");
}

TEST(NumberWords, AreReadToTheLetter)
{
    EXPECT_EQ(numberOfWord("Infinity"), Limits::infinity());
    EXPECT_EQ(numberOfWord("-Infinity"), -Limits::infinity());
    ASSERT_TRUE(numberOfWord("NaN"));
    EXPECT_TRUE(std::isnan(*numberOfWord("NaN")));
    for (const char* const other : {"", "nan", "inf", "infinity", "+Infinity", "-NaN", " NaN", "7"})
        EXPECT_FALSE(numberOfWord(other)) << other;
}

} // namespace
