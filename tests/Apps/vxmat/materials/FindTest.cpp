#include "VxmatTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::vxmat;
using vxtest::vxmatJson;

std::vector<std::string> namesIn(const Json::Value& document)
{
    std::vector<std::string> names;
    for (const Json::Value& material : document["materials"])
        names.push_back(material["name"].asString());
    return names;
}

TEST(Find, PrintsTheMaterialsOfTheLibraryWithTheValuesThatTheExpressionNames)
{
    const Outcome run = vxmat({"find", "library", "E > 50 GPa and rho < 5 g/cm3"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "Name                      Young's modulus [Pa] (SI)  Density [kg/m^3] (SI)\n"
                       "Aluminum Alloy            7.1e+10                    2700\n"
                       "Titanium Alloy            9.7e+10                    4720\n"
                       "Nonlinear Aluminum Alloy  7.1e+10                    2770\n"
                       "Nonlinear Titanium Alloy  9.6e+10                    4720\n");
}

TEST(Find, ReadsPlainNumbersAndPrintsNumbersInTheUnitsOfTheCommandLine)
{
    const Outcome run = vxmat({"find", "library", "rho = 2.7e-9", "--units", "mm-t-s"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "Name            Density [t/mm^3] (mm-t-s)\n"
                       "Aluminum Alloy  2.7e-09\n");
}

TEST(Find, PrintsNumbersInTheUnitSystemOfTheProject)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "Structural Steel=Frame", "-o", project}).status, 0);
    ASSERT_EQ(vxmat({"set", project, "--project-units", "mm-t-s"}).status, 0);
    const Outcome run = vxmat({"find", project, "E = 2e11"});
    EXPECT_EQ(run.status, 0) << "a plain number is in SI";
    EXPECT_EQ(run.out, "Number  Name   Young's modulus [MPa] (mm-t-s)\n"
                       "1       Frame  2e+05\n");
    const Json::Value json = vxmatJson({"find", project, "E = 2e11", "--json"});
    EXPECT_EQ(json["units"].asString(), "mm-t-s");
    EXPECT_EQ(vxmat({"find", project, "E = 2e11", "--units", "SI"}).out, "Number  Name   Young's modulus [Pa] (SI)\n"
                                                                         "1       Frame  2e+11\n");
}

TEST(Find, FindsByDerivedValuesWordsAndLists)
{
    // 200 GPa / (2 * 1.3) = 76.923 GPa
    const Json::Value shear = vxmatJson({"find", "library", "G > 76.9 GPa and structural", "--json"});
    EXPECT_THAT(namesIn(shear), ElementsAre("Structural Steel", "Nonlinear Structural Steel"));
    EXPECT_NEAR(shear["materials"][0]["values"][0]["value"].asDouble(), 7.6923076923e10, 1.0);
    EXPECT_EQ(shear["materials"][0]["values"][0]["derived"].asString(), "shear-modulus");

    const Json::Value words = vxmatJson({"find", "library", "Yield type = drucker-prager", "--json"});
    EXPECT_THAT(namesIn(words), ElementsAre("Plastic Example 2"));
    EXPECT_EQ(words["materials"][0]["values"][0]["value"].asString(), "DRUCKER-PRAGER");

    const Outcome list = vxmat({"find", "library", "Plastic strain > 0.45"});
    EXPECT_THAT(list.out, HasSubstr("Plastic Example 1  0, 0.05, 0.1, 0.2, 0.3, 0.4, 0.5\n"));
}

TEST(Find, SearchesProjectsAndDocumentsAndNamesTheNumbers)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    const std::string document = folder.path("m.json");
    ASSERT_EQ(vxmat({"new", "Structural Steel=Frame", "Air=Gap", "-o", project}).status, 0);
    ASSERT_EQ(vxmat({"export", project, "-o", document}).status, 0);
    for (const std::string& file : {project, document}) {
        const Outcome run = vxmat({"find", file, "rho < 2"});
        EXPECT_EQ(run.status, 0) << file;
        EXPECT_EQ(run.out, "Number  Name  Density [kg/m^3] (SI)\n"
                           "2       Gap   1.225\n");
    }
    const Json::Value json = vxmatJson({"find", project, "frame", "--json"});
    EXPECT_EQ(json["file"].asString(), project);
    EXPECT_EQ(json["units"].asString(), "SI");
    EXPECT_EQ(json["materials"][0]["number"].asUInt(), 1U);
    EXPECT_EQ(json["materials"][0]["values"].size(), 0U);
}

TEST(Find, SuggestsTheConditionThatWordsForLabelsLookLike)
{
    const Outcome run = vxmat({"find", "library", "E 200 GPa"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "vxmat: note: Searched in labels; did you mean \"E = 200 GPa\"?\n");
    const Outcome found = vxmat({"find", "library", "!steel"});
    EXPECT_EQ(found.status, 1);
    EXPECT_EQ(found.err, "vxmat: note: Searched in labels; did you mean \"not steel\"?\n");
}

TEST(Find, HasTheStatusOfFindingsIfNothingIsFound)
{
    const Outcome run = vxmat({"find", "library", "unobtainium"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "");
    const Outcome json = vxmat({"find", "library", "unobtainium", "--json"});
    EXPECT_EQ(json.status, 1);
    EXPECT_THAT(json.out, HasSubstr("\"materials\" : []"));
}

TEST(Find, RefusesAnExpressionWithThePlaceAndTheNearestSpelling)
{
    const Outcome run = vxmat({"find", "library", "steel and densty > 5"});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "vxmat: the expression, character 11: No quantity is called \"densty\". "
                       "Did you mean \"Density\"?\n");
    const Outcome comma = vxmat({"find", "library", "E > 2,1 GPa"});
    EXPECT_EQ(comma.status, 2);
    EXPECT_THAT(comma.err, HasSubstr("character 5: \"2,1 GPa\" has a decimal comma"));
    EXPECT_THAT(vxmat({"find", "library", "E > 1 furlongs"}).err, HasSubstr("character 5: "));
}

TEST(Find, SuggestsTheEnglishNameOfAQuantityInAnotherLanguage)
{
    const Outcome german = vxmat({"find", "library", "Dichte > 5"});
    EXPECT_EQ(german.status, 2);
    EXPECT_THAT(german.err, testing::HasSubstr("No quantity is called \"Dichte\". Did you mean \"Density\"?"));
    EXPECT_THAT(vxmat({"find", "library", "schubmodul > 5 GPa"}).err,
                testing::HasSubstr("Did you mean \"Shear modulus\"?"));
}

TEST(Find, RefusesUnknownUnitSystemsAndFilesThatCannotBeRead)
{
    EXPECT_THAT(vxmat({"find", "library", "E > 1", "--units", "cgs?"}).err, HasSubstr("--units: "));
    const Outcome missing = vxmat({"find", "/nowhere/p.vxmat", "E > 1"});
    EXPECT_EQ(missing.status, 2);
    EXPECT_THAT(missing.err, HasSubstr("/nowhere/p.vxmat"));
}

TEST(Find, ShowsTheCreepFactorInTheUnitOfEachMaterial)
{
    // 1e-10 Pa^-5 s^-1 is 1e-10 * (1e6)^5 = 1e20 MPa^-5 s^-1.
    const Outcome run = vxmat({"find", "library", "has CreepA", "--units", "mm-t-s"});
    EXPECT_EQ(run.out, "Name           Creep Modulus A\n"
                       "Creep Example  1e+20 1/(MPa^5 s)\n");
    EXPECT_EQ(vxmat({"find", "library", "CreepA > 1e-11", "--units", "mm-t-s"}).status, 2);
    EXPECT_THAT(vxmat({"find", "library", "CreepA > 1e-11"}).out, Not(HasSubstr("Steel")));
}

} // namespace
