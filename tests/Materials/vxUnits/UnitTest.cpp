#include "vxUnits/Unit.h"

#include "ExactNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

namespace d = vxUnits::dimensions;
using vxUnits::Converter;
using vxUnits::DatabaseState;
using vxUnits::databaseState;
using vxUnits::Dimension;
using vxUnits::TemperatureMeaning;
using vxUnits::Unit;

Unit unit(const std::string& text)
{
    const auto parsed = Unit::parse(text);
    EXPECT_TRUE(parsed) << text << ": " << (parsed ? "" : parsed.failure().text());
    return parsed ? *parsed : Unit();
}

TEST(UnitText, IsWrittenAsEngineersDo)
{
    const std::vector<std::pair<const char*, const char*>> texts = {
        {"W/m/K", "W/(m K)"},
        {"W.m-1.K-1", "W/(m K)"},
        {"W m⁻¹ K⁻¹", "W/(m K)"},
        {"N/mm2", "N/mm^2"},
        {"kg*m^-3", "kg/m^3"},
        {"1/MPa", "1/MPa"},
        {"MPa^-5 h^-1", "1/(MPa^5 h)"},
        {"MPa^-4.5", "1/MPa^4.5"},
        {"µΩ·cm", "uOhm cm"},
        {"megapascals", "MPa"},
        {"ft lbf/(slug °F)", "ft lbf/(slug degF)"},
        {"m*m", "m^2"},
        {"m/m", "1"},
        {"mm/m", "mm/m"},
        {"(m/s)^2/K", "m^2/(s^2 K)"},
        {"percent", "%"},
        {"%", "%"},
        {"", "1"},
        {"-", "1"},
        {"1", "1"},
        {"lbs/in³", "lb/in^3"},
        {"hours", "h"},
        {"deg C", "degC"},
        {"kp/mm^2", "kgf/mm^2"},
        {"1 / ( h ft degF )", "1/(h ft degF)"},
        {"J per kg per K", "J/(kg K)"},
        {"per K", "1/K"},
        {"s/s^0.667", "s^0.333"},
        {"millibar", "mbar"},
        {"kilobars", "kbar"},
        {"microohm cm", "uOhm cm"},
        {"microstrain", "ustrain"},
        {"BAR", "bar"},
    };
    for (const auto& [typed, written] : texts)
        EXPECT_EQ(unit(typed).text(), written) << typed;
}

TEST(UnitText, ReadsAsTheSameUnit)
{
    for (const char* const text :
         {"W/(m K)", "1/(MPa^5 h)", "uOhm cm", "%IACS", "‰", "lbf s^2/in^4", "1/MPa^4.5", "rad"}) {
        const Unit once = unit(text);
        const Unit twice = unit(once.text());
        EXPECT_EQ(once.text(), twice.text());
        EXPECT_EQ(once.factor(), twice.factor()) << text;
        EXPECT_EQ(once.dimension(), twice.dimension()) << text;
    }
}

TEST(UnitText, OfDegreesTimesCoulombIsNoTemperature)
{
    EXPECT_EQ(unit("deg*C").text(), "deg*C");
    EXPECT_EQ(unit("deg*C").dimension(), d::angle * d::current * d::time);
    EXPECT_EQ(unit("deg C").text(), "degC");
}

TEST(BuiltInUnits, ReadAsThemselves)
{
    EXPECT_GT(vxUnits::builtInUnits().size(), 95U);
    for (const Unit& one : vxUnits::builtInUnits()) {
        EXPECT_EQ(unit(one.text()).factor(), one.factor()) << one.text();
        EXPECT_EQ(unit(one.text()).dimension(), one.dimension()) << one.text();
    }
}

TEST(UnitGrammar, PowersAreLimitedTogether)
{
    EXPECT_TRUE(Unit::parse("m^50"));
    EXPECT_FALSE(Unit::parse("m^51"));
    EXPECT_FALSE(Unit::parse("m^30 m^30"));
    EXPECT_FALSE(Unit::parse("(m^30)^2"));
}

TEST(UnitGrammar, ASlashDividesByTheNextUnitAlone)
{
    EXPECT_EQ(unit("W/m K").dimension(), d::power / d::length * d::temperature);
    EXPECT_EQ(unit("W/m/K").dimension(), d::thermalConductivity);
    EXPECT_EQ(unit("W/(m/K)").dimension(), d::power / d::length * d::temperature);
    EXPECT_EQ(unit("1/(m/(s/K))").dimension(), d::time / d::length / d::temperature);
}

TEST(UnitGrammar, PowersConcernWhatStandsBeforeThem)
{
    EXPECT_EQ(unit("mm^2").factor(), 1e-6);
    EXPECT_EQ(unit("(N/mm)^2").factor(), 1e6);
    EXPECT_EQ(unit("(N/mm^2)^-3").factor(), 1e-18);
    EXPECT_EQ(unit("m2K").dimension(), d::area * d::temperature);
    EXPECT_EQ(unit("m^2.5").dimension(), d::length.power(2.5));
    EXPECT_EQ(unit("m^2.K").dimension(), d::area * d::temperature);
    EXPECT_EQ(unit("m^0").text(), "1");
}

TEST(Dimensions, HaveNames)
{
    EXPECT_EQ(unit("GPa").dimension().name(), "pressure or stress");
    EXPECT_EQ(unit("lb/in^3").dimension().name(), "density");
    EXPECT_EQ(unit("%").dimension().name(), "a pure number");
    EXPECT_EQ(unit("kg^2").dimension().name(), "");
}

TEST(Dimensions, AngleIsNoPureNumber)
{
    EXPECT_NE(unit("deg").dimension(), d::none);
    EXPECT_EQ(unit("rad").dimension(), d::angle);
    EXPECT_EQ(unit("rad").dimension().exponent(Dimension::Angle), 1.0);
}

TEST(Notes, SayWhichCalorieIsMeant)
{
    EXPECT_EQ(unit("cal/(g K)").note().text(), "cal is the International Table calorie, 4.1868 J; cal_th is 4.184 J.");
    EXPECT_STREQ(unit("cal_th/(g K)").note().id, "");
    EXPECT_STREQ(unit("Btu/(h ft degF)").note().id, "units.note-btu");
    EXPECT_STREQ(unit("m").note().id, "");
}

// --- Converters ---

Converter converter(const std::string& from, const std::string& to,
                    TemperatureMeaning meaning = TemperatureMeaning::Difference)
{
    const auto made = Converter::between(unit(from), unit(to), meaning);
    EXPECT_TRUE(made) << from << " to " << to;
    return made ? *made : Converter();
}

TEST(Converters, AreExactBetweenDecimalUnits)
{
    EXPECT_EQ(converter("Pa", "GPa")(2.1e11), 210.0);
    EXPECT_EQ(converter("GPa", "Pa")(2.1), 2.1e9);
    EXPECT_EQ(converter("kg/m^3", "t/mm^3")(7850.0), 7.85e-9);
    EXPECT_EQ(converter("mm", "m")(0.3), 0.0003);
    EXPECT_EQ(converter("m", "mm")(0.0003), 0.3);
    EXPECT_EQ(converter("%", "1")(57.0), 0.57);
}

TEST(Converters, AreWithinTheLastPlaceOtherwise)
{
    const vxtest::Rational psi = vxtest::evaluate("0.45359237*9.80665/0.0254/0.0254");
    const Converter toPascal = converter("psi", "Pa");
    const Converter toPsi = converter("Pa", "psi");
    std::mt19937 random(3);
    for (int i = 0; i < 1000; ++i) {
        const double number = std::ldexp(static_cast<double>(random()), static_cast<int>(random() % 60) - 30);
        EXPECT_LE(vxtest::relativeError(toPascal(number), vxtest::Rational(number) * psi), 2.3e-16);
        EXPECT_LE(vxtest::relativeError(toPsi(number), vxtest::Rational(number) / psi), 2.3e-16);
    }
}

TEST(Converters, TakeTheZerosOfTemperatureScalesIntoAccount)
{
    EXPECT_EQ(converter("degC", "K", TemperatureMeaning::Absolute)(20.0), 293.15);
    EXPECT_NEAR(converter("degF", "degC", TemperatureMeaning::Absolute)(212.0), 100.0, 1e-12);
    EXPECT_EQ(converter("degC", "K")(20.0), 20.0);
    EXPECT_FALSE(Converter::between(unit("degC"), unit("K"), TemperatureMeaning::Refused));
    EXPECT_TRUE(Converter::between(unit("W/(m degC)"), unit("W/(m K)"), TemperatureMeaning::Refused));
}

TEST(Converters, ExistBetweenUnitsOfOneDimensionOnly)
{
    const auto made = Converter::between(unit("GPa"), unit("kg"));
    ASSERT_FALSE(made);
    EXPECT_EQ(made.failure().text(), "\"GPa\" measures pressure or stress; a unit such as kg is needed.");
}

TEST(Converters, OneNumberIsConvertedAsIfItWereTyped)
{
    EXPECT_EQ(vxUnits::convertNumber(1e-10, unit("1/(MPa^5 s)"), unit("1/(Pa^5 s)")), 1e-40);
    EXPECT_EQ(vxUnits::convertNumber(206900, unit("MPa"), unit("Pa")), 2.069e11);
    EXPECT_EQ(vxUnits::convertNumber(0.284, unit("lb/in^3"), unit("g/cm^3")),
              static_cast<double>(vxtest::evaluate("0.284*0.45359237/0.0254/0.0254/0.0254/1000")));
    EXPECT_TRUE(std::isnan(vxUnits::convertNumber(std::nan(""), unit("MPa"), unit("Pa"))));
    EXPECT_EQ(vxUnits::convertNumber(-HUGE_VAL, unit("MPa"), unit("Pa")), -HUGE_VAL);
    EXPECT_EQ(vxUnits::convertNumber(1e308, unit("GPa"), unit("Pa")), HUGE_VAL);
}

TEST(Converters, ConvertArrays)
{
    std::vector<double> numbers{1.0, 2.0, -3.5};
    converter("MPa", "Pa").convert(numbers.data(), numbers.size(), numbers.data());
    EXPECT_EQ(numbers, (std::vector<double>{1e6, 2e6, -3.5e6}));
}

// --- The database of UDUNITS ---

TEST(Database, IsNotReadForBuiltInUnits)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // in a process that has read nothing yet
    const auto useBuiltIn = [] {
        const bool known = Unit::parse("Btu/(h ft degF)").hasValue() && Unit::parse("lbf s^2/in^4").hasValue();
        const bool unknown = !Unit::parse("G").hasValue();
        std::exit(known && unknown && databaseState() == DatabaseState::NotRead ? 0 : 1);
    };
    EXPECT_EXIT(useBuiltIn(), testing::ExitedWithCode(0), "");
}

TEST(Database, IsReadForAUnitThatIsNotBuiltIn)
{
    const Unit furlong = unit("furlong");
    EXPECT_EQ(databaseState(), DatabaseState::Read);
    EXPECT_EQ(furlong.dimension(), d::length);
    EXPECT_NEAR(furlong.factor(), 660.0 * 1200.0 / 3937.0, 1e-10); // 660 feet of the United States survey
    EXPECT_EQ(furlong.note().text(),
              "\"furlong\" is taken from the database of UDUNITS, with as many digits as it has there.");
    EXPECT_EQ(unit("acre").dimension(), d::area);
}

TEST(Database, DoesNotReplaceABuiltInUnitInOtherLetters)
{
    for (const char* const text : {"Slug", "TORR", "GAL", "Gal", "KIP", "SEC"}) {
        const auto parsed = Unit::parse(text);
        ASSERT_FALSE(parsed) << text;
        EXPECT_FALSE(parsed.failure().suggestion.empty()) << text;
    }
    EXPECT_EQ(Unit::parse("Slug").failure().suggestion, "slug");
}

TEST(Database, GivesNoScalesAndNoTemperaturesOfItsOwn)
{
    for (const char* const text : {"degree_Reaumur", "BZ", "B_SPL", "lg"})
        EXPECT_FALSE(Unit::parse(text)) << text;
}

} // namespace
