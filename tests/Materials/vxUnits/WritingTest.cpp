#include "vxUnits/Writing.h"

#include "CommaLocale.h"
#include "Repetitions.h"

#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Reading.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>

namespace {

using Id = vxMat::PropertyId;
using vxUnits::Unit;
using vxUnits::UnitSystem;
using vxUnits::writeNumber;
using vxUnits::writeQuantity;

std::string written(double number, const std::string& unit, int digits = vxUnits::shortestDigits)
{
    return writeNumber(number, *Unit::parse(unit), digits);
}

TEST(Writing, TakesTheFewestDigitsThatReadBack)
{
    EXPECT_EQ(written(2.1e11, "GPa"), "210");
    EXPECT_EQ(written(2.1e11, "MPa"), "210000");
    EXPECT_EQ(written(7850, "t/mm^3"), "7.85e-09");
    EXPECT_EQ(written(7850, "g/cm^3"), "7.85");
    EXPECT_EQ(written(0.0003, "mm"), "0.3");
    EXPECT_EQ(written(0.3, "%"), "30");
    EXPECT_EQ(written(0.57, "%"), "57");
    EXPECT_EQ(written(206842718795.05084, "psi"), "3e+07");
    EXPECT_EQ(written(-2.5e8, "MPa"), "-250");
    EXPECT_EQ(written(0.0, "MPa"), "0");
}

TEST(Writing, RoundsToTheDigitsThatAreAskedFor)
{
    EXPECT_EQ(written(206842718795.05084, "GPa", 4), "206.8");
    EXPECT_EQ(written(206842718795.05084, "GPa", 1), "200");
    EXPECT_EQ(written(1e11 / 3.0, "GPa", 6), "33.3333");
    EXPECT_EQ(written(9.9996e9, "GPa", 4), "10");
    EXPECT_EQ(written(2.1e11, "GPa", 12), "210");
    EXPECT_EQ(written(1.0 / 3.0, "1", 15), "0.333333333333333");
}

TEST(Writing, WritesWhatIsNoNumberAsSuch)
{
    EXPECT_EQ(written(std::numeric_limits<double>::infinity(), "GPa"), "inf");
    EXPECT_EQ(written(std::nan(""), "GPa"), "nan");
}

TEST(Writing, AnyNumberIsReadBackExactlyInAnyUnit)
{
    const char* const units[] = {"GPa",  "MPa", "psi", "ksi",      "kgf/mm^2", "dyn/cm^2",
                                 "Torr", "psf", "mPa", "lbf/yd^2", "bar"};
    const Unit pascal = *Unit::parse("Pa");
    std::mt19937_64 random(11);
    for (int i = 0; i < vxtest::repetitions(20000, 2000); ++i) {
        std::uint64_t bits = random();
        double number = 0.0;
        std::memcpy(&number, &bits, sizeof number);
        if (!std::isfinite(number) || std::abs(number) < 1e-290)
            continue;
        const std::string unit = units[random() % std::size(units)];
        const std::string text = written(number, unit).append(" ").append(unit);
        const auto back = vxUnits::readNumber(text, pascal);
        ASSERT_TRUE(back) << text << ": " << back.failure().text();
        ASSERT_EQ(back->value, number) << text;
    }
}

TEST(Writing, NumbersOfFewDigitsStayShort)
{
    std::mt19937 random(5);
    for (int i = 0; i < vxtest::repetitions(5000, 500); ++i) {
        const std::string digits = std::to_string(random() % 1000000);
        for (const char* const unit : {"GPa", "ksi", "psf", "mbar"}) {
            const double number = vxUnits::readNumber(digits + " " + unit, *Unit::parse("Pa"))->value;
            const auto plain = vxUnits::readNumber(digits, *Unit::parse(unit))->understood;
            ASSERT_EQ(written(number, unit) + " " + unit, plain);
        }
    }
}

TEST(Writing, WritesQuantitiesInASystem)
{
    const UnitSystem mm = *UnitSystem::parse("mm-t-s");
    const auto modulus = writeQuantity(Id::YoungsModulus, 2.069e11, mm);
    EXPECT_EQ(modulus->number, "206900");
    EXPECT_EQ(modulus->unit, "MPa");
    EXPECT_EQ(writeQuantity(Id::PoissonsRatio, 0.29, mm)->unit, "");
    EXPECT_EQ(writeQuantity(Id::CreepModulusA, 1e-40, mm, vxUnits::CreepExponents{5.0, 0.0})->number, "1e-10");
    EXPECT_EQ(writeQuantity(Id::CreepModulusA, 1e-40, mm).failure().code, vxUnits::FaultCode::UnitNotKnown);
    EXPECT_EQ(writeQuantity(Id::Plasticity, 1, mm).failure().code, vxUnits::FaultCode::TakesNoNumber);
    EXPECT_EQ(writeQuantity(Id::YoungsModulus, 2.0123456e11, mm, {}, 3)->number, "201000");
}

TEST(Writing, DoesNotDependOnTheLocale)
{
    const vxtest::CommaLocale german;
    EXPECT_EQ(written(2.15e9, "GPa"), "2.15");
    EXPECT_EQ(written(2.15e9, "ksi", 5), "311.83");
}

} // namespace
