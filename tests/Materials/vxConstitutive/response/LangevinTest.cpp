#include "vxConstitutive/response/Langevin.h"

#include "ConstitutiveTesting.h"

#include <gtest/gtest.h>

#include <cmath>

using vxConstitutive::inverseLangevin;

namespace {

// Values of the Langevin function, computed with thirty digits.
struct Pair
{
    double b;
    double x;
};

TEST(InverseLangevin, IsTheInverseOfTheLangevinFunction)
{
    for (const Pair& pair :
         {Pair{1e-8, 3.3333333333333333e-9}, Pair{0.01, 0.003333311111322751}, Pair{1.0, 0.31303528549933130},
          Pair{10.0, 0.90000000412230720}, Pair{100.0, 0.99}, Pair{1e4, 0.9999}})
        EXPECT_NEAR(inverseLangevin(pair.x).value, pair.b, 2e-12 * pair.b * std::max(1.0, pair.b)) << pair.b;
}

TEST(InverseLangevin, IsOdd)
{
    EXPECT_EQ(inverseLangevin(-0.7).value, -inverseLangevin(0.7).value);
    EXPECT_EQ(inverseLangevin(0.0).value, 0.0);
}

TEST(InverseLangevin, SlopeIsTheDerivative)
{
    EXPECT_NEAR(inverseLangevin(0.0).slope, 3.0, 1e-12);
    for (const double x : {0.05, 0.2, 0.5, 0.8, 0.95}) {
        const double expected =
            vxtest::derivative([](double at) { return inverseLangevin(at).value; }, x, 1e-3 * (1.0 - x));
        EXPECT_NEAR(inverseLangevin(x).slope, expected, 1e-8 * expected) << x;
    }
}

TEST(InverseLangevin, HasNoValueAtTheFullLengthAndBeyond)
{
    EXPECT_TRUE(std::isnan(inverseLangevin(1.0).value));
    EXPECT_TRUE(std::isnan(inverseLangevin(-1.0).value));
    EXPECT_TRUE(std::isnan(inverseLangevin(7.0).slope));
    EXPECT_TRUE(std::isnan(inverseLangevin(std::nan("")).value));
    EXPECT_TRUE(std::isfinite(inverseLangevin(std::nextafter(1.0, 0.0)).value));
}

} // namespace
