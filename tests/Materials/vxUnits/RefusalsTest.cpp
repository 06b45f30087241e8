#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Reading.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Id = vxMat::PropertyId;
using vxUnits::Failure;
using vxUnits::FaultCode;
using vxUnits::readNumber;
using vxUnits::readQuantity;
using vxUnits::readQuantityList;
using vxUnits::TemperatureMeaning;
using vxUnits::Unit;

/// A text that is refused, why, and what is suggested instead; nothing if empty.
struct Refusal
{
    std::int32_t id;
    const char* text;
    FaultCode code;
    const char* suggestion;
};

constexpr std::int32_t e = Id::YoungsModulus;
constexpr std::int32_t rho = Id::Density;
constexpr std::int32_t k = Id::ThermalConductivity;
constexpr std::int32_t cp = Id::SpecificHeat;
constexpr std::int32_t mu = Id::DynamicViscosity;
constexpr std::int32_t sigma = Id::ElectricalConductivity;
constexpr std::int32_t nu = Id::PoissonsRatio;

const Refusal refusals[] = {
    // Nothing, or no number
    {e, "", FaultCode::Empty, ""},
    {e, "   \t ", FaultCode::Empty, ""},
    {e, "GPa", FaultCode::NumberMissing, "1 GPa"},
    {rho, "GPa", FaultCode::NumberMissing, ""},
    {e, "/MPa", FaultCode::NumberMissing, "1 MPa"},
    {e, "abc", FaultCode::NumberMissing, ""},
    {e, "-", FaultCode::NumberMissing, ""},
    {e, "- 5 MPa", FaultCode::NumberMissing, "-5 MPa"},
    {e, "nan", FaultCode::NotFinite, ""},
    {e, "NaN GPa", FaultCode::NotFinite, ""},
    {e, "inf", FaultCode::NotFinite, ""},
    {e, "-Infinity Pa", FaultCode::NotFinite, ""},
    {e, "0x10 Pa", FaultCode::Hexadecimal, ""},
    {e, "0x1p4", FaultCode::Hexadecimal, ""},
    {e, "1e400", FaultCode::OutOfRange, ""},
    {e, "1e308 GPa", FaultCode::OutOfRange, ""},
    {e, "1e-400 Pa", FaultCode::OutOfRange, ""},
    {e, "1e99999999999999999999 Pa", FaultCode::OutOfRange, ""},
    {e, "30e307 psi", FaultCode::OutOfRange, ""},

    // Numbers that are read otherwise elsewhere
    {e, "2,1 GPa", FaultCode::DecimalComma, "2.1 GPa"},
    {e, "2,1e11", FaultCode::DecimalComma, "2.1e11"},
    {e, "12,5", FaultCode::DecimalComma, "12.5"},
    {e, "-0,5 MPa", FaultCode::DecimalComma, "-0.5 MPa"},
    {e, "1.234,5 MPa", FaultCode::DecimalComma, "1234.5 MPa"},
    {e, "1.234.567,8", FaultCode::DecimalComma, "1234567.8"},
    {e, "2,1 GPas", FaultCode::DecimalComma, "2.1 GPa"},
    {e, "0,001 GPa", FaultCode::DecimalComma, "0.001 GPa"},
    {e, "1,000 MPa", FaultCode::ThousandsSeparator, "1000 MPa"},
    {e, "206,900 MPa", FaultCode::ThousandsSeparator, "206900 MPa"},
    {e, "1,234,567 Pa", FaultCode::ThousandsSeparator, "1234567 Pa"},
    {e, "1,234.5 MPa", FaultCode::ThousandsSeparator, "1234.5 MPa"},
    {e, "1.234.567 Pa", FaultCode::ThousandsSeparator, "1234567 Pa"},
    {e, "206 900 MPa", FaultCode::ThousandsSeparator, "206900 MPa"},
    {e, "1 000 000 Pa", FaultCode::ThousandsSeparator, "1000000 Pa"},
    {e, "206\u00A0900 MPa", FaultCode::ThousandsSeparator, "206900 MPa"},
    {e, "206\u2009900 MPa", FaultCode::ThousandsSeparator, "206900 MPa"},
    {e, "206'900 MPa", FaultCode::ThousandsSeparator, "206900 MPa"},
    {e, "206_900 MPa", FaultCode::ThousandsSeparator, "206900 MPa"},
    {e, "206’900 MPa", FaultCode::ThousandsSeparator, "206900 MPa"},
    {e, "200 - 210 GPa", FaultCode::SeveralNumbers, ""},
    {e, "200 -210 GPa", FaultCode::SeveralNumbers, ""},
    {e, "2.0-2.1 GPa", FaultCode::SeveralNumbers, ""},
    {e, "1e3 - 1e4", FaultCode::SeveralNumbers, ""},
    {e, "1 e5 Pa", FaultCode::MalformedNumber, "1e5 Pa"},
    {e, "1 E5", FaultCode::MalformedNumber, "1e5"},
    {e, "-2.1 e+11 Pa", FaultCode::MalformedNumber, "-2.1e+11 Pa"},
    {e, "2.1 e 11", FaultCode::MalformedNumber, "2.1e11"},
    {e, "2.1e 11 Pa", FaultCode::MalformedNumber, "2.1e11 Pa"},
    {e, "2.1 e - 3 GPa", FaultCode::MalformedNumber, "2.1e-3 GPa"},
    {e, "1e- 5 Pa", FaultCode::MalformedNumber, "1e-5 Pa"},
    {e, "2.1*10^ 11 Pa", FaultCode::MalformedNumber, "2.1e11 Pa"},
    {e, "2,1 e11", FaultCode::DecimalComma, "2.1e11"},
    {e, "1 e5 furlong", FaultCode::MalformedNumber, ""},
    {e, "5 5 MPa", FaultCode::SeveralNumbers, ""},
    {e, "1.5,5 Pa", FaultCode::SeveralNumbers, ""},
    {e, "1.2 10^6 Pa", FaultCode::SeveralNumbers, "1.2*10^6 Pa"},
    {e, "5'", FaultCode::IllegalCharacter, ""},
    {e, "1 0000 Pa", FaultCode::SeveralNumbers, ""},
    {e, "250, 300 MPa", FaultCode::SeveralNumbers, ""},
    {e, "1,2,3", FaultCode::SeveralNumbers, ""},
    {e, "200-210 GPa", FaultCode::SeveralNumbers, ""},
    {e, "2 3e5", FaultCode::SeveralNumbers, ""},
    {e, "1.2.3 MPa", FaultCode::MalformedNumber, ""},
    {e, "1e GPa", FaultCode::MalformedNumber, ""},
    {e, "1e", FaultCode::MalformedNumber, ""},
    {e, "1e+ Pa", FaultCode::MalformedNumber, ""},
    {e, "1e5.5 Pa", FaultCode::MalformedNumber, ""},
    {e, "1*10^ Pa", FaultCode::MalformedNumber, ""},
    {e, "2.1D11 Pa", FaultCode::MalformedNumber, "2.1e11 Pa"},
    {e, "2.1d+11", FaultCode::MalformedNumber, "2.1e+11"},
    {e, "2.1+11", FaultCode::MalformedNumber, "2.1e+11"},
    {e, "2.1-3 Pa", FaultCode::MalformedNumber, "2.1e-3 Pa"},

    // Units that are not known, or not clear
    {e, "210 GPas", FaultCode::UnknownUnit, "210 GPa"},
    {e, "210 gpa", FaultCode::UnknownUnit, "210 GPa"},
    {e, "210 Gpa", FaultCode::UnknownUnit, "210 GPa"},
    {e, "210 mpa", FaultCode::UnknownUnit, "210 MPa"},
    {e, "210 MPA", FaultCode::UnknownUnit, "210 MPa"},
    {e, "210 KPa", FaultCode::UnknownUnit, "210 kPa"},
    {e, "210 GP", FaultCode::UnknownUnit, "210 GPa"},
    {e, "210 MAp", FaultCode::UnknownUnit, ""},
    {e, "210 MPpa", FaultCode::UnknownUnit, "210 MPa"},
    {e, "210 n/mm^2", FaultCode::UnknownUnit, "210 N/mm^2"},
    {e, "7.85x", FaultCode::UnknownUnit, ""},
    {e, "210 G Pa", FaultCode::UnknownUnit, ""},
    {e, "5 xyzzy", FaultCode::UnknownUnit, ""},
    {rho, "7850 Kg/m3", FaultCode::UnknownUnit, "7850 kg/m^3"},
    {rho, "7850 KG/M3", FaultCode::UnknownUnit, "7850 kg/m^3"},
    {rho, "7.85 ton/m^3", FaultCode::AmbiguousUnit, "7.85 t/m^3"},
    {rho, "7.85e-9 ton/mm^3", FaultCode::AmbiguousUnit, "7.85e-9 t/mm^3"},
    {rho, "7.85 gr/cm3", FaultCode::AmbiguousUnit, "7.85 g/cm^3"},
    {e, "5 tonf/m^2", FaultCode::AmbiguousUnit, "5 tf/m^2"},
    {mu, "0.89 mPas", FaultCode::UnknownUnit, "0.89 mPa s"},
    {mu, "0.89 Pas", FaultCode::UnknownUnit, "0.89 Pa s"},
    {cp, "0.49 kJ/kgK", FaultCode::UnknownUnit, "0.49 kJ/(kg K)"},
    {k, "54 W/mK", FaultCode::WrongDimension, "54 W/(m K)"},
    {k, "54 W/(mK)", FaultCode::WrongDimension, "54 W/(m K)"},
    {e, "3e7 pounds per square inch", FaultCode::UnknownUnit, "3e7 lbf/in^2"},
    {rho, "490 lb/cu ft", FaultCode::UnknownUnit, "490 lb/ft^3"},
    {Id::SpeedOfSound, "60 mph", FaultCode::UnknownUnit, "60 mi/h"},
    {nu, "30 pct", FaultCode::UnknownUnit, "30 %"},
    {nu, "30%%", FaultCode::UnknownUnit, "30 %"},
    {sigma, "100 % IACS", FaultCode::UnknownUnit, "100 %IACS"},
    {e, "1 TORR", FaultCode::UnknownUnit, "1 Torr"},
    {e, "210 [GPa]", FaultCode::IllegalCharacter, "210 GPa"},
    {e, "210 →", FaultCode::IllegalCharacter, ""},
    {e, "210 帕", FaultCode::IllegalCharacter, ""},
    {e, "210 GPa!", FaultCode::IllegalCharacter, ""},
    {e, "210 \xFF", FaultCode::BadEncoding, ""},
    {e, "210 \xC3(", FaultCode::BadEncoding, ""},
    {e, "210 \xED\xA0\x80", FaultCode::BadEncoding, ""},
    {e, "210 \xC0\xAF", FaultCode::BadEncoding, ""},

    // Units with faults in their form
    {e, "210 (GPa", FaultCode::MalformedUnit, "210 GPa"},
    {k, "54 W/(m K", FaultCode::MalformedUnit, "54 W/(m K)"},
    {e, "210 GPa)", FaultCode::MalformedUnit, ""},
    {e, "210 GPa/", FaultCode::MalformedUnit, ""},
    {e, "210 GPa.", FaultCode::MalformedUnit, "210 GPa"},
    {e, "210 N/mm^", FaultCode::MalformedUnit, ""},
    {e, "210 N/mm^x", FaultCode::MalformedUnit, ""},
    {e, "210 N/mm^99", FaultCode::MalformedUnit, ""},
    {e, "210 Pa^1e3", FaultCode::MalformedUnit, ""},
    {e, "210 N//mm^2", FaultCode::MalformedUnit, ""},
    {e, "210 N/2", FaultCode::MalformedUnit, ""},
    {e, "1/2 psi", FaultCode::MalformedUnit, ""},
    {e, "210 ()", FaultCode::MalformedUnit, ""},
    {e, "210 GPa 5", FaultCode::MalformedUnit, ""},

    // Units that measure something else
    {e, "5 kg", FaultCode::WrongDimension, ""},
    {e, "5 furlong", FaultCode::WrongDimension, ""},
    {e, "5 kg/mm2", FaultCode::WrongDimension, "5 kgf/mm^2"},
    {e, "3e7 lb/in^2", FaultCode::WrongDimension, "3e7 lbf/in^2"},
    {e, "5 t/m2", FaultCode::WrongDimension, "5 tf/m^2"},
    {e, "20 degC", FaultCode::WrongDimension, ""},
    {rho, "5 kN/m^3", FaultCode::WrongDimension, ""},
    {k, "54 W/m K", FaultCode::WrongDimension, "54 W/(m K)"},
    {k, "54 W/m·K", FaultCode::WrongDimension, "54 W/(m K)"},
    {k, "54 W/m2 K", FaultCode::WrongDimension, ""},
    {k, "31 Btu/h-ft-F", FaultCode::WrongDimension, "31 Btu/(h ft degF)"},
    {k, "31 Btu/(h ft F)", FaultCode::WrongDimension, "31 Btu/(h ft degF)"},
    {cp, "490 J/kg K", FaultCode::WrongDimension, "490 J/(kg K)"},
    {cp, "490 J/kg C", FaultCode::WrongDimension, "490 J/(kg degC)"},
    {cp, "490 J/(kg C)", FaultCode::WrongDimension, "490 J/(kg degC)"},
    {sigma, "2e-8 ohm.m", FaultCode::WrongDimension, "5e+07 S/m"},
    {sigma, "2 µΩ·cm", FaultCode::WrongDimension, "5e+07 S/m"},
    {nu, "0.3 Pa", FaultCode::WrongDimension, ""},
    {nu, "0.3 deg", FaultCode::WrongDimension, ""},
    {Id::PlasticFAI, "30 %", FaultCode::WrongDimension, ""},
    {Id::LimitingNetworkStretch, "5.15 Pa", FaultCode::WrongDimension, ""},

    // Quantities that take no number, or none with a unit
    {Id::IsotropicElasticity, "1", FaultCode::TakesNoNumber, ""},
    {Id::PlasticYieldType, "1", FaultCode::TakesNoNumber, ""},
    {40, "1", FaultCode::TakesNoNumber, ""},
    {Id::CreepModulusA, "1e-20 MPa^-5/h", FaultCode::UnitNotKnown, ""},
};

TEST(Refusals, EachHasItsReasonAndTheNearestSpelling)
{
    for (const Refusal& one : refusals) {
        const auto reading = readQuantity(one.id, one.text);
        ASSERT_FALSE(reading) << one.text << " was read as " << reading->understood;
        EXPECT_EQ(reading.failure().code, one.code) << one.text << ": " << reading.failure().text();
        EXPECT_EQ(reading.failure().suggestion, one.suggestion) << one.text << ": " << reading.failure().text();
        EXPECT_FALSE(reading.failure().message.text().empty()) << one.text;
    }
}

TEST(Refusals, EverySuggestionIsTaken)
{
    for (const Refusal& one : refusals) {
        const auto reading = readQuantity(one.id, one.text);
        ASSERT_FALSE(reading);
        const std::string& suggestion = reading.failure().suggestion;
        EXPECT_TRUE(suggestion.empty() || readQuantity(one.id, suggestion)) << one.text << " -> " << suggestion;
    }
}

TEST(Refusals, NamesTheThingItsValueAndWhatToDo)
{
    EXPECT_EQ(readQuantity(e, "2,1 GPa").failure().text(),
              "\"2,1 GPa\" has a decimal comma; the decimal sign is a point. Did you mean \"2.1 GPa\"?");
    EXPECT_EQ(readQuantity(e, "5 kg").failure().text(),
              "\"5 kg\" measures mass; Young's modulus needs a unit such as Pa.");
    EXPECT_EQ(readQuantity(nu, "0.3 Pa").failure().text(),
              "\"0.3 Pa\" measures pressure or stress; Poisson's ratio is a pure number.");
    EXPECT_EQ(readQuantity(rho, "7.85 ton/m^3").failure().text(),
              "\"ton\" has more than one meaning; write t (1000 kg), short_ton (2000 lb) or long_ton (2240 lb). "
              "Did you mean \"7.85 t/m^3\"?");
    EXPECT_EQ(readQuantity(sigma, "2e-8 ohm.m").failure().text(),
              "\"2e-8 ohm.m\" measures electrical resistivity; Electrical conductivity is its reciprocal and needs a "
              "unit such "
              "as S/m. Did you mean \"5e+07 S/m\"?");
    EXPECT_EQ(vxUnits::readQuantity(Id::IncompressibilityParameterD1, "0.4MPa").failure().suggestion, "0.4 1/MPa");
    EXPECT_EQ(vxUnits::readQuantity(Id::YoungsModulus, "5 1/GPa").failure().suggestion, "5 GPa");
}

TEST(Refusals, NamesTheExponentThatTheUnitOfCreepLacksAndKeepsTheUnit)
{
    const auto refusal = [](std::optional<double> n, std::optional<double> m) {
        vxUnits::ReadingContext context;
        context.creep = vxUnits::CreepExponents{n, m};
        return readQuantity(Id::CreepModulusA, "1e-10 MPa^-4.5 s^-1", context).failure().text();
    };
    EXPECT_EQ(readQuantity(Id::CreepModulusA, "1 h").failure().text(),
              "The unit of Creep Modulus A depends on Creep Modulus N and Creep Modulus M, which are not given; give "
              "them first.");
    EXPECT_EQ(refusal(4.5, std::nullopt),
              "The unit of Creep Modulus A depends on Creep Modulus M, which is not given; give it first.");
    EXPECT_EQ(refusal(std::nullopt, 0.0),
              "The unit of Creep Modulus A depends on Creep Modulus N, which is not given; give it first.");
    EXPECT_EQ(refusal(4.5, 60.0),
              "The unit of Creep Modulus A depends on Creep Modulus M, which is not between -50 and 50; convert the "
              "number to SI units and write it without a unit.");
}

TEST(Refusals, QuoteWhatWasTyped)
{
    EXPECT_EQ(readQuantity(nu, "0 10 %").failure().message.arguments.front(), "0 10 %");
    EXPECT_EQ(readQuantityList(Id::PlasticStrain, "0 10 20 %").failure().message.arguments.front(), "0 10 20 %");
    EXPECT_EQ(readQuantity(e, "210 [GPa]").failure().message.arguments,
              (std::vector<std::string>{"210 [GPa]", "U+005B"}));
}

TEST(Refusals, QuoteNoCharacterThatTurnsTheTextAroundIt)
{
    EXPECT_EQ(readQuantity(e, "1 \u202EPa").failure().text(),
              "\"1 ?Pa\" contains the character U+202E, which no number and no unit has.");
    EXPECT_EQ(readQuantity(e, "1 \u2067Pa").failure().message.arguments.front(), "1 ?Pa");
}

TEST(Refusals, OfAnExponentApartFromItsNumberSaySo)
{
    EXPECT_EQ(readQuantity(e, "1 e5 Pa").failure().text(),
              "The exponent in \"1 e5 Pa\" must follow the number without a blank. Did you mean \"1e5 Pa\"?");
    EXPECT_EQ(readNumber("1 eV", *Unit::parse("J"))->understood, "1 eV = 1.602176634e-19 J") << "is no exponent";
}

TEST(Refusals, OfAListSayWhichNumberHasNoUnit)
{
    const auto reading = readQuantityList(Id::PlasticStrain, "0, 5 %, 10 %");
    ASSERT_FALSE(reading);
    EXPECT_EQ(reading.failure().message.arguments.front(), "0");
}

TEST(Refusals, OfADoubtfulCommaGiveBothReadings)
{
    EXPECT_EQ(readQuantityList(Id::PlasticYieldStress, "0,25 GPa").failure().text(),
              "The comma in \"0,25 GPa\" may be a decimal sign or separate two numbers; write \"0.25 GPa\" or "
              "\"0, 25 GPa\".");
}

TEST(Refusals, ADifferenceDoesNotBecomeATemperature)
{
    const Unit celsius = *Unit::parse("degC");
    const auto reading = readNumber("20 delta_degC", celsius, TemperatureMeaning::Absolute);
    ASSERT_FALSE(reading);
    EXPECT_EQ(reading.failure().code, FaultCode::TemperatureScale);
    EXPECT_EQ(reading.failure().suggestion, "20 degC");
    EXPECT_FALSE(readNumber("20 degC", *Unit::parse("delta_degC"), TemperatureMeaning::Absolute));
    EXPECT_EQ(readNumber("20 delta_degC", *Unit::parse("K"), TemperatureMeaning::Absolute)->value, 20.0);
}

TEST(Refusals, AMessageKeepsItsArgumentsApartForTranslation)
{
    const Failure failure = readQuantity(e, "5 kg").failure();
    EXPECT_STREQ(failure.message.id, "units.wrong-dimension-of");
    EXPECT_STREQ(failure.message.english, "\"%1\" measures %2; %4 needs a unit such as %3.");
    EXPECT_EQ(failure.message.arguments, (std::vector<std::string>{"5 kg", "mass", "Pa", "Young's modulus"}));
}

TEST(Refusals, AnArgumentThatLooksLikeAPlaceIsLeftAlone)
{
    const Failure failure = readQuantity(e, "5 %2").failure();
    EXPECT_EQ(failure.message.text().substr(0, 6), "\"5 %2\"") << failure.message.text();
}

TEST(Refusals, ATemperatureIsRefusedWhereADifferenceIsMeant)
{
    const Unit kelvin = *Unit::parse("K");
    const auto celsius = readNumber("20 degC", kelvin);
    ASSERT_FALSE(celsius);
    EXPECT_EQ(celsius.failure().code, FaultCode::TemperatureScale);
    EXPECT_EQ(celsius.failure().suggestion, "20 K");
    EXPECT_EQ(readNumber("9 °F", kelvin).failure().suggestion, "9 delta_degF");
    EXPECT_EQ(readNumber("9 delta_degF", kelvin)->value, 5.0);
    EXPECT_EQ(readNumber("20 degC", kelvin, TemperatureMeaning::Absolute)->value, 293.15);
    EXPECT_EQ(readNumber("20 degC", kelvin, TemperatureMeaning::Difference)->value, 20.0);
}

TEST(Refusals, NoTemperatureIsBelowTheAbsoluteZero)
{
    const Unit kelvin = *Unit::parse("K");
    for (const char* const text : {"-300 degC", "-273.16 degC", "-460 degF", "-1 K"}) {
        const auto reading = readNumber(text, kelvin, TemperatureMeaning::Absolute);
        ASSERT_FALSE(reading) << text;
        EXPECT_EQ(reading.failure().code, FaultCode::BelowAbsoluteZero) << text;
    }
    EXPECT_EQ(readNumber("-1 K", kelvin)->value, -1.0) << "a difference may be negative";
}

TEST(Refusals, OfAListSuggestNoCommaAtItsEnd)
{
    EXPECT_EQ(
        readQuantityList(Id::PlasticYieldStress, "250,300,").failure().text(),
        "The comma in \"250,300,\" may be a decimal sign or separate two numbers; write \"250.300\" or \"250, 300\".");
}

TEST(Refusals, OfListsNameTheNumber)
{
    struct ListRefusal
    {
        const char* text;
        FaultCode code;
        const char* suggestion;
    };
    const ListRefusal lists[] = {
        {"", FaultCode::Empty, ""},
        {"250,,300", FaultCode::Empty, ""},
        {",250", FaultCode::Empty, ""},
        {"250 MPa, 300", FaultCode::UnitMissing, ""},
        {"250, 300 MPa, 400", FaultCode::UnitMissing, ""},
        {"250, 300 MPa, 400 MPa", FaultCode::UnitMissing, ""},
        {"250 300 MPa", FaultCode::ThousandsSeparator, "250, 300 MPa"},
        {"450 608 679", FaultCode::ThousandsSeparator, "450, 608, 679"},
        {"5 5 MPa", FaultCode::SeveralNumbers, "5, 5 MPa"},
        {"250; 300,5 MPa", FaultCode::DecimalComma, "250; 300.5 MPa"},
        {"0, 0,05, 0,1", FaultCode::DecimalComma, "0, 0.05, 0.1"},
        {"1 000, 2 000, 3 000 MPa", FaultCode::ThousandsSeparator, "1000, 2000, 3000 MPa"},
        {"20 000 MPa", FaultCode::ThousandsSeparator, "20000 MPa"},
        {"1 000 2 000 MPa", FaultCode::SeveralNumbers, ""},
        {"1,000, 2,000 MPa", FaultCode::ThousandsSeparator, "1000, 2000 MPa"},
        {"1,000 2,000 MPa", FaultCode::ThousandsSeparator, "1000, 2000 MPa"},
        {"250, 300, MPa", FaultCode::NumberMissing, "250, 300 MPa"},
        {"0,1", FaultCode::DecimalComma, ""},
        {"250,5 MPa", FaultCode::DecimalComma, ""},
        {"2,5e2, 3e2", FaultCode::DecimalComma, "2.5e2, 3e2"},
        {"1\n2,5\n3", FaultCode::DecimalComma, "1\n2.5\n3"},
        {"250, 300 GPas", FaultCode::UnknownUnit, "250, 300 GPa"},
        {"250, 300 kg", FaultCode::WrongDimension, ""},
        {"250, x", FaultCode::NumberMissing, ""},
        {"250, nan", FaultCode::NotFinite, ""},
        {"250 MPa 300 MPa", FaultCode::SeveralNumbers, "250 MPa, 300 MPa"},
        {"250 MPa, 300 MPa 350 MPa", FaultCode::SeveralNumbers, "250 MPa, 300 MPa, 350 MPa"},
    };
    for (const ListRefusal& one : lists) {
        const auto reading = readQuantityList(Id::PlasticYieldStress, one.text);
        ASSERT_FALSE(reading) << one.text << " was read as " << reading->understood;
        EXPECT_EQ(reading.failure().code, one.code) << one.text << ": " << reading.failure().text();
        EXPECT_EQ(reading.failure().suggestion, one.suggestion) << one.text;
    }
}

} // namespace
