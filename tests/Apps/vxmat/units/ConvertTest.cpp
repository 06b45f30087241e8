#include "VxmatTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using vxtest::Outcome;
using vxtest::shell;
using vxtest::vxmat;
using vxtest::vxmatJson;

TEST(Convert, PrintsTheNumberAlone)
{
    const Outcome run = vxmat({"convert", "30e6 psi", "Pa"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "206842718795.05084\n"); // 30e6 * 0.45359237 * 9.80665 / 0.0254^2
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(vxmat({"convert", "7.85 g/cm³", "kg/m3"}).out, "7850\n");
    EXPECT_EQ(vxmat({"convert", "-5 MPa", "Pa"}).out, "-5e+06\n");
    EXPECT_EQ(vxmat({"convert", "12", "ksi"}).out, "12\n") << "a number without a unit is in the unit of the result";
}

TEST(Convert, PrintsJson)
{
    const Json::Value json = vxmatJson({"convert", "210 GPa", "MPa", "--json"});
    EXPECT_EQ(json["value"], 210000.0);
    EXPECT_EQ(json["unit"], "MPa");
    EXPECT_EQ(json["understood"], "210 GPa = 210000 MPa");
}

TEST(Convert, FailsWithTheReasonAndTheNearestSpelling)
{
    const std::pair<const char*, const char*> cases[] = {
        {"2,1 GPa", "has a decimal comma; the decimal sign is a point. Did you mean \"2.1 GPa\"?"},
        {"5 kg", "\"5 kg\" measures mass; a unit such as Pa is needed."},
        {"210 gpa", "The unit \"gpa\" is not known. Did you mean \"210 GPa\"?"},
        {"5 5 MPa", "has more than one number"},
        {"GPa", "does not begin with a number. Did you mean \"1 GPa\"?"},
        {"", "Nothing was typed"},
    };
    for (const auto& [text, reason] : cases) {
        const Outcome run = vxmat({"convert", text, "Pa"});
        EXPECT_EQ(run.status, 1) << text;
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, HasSubstr(reason));
    }
    const Outcome unknown = vxmat({"convert", "5 Pa", "xyzzy"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_EQ(unknown.err, "vxmat: The unit \"xyzzy\" is not known.\n");
}

TEST(Convert, DistinguishesTemperaturesAndDifferences)
{
    EXPECT_EQ(vxmat({"convert", "20 degC", "K"}).out, "293.15\n");
    EXPECT_EQ(vxmat({"convert", "20 degC", "K", "--difference"}).out, "20\n");
    EXPECT_EQ(vxmat({"convert", "212 °F", "degC"}).out, "100\n");
    EXPECT_EQ(vxmat({"convert", "-300 degC", "K"}).status, 1);
}

TEST(Convert, SaysWhichCalorieIsMeant)
{
    const Outcome run = vxmat({"convert", "1 cal", "J"});
    EXPECT_EQ(run.out, "4.1868\n");
    EXPECT_EQ(run.err, "vxmat: note: cal is the International Table calorie, 4.1868 J; cal_th is 4.184 J.\n");
}

TEST(Convert, WritesANoteOnce)
{
    EXPECT_EQ(vxmat({"convert", "1", "percentIACS"}).err, "vxmat: note: 100 %IACS is 58 MS/m (IEC 60028).\n");
}

TEST(Convert, WorksWithoutTheDatabaseOfUnits)
{
    const std::string without = "UDUNITS2_XML_PATH=/nowhere/udunits2.xml \"$VXMAT\" convert ";
    EXPECT_EQ(shell(without + "'30 ksi' MPa").out, shell("\"$VXMAT\" convert '30 ksi' MPa").out);
    const Outcome unknown = shell(without + "'1 furlong' m");
    EXPECT_EQ(unknown.status, 1);
    EXPECT_THAT(unknown.err, HasSubstr("/nowhere/udunits2.xml cannot be opened"));
}

} // namespace
