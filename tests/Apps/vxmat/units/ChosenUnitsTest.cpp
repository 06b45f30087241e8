#include "DataFile.h"
#include "VxmatTesting.h"

#include "vxMaterial/json/JsonText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// Numbers in the unit system of --units. The expected numbers follow from the definitions of the units.
namespace {

using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::StartsWith;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::vxmat;
using vxtest::vxmatJson;

/// Returns the property with a name; null if there is none.
Json::Value propertyOf(const Json::Value& material, const std::string& name)
{
    for (const Json::Value& property : material["properties"]) {
        if (property["name"] == name)
            return property;
    }
    return {};
}

TEST(ChosenUnits, OfAMaterialAreThoseOfTheSystem)
{
    const Outcome run = vxmat({"show", "structural steel", "--units", "MM-T-S"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out,
                AllOf(StartsWith("Structural Steel (mm-t-s)\n\nName "), ContainsRegex("\nDensity +7.85e-09 +t/mm\\^3 "),
                      ContainsRegex("\nYoung's modulus +2e\\+05 +MPa"),
                      ContainsRegex("\nSpecific heat +4.9e\\+08 +mJ/\\(t K\\)"),
                      ContainsRegex("\nPoisson's ratio +0.3 +- "),
                      ContainsRegex("\nElectrical conductivity +4.032 +kS/mm")));
    const Json::Value json = vxmatJson({"show", "Plastic Example 1", "--units", "mm-kg-ms", "--json"});
    EXPECT_EQ(json["units"], "mm-kg-ms");
    const Json::Value stresses = propertyOf(json, "Yield stress");
    EXPECT_EQ(stresses["value"][0], 450e-9);
    EXPECT_EQ(stresses["unit"], "GPa");
    EXPECT_EQ(propertyOf(json, "Yield type")["value"], "Mises");
    EXPECT_EQ(propertyOf(json, "Plastic strain")["unit"], "-");
}

TEST(ChosenUnits, OfTheCreepFactorFollowFromTheExponents)
{
    const Json::Value creep = vxmatJson({"show", "creep example", "--units", "mm-t-s", "--json"});
    const Json::Value factor = propertyOf(creep, "Creep Modulus A"); // N = 5, M = 0
    EXPECT_EQ(factor["value"], 1e20);                                // 1e-10 Pa^-5
    EXPECT_EQ(factor["unit"], "1/(MPa^5 s)");
}

TEST(ChosenUnits, OfThePropertyOfAnotherQuantityAreThoseOfItsSlot)
{
    const Outcome run = vxmat({"show", "acoustic material 2", "--units", "mm-t-s", "--json"}); // has a note
    const Json::Value material = vxjson::readJsonText(run.out).document;
    int speeds = 0;
    for (const Json::Value& property : material["properties"]) {
        if (property["held_under"] != 401)
            continue;
        ++speeds;
        EXPECT_EQ(property["unit"], "mm/s");
    }
    EXPECT_EQ(speeds, 1);
}

TEST(ChosenUnits, OfUnknownQuantitiesStayUnchangedWithANote)
{
    const Outcome run = vxmat({"show", "-", "--units", "mm-t-s"},
                              R"({"proj_type": 2, "material": [{"mat_id": 7, "mat_name": "m", "Props":
        [{"prop_type": 201, "prop_key": "alpha", "prop_name": "Thermal Expansion", "prop_value": 0.5},
         {"prop_type": 46, "prop_key": "CreepA", "prop_name": "Creep Modulus A", "prop_value": 2}]}]})");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "vxmat: note: -: 7 m: unchanged, because the unit is not known: \"Creep Modulus A\", "
                       "\"Thermal Expansion\"\n");
    EXPECT_THAT(run.out, AllOf(ContainsRegex("\nThermal Expansion +0.5 "), ContainsRegex("\nCreep Modulus A +2 ")));
}

TEST(ChosenUnits, OfTheCatalogueAreThoseOfTheSystem)
{
    const Outcome run = vxmat({"catalogue", "--units", "cm-g-s"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out,
                AllOf(ContainsRegex("Unit \\(cm-g-s\\)"), ContainsRegex("\n4 +Density +rho +g/cm\\^3 +Basic +0.001 "),
                      ContainsRegex("\n127 +Limiting Network Stretch +HyperLNS +- +Hyperelastic +1\n")));
    EXPECT_EQ(run.err,
              "vxmat: note: the unit of Creep Modulus A depends on Creep Modulus N and M; it is listed for their "
              "defaults\n");
}

TEST(ChosenUnits, OfTheLibraryShowDensityAndModulus)
{
    const Outcome run = vxmat({"library", "--units", "mm-t-s"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, AllOf(HasSubstr("Density [t/mm^3] (mm-t-s)"),
                               ContainsRegex("\nStructural Steel +General Materials +9 +7.85e-09 +2e\\+05\n")));
    const Json::Value json = vxmatJson({"library", "--units", "mm-t-s", "--json"});
    EXPECT_EQ(json["units"], "mm-t-s");
    EXPECT_EQ(json["materials"][0]["density"], 7.85e-9);
    EXPECT_EQ(json["materials"][1]["name"], "Air");
    EXPECT_TRUE(json["materials"][1]["youngs_modulus"].isNull());
}

TEST(ChosenUnits, OfCardsAreNamedInANote)
{
    const Outcome run = vxmat({"cards", "structural steel", "--units", "mm-t-s"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "vxmat: note: the cards are in mm-t-s; the format has no place for the unit system\n");
    EXPECT_THAT(run.out, AllOf(HasSubstr(" 200000.000000, 0.300000\n"), HasSubstr(" 7.85e-09, 0\n")));
}

TEST(ChosenUnits, OfADocumentAreNamedInANote)
{
    const Folder folder;
    const std::string file = folder.path("m.json");
    const Outcome run = vxmat({"export", "structural steel", "--units", "in-lbf-s", "-o", file});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "vxmat: note: " + file + " is in in-lbf-s; the format has no place for the unit system\n");
    const Json::Value material = vxmatJson({"show", file, "--json"})["materials"][0];
    // 7850 kg/m3 over 4.4482216152605 N s2/0.0254 m in 0.0254^3 m3
    EXPECT_DOUBLE_EQ(propertyOf(material, "Density")["value"].asDouble(), 0.000734544492961071);
    EXPECT_EQ(propertyOf(material, "Poisson's ratio")["value"], 0.3);
}

TEST(ChosenUnits, OfANumberThatTheyPutOutOfRangeAreRefused)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "--empty", "m", "-o", project}).status, 0);
    ASSERT_EQ(vxmat({"set", project, "m", "speHeat", "1e305"}).status, 0);
    const Outcome run = vxmat({"export", project, "--units", "mm-t-s", "-o", folder.path("m.json")});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("exchange documents carry only finite numbers"));
}

TEST(ChosenUnits, OfDifferencesFollowTheNumbers)
{
    const Folder folder;
    const std::string one = folder.path("one.vxmat");
    const std::string other = folder.path("other.vxmat");
    for (const std::string& file : {one, other})
        ASSERT_EQ(vxmat({"new", "Structural Steel=s", "-o", file}).status, 0);
    ASSERT_EQ(vxmat({"set", other, "s", "E", "210 GPa"}).status, 0);
    const Outcome run = vxmat({"diff", one, other, "--units", "mm-t-s"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "s: Young's modulus (5): value: 2e+05 MPa -> 210000 MPa\n");
    EXPECT_EQ(run.err, "vxmat: note: numbers are in mm-t-s\n");
    EXPECT_EQ(vxmat({"diff", one, one, "--units", "mm-t-s"}).status, 0);
}

TEST(ChosenUnits, OfAnImportedDocumentAreConvertedToThoseOfTheCatalogue)
{
    const Folder folder;
    const std::string document = folder.path("m.json");
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"export", "Structural Steel=3", "--units", "mm-t-s", "-o", document}).status, 0);
    const Outcome run = vxmat({"import", document, "--units", "mm-t-s", "-o", project});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    const std::string same = folder.path("same.vxmat");
    ASSERT_EQ(vxmat({"import", "-", "-o", same}, vxmat({"export", "Structural Steel=3", "-o", "-"}).out).status, 0);
    EXPECT_EQ(vxmat({"diff", project, same}).out, "");
}

TEST(ChosenUnits, OfAnImportedDocumentAreNamedIfTheNumbersLookLikeOthers)
{
    const Folder folder;
    const std::string document = folder.path("m.json");
    const std::pair<std::vector<std::string>, std::vector<std::string>> cases[] = {
        {{"--units", "mm-t-s"}, {}},
        {{}, {"--units", "mm-t-s"}},
        {{"--units", "in-lbf-s"}, {"--units", "cm-g-s"}},
    };
    const char* const notes[] = {"look like mm-t-s, not SI", "look like SI, not mm-t-s",
                                 "look like in-lbf-s, not cm-g-s"};
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        std::vector<std::string> write{"export", "Structural Steel=3", "Water", "-o", document};
        std::vector<std::string> read{"import", document, "--force", "-o", folder.path("p.vxmat")};
        write.insert(write.end(), cases[i].first.begin(), cases[i].first.end());
        read.insert(read.end(), cases[i].second.begin(), cases[i].second.end());
        ASSERT_EQ(vxmat(write).status, 0);
        const Outcome run = vxmat(read);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.err, "vxmat: note: " + document + ": the numbers " + notes[i] +
                               "; --units gives the unit system of its numbers\n");
    }
}

TEST(ChosenUnits, OfAnImportedDocumentAreNamedForEachMaterialThatDiffersFromTheOthers)
{
    const Folder folder;
    const std::string document = folder.path("m.json");
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"export", "Structural Steel=3", "--units", "mm-t-s", "-o", document}).status, 0);
    ASSERT_EQ(vxmat({"import", document, "-o", project}).status, 0);
    ASSERT_EQ(vxmat({"export", project, "Water", "Structural Steel=5", "-o", document}).status, 0);
    const Outcome run = vxmat({"import", document, "--force", "-o", project});
    EXPECT_EQ(run.err,
              "vxmat: note: " + document +
                  ": 3 Structural Steel: the numbers look like mm-t-s, not SI; --units gives the unit system of "
                  "its numbers\n");
}

TEST(ChosenUnits, AreRefusedIfTheyAreNoSystem)
{
    const Outcome run = vxmat({"show", "Air", "--units", "mm"});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, AllOf(StartsWith("vxmat: --units: "), HasSubstr("\"vxmat units\" lists the systems.")));
}

/// A project of structural steel that records its unit system.
class UnitsOfAProject : public testing::Test
{
protected:
    UnitsOfAProject()
    {
        EXPECT_EQ(vxmat({"new", "Structural Steel=Frame", "-o", file}).status, 0);
        EXPECT_EQ(vxmat({"set", file, "--project-units", "mm-t-s"}).status, 0);
    }
    Folder folder;
    std::string file = folder.path("p.vxmat");
};

TEST_F(UnitsOfAProject, AreThoseInWhichItIsShown)
{
    const Outcome run = vxmat({"show", file});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, AllOf(HasSubstr("1 Frame (mm-t-s)\n"), ContainsRegex("\nDensity +7.85e-09 +t/mm\\^3 "),
                               ContainsRegex("\nYoung's modulus +2e\\+05 +MPa\n")));
    const Json::Value json = vxmatJson({"show", file, "--json"});
    EXPECT_EQ(json["units"], "mm-t-s");
    EXPECT_EQ(propertyOf(json["materials"][0], "Young's modulus")["value"], 200000.0);
}

TEST_F(UnitsOfAProject, GiveWayToUnitsOfTheCommandLine)
{
    const Outcome run = vxmat({"show", file, "--units", "SI"});
    EXPECT_THAT(run.out, AllOf(HasSubstr("1 Frame (SI)\n"), ContainsRegex("\nYoung's modulus +2e\\+11 +Pa\n")));
}

TEST_F(UnitsOfAProject, DoNotChangeDocumentsAndCards)
{
    const std::string document = folder.path("m.json");
    const Outcome written = vxmat({"export", file, "-o", document});
    EXPECT_EQ(written.err, "");
    EXPECT_EQ(propertyOf(vxmatJson({"show", document, "--json"})["materials"][0], "Young's modulus")["value"], 2e11);
    EXPECT_EQ(vxmat({"cards", file}).out, vxmat({"cards", file, "--units", "SI"}).out);
}

TEST_F(UnitsOfAProject, AreUsedForDifferencesIfBothProjectsRecordThem)
{
    const std::string other = folder.path("q.vxmat");
    ASSERT_EQ(vxmat({"new", "Structural Steel=Frame", "-o", other}).status, 0);
    ASSERT_EQ(vxmat({"set", other, "Frame", "E", "210 GPa"}).status, 0);
    EXPECT_THAT(vxmat({"diff", file, other}).out, HasSubstr("value: 2e+11 -> 2.1e+11\n"));
    ASSERT_EQ(vxmat({"set", other, "--project-units", "mm-t-s"}).status, 0);
    const Outcome run = vxmat({"diff", file, other});
    EXPECT_THAT(run.out, HasSubstr("2e+05 MPa -> 210000 MPa\n"));
    EXPECT_EQ(run.err, "vxmat: note: numbers are in mm-t-s\n");
}

TEST(ChosenUnits, AreSiIfThoseOfTheProjectCannotBeRead)
{
    const std::string file = vxtest::dataPath("projects/15-unreadable-unit-system.vxmat");
    const Outcome run = vxmat({"show", file});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.err, AllOf(HasSubstr(file + ": the unit system of the project cannot be read: "),
                               HasSubstr(" SI is used.\n")));
    EXPECT_THAT(run.out, AllOf(HasSubstr("1 Steel\n"), ContainsRegex("\nDensity +7850 +kg/m3\n")));
}

} // namespace
