#include "DataFile.h"
#include "VxmatTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace {

using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;
using vxtest::Folder;
using vxtest::linesOf;
using vxtest::Outcome;
using vxtest::vxmat;
using vxtest::vxmatJson;

TEST(Library, ListsTheMaterialsWithGroupAndCount)
{
    const Outcome run = vxmat({"library"});
    EXPECT_EQ(run.status, 0);
    const auto lines = linesOf(run.out);
    ASSERT_EQ(lines.size(), 27U);
    EXPECT_EQ(lines[1], "Structural Steel             General Materials          9");
    for (const std::string& line : lines)
        EXPECT_NE(line.back(), ' ') << line;
}

TEST(Library, ListsTheMaterialsAsJsonWithTheirNumbers)
{
    const Json::Value materials = vxmatJson({"library", "--json"})["materials"];
    ASSERT_EQ(materials.size(), 26U);
    std::set<std::string> expected;
    for (const auto& row : vxtest::readTable("library.tsv"))
        expected.insert(row[1] + row[2] + row[3]);
    for (const Json::Value& material : materials)
        EXPECT_EQ(
            expected.count(material["type"].asString() + material["name"].asString() + material["group"].asString()),
            1U)
            << material["name"].asString();
    EXPECT_EQ(materials[0]["name"], "Structural Steel");
    EXPECT_EQ(materials[0]["group_name"], "General Materials");
    EXPECT_EQ(materials[0]["quantities"], 9);
}

TEST(Catalogue, ListsTheQuantitiesById)
{
    const Outcome run = vxmat({"catalogue"});
    EXPECT_EQ(run.status, 0);
    const auto lines = linesOf(run.out);
    ASSERT_EQ(lines.size(), 37U);
    EXPECT_THAT(lines[1], ContainsRegex("^4 +Density +rho +kg/m3 +Basic +1 +Mass density$"));
    EXPECT_THAT(run.out, HasSubstr("Mises, Mohr-Coulomb, Drucker-Prager"));
}

TEST(Catalogue, ListsEveryColumnAsJson)
{
    const Json::Value quantities = vxmatJson({"catalogue", "--json"})["quantities"];
    const auto rows = vxtest::readTable("catalogue.tsv");
    ASSERT_EQ(quantities.size(), rows.size());
    for (Json::ArrayIndex i = 0; i < quantities.size(); ++i) {
        const Json::Value& quantity = quantities[i];
        EXPECT_EQ(quantity["id"].asString(), rows[i][1]);
        EXPECT_EQ(quantity["name"].asString(), rows[i][2]);
        EXPECT_EQ(quantity["key"].asString(), rows[i][3]);
        EXPECT_EQ(quantity["unit"].asString(), rows[i][4]);
        EXPECT_EQ(quantity["description"].asString(), rows[i][5]);
        EXPECT_NE(quantity["category"].asString(), "");
        EXPECT_TRUE(quantity["words"].isArray());
    }
    EXPECT_EQ(quantities[1]["default"], 1.0);
    EXPECT_EQ(quantities[13]["name"], "Yield type");
    EXPECT_EQ(quantities[13]["kind"], "word");
    EXPECT_EQ(quantities[13]["default"], "Mises");
    EXPECT_EQ(quantities[13]["words"].size(), 3U);
    EXPECT_EQ(quantities[18]["kind"], "list");
    EXPECT_EQ(quantities[18]["default"][0], 1.0);
    EXPECT_EQ(quantities[11]["kind"], "switch");
    EXPECT_EQ(quantities[0]["kind"], "number");
}

TEST(Show, PrintsATableOfOneMaterial)
{
    const Outcome run = vxmat({"show", "Plastic Example 1"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, AllOf(HasSubstr("Plastic Example 1\n\nName "), HasSubstr("Yield type            Mises "),
                               HasSubstr("Yield stress          450, 608, 679, 732, 752, 766, 780 "),
                               ContainsRegex("\nDensity +7850 +kg/m3  Mass density\n")));
}

TEST(Show, IgnoresTheCaseOfTheName)
{
    EXPECT_EQ(vxmat({"show", "STRUCTURAL steel"}).out, vxmat({"show", "Structural Steel"}).out);
}

TEST(Show, SuggestsTheNearestNames)
{
    const Outcome run = vxmat({"show", "Watr"});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "vxmat: no material is called \"Watr\"; did you mean \"Water\"?\n");
    EXPECT_THAT(vxmat({"show", "steel"}).err, HasSubstr("\"Stainless Steel\", \"Structural Steel\" or"));
    EXPECT_THAT(vxmat({"show", "stel"}).err, HasSubstr("\"Stainless Steel\""));
    EXPECT_THAT(vxmat({"show", "aluminium"}).err, HasSubstr("did you mean \"Aluminum Alloy\""));
    EXPECT_THAT(vxmat({"show", "elasto"}).err, HasSubstr("\"Elastomer 1 (Neo-Hookean)\""));
    for (const char* const name : {"", "qqqqqq"})
        EXPECT_THAT(vxmat({"show", name}).err, HasSubstr("\"vxmat library\" lists them"));
    EXPECT_EQ(vxmat({"show", std::string(100000, 'x')}).status, 2);
}

TEST(Show, PrintsNumbersWordsAndListsAsJson)
{
    const Json::Value material = vxmatJson({"show", "plastic example 1", "--json"});
    EXPECT_EQ(material["name"], "Plastic Example 1");
    EXPECT_EQ(material["type"], 32);
    const Json::Value& properties = material["properties"];
    ASSERT_EQ(properties.size(), 9U);
    EXPECT_EQ(properties[0]["name"], "Density");
    EXPECT_EQ(properties[0]["value"], 7850.0);
    EXPECT_EQ(properties[0]["unit"], "kg/m3");
    EXPECT_EQ(properties[5]["value"], "Mises");
    EXPECT_EQ(properties[7]["value"].size(), 7U);
    EXPECT_EQ(properties[7]["value"][6], 780.0);
    EXPECT_EQ(properties[1]["value"].asDouble(), 1.7976931348623157e308);
}

// The text of this switch is read as a number, unlike that of other switches.
TEST(Show, GivesEachQuantityTheKindThatTheCatalogueGivesIt)
{
    const Json::Value creep = vxmatJson({"show", "Creep Example", "--json"});
    std::string kind;
    for (const Json::Value& property : creep["properties"])
        if (property["name"] == "Creep")
            kind = property["kind"].asString();
    EXPECT_EQ(kind, "switch");
}

TEST(Show, NotesAPropertyThatIsHeldAsAnotherQuantity)
{
    const Outcome run = vxmat({"show", "acoustic material 2"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err,
              "vxmat: note: Acoustic Material 2 holds its \"Speed of sound\" as a property named \"Density\"\n");
}

TEST(Show, PrintsTheMaterialsOfAProject)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "Plastic Example 1=Tough", "Air", "-o", project}).status, 0);
    const Outcome run = vxmat({"show", project});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, testing::StartsWith("1 Tough\n\nName "));
    EXPECT_THAT(run.out, AllOf(HasSubstr("Yield stress          450, 608, 679, 732, 752, 766, 780 "),
                               ContainsRegex("\n\n2 Air\n\nName +Value +Unit +Description\nDensity +1.225 +kg/m3")));
    const Json::Value document = vxmatJson({"show", project, "--json"});
    EXPECT_EQ(document["file"], project);
    EXPECT_EQ(document["materials"][0]["number"], 1);
    EXPECT_EQ(document["materials"][0]["name"], "Tough");
    EXPECT_EQ(document["materials"][0]["suppressed"], false);
    EXPECT_EQ(document["materials"][0]["properties"][5]["value"], "Mises");
    EXPECT_EQ(document["materials"][1]["properties"][0]["held_under"], 4);
}

TEST(Show, CountsTheMeasurementsOfAMaterial)
{
    const std::string project = vxtest::dataPath("projects/08-settings-of-objects.vxmat");
    EXPECT_THAT(vxmat({"show", project}).out, testing::EndsWith("\n\nMeasurements: 1 test (bar 3)\n"));
    const Json::Value measured = vxmatJson({"show", project, "--json"})["materials"][0]["measurements"];
    EXPECT_EQ(measured["tests"][0]["name"], "bar 3");
    EXPECT_EQ(measured["tests"][0]["mode"], "tensile");
    EXPECT_EQ(measured["tests"][0]["points"], 2);
    EXPECT_EQ(measured["fits"], Json::arrayValue);
}

TEST(Show, NotesMeasurementsThatAreUnreadable)
{
    std::string text = vxtest::readText(vxtest::dataPath("projects/08-settings-of-objects.vxmat"));
    const std::size_t at = text.find("tensile");
    ASSERT_NE(at, std::string::npos);
    const Outcome run = vxmat({"show", "-"}, text.replace(at, 7, "tearing"));
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, testing::EndsWith("\nMeasurements: unreadable\n"));
    EXPECT_EQ(run.err,
              "vxmat: note: -: 1 Steel: the measurements are unreadable: \"tests[0].mode\" must be the name of "
              "a mode\n");
}

TEST(Show, PrintsTheMaterialsOfADocument)
{
    const Outcome run = vxmat({"show", "-"}, R"({"proj_type": 2, "material": [{"mat_id": 7, "mat_name": "a\nb", "Props":
        [{"prop_type": 201, "prop_key": "alpha", "prop_name": "Thermal Expansion", "prop_value": 0.5}]}]})");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "7 a\\u000ab\n\nName               Value  Unit  Description\n"
                       "Thermal Expansion  0.5    -\n");
}

} // namespace
