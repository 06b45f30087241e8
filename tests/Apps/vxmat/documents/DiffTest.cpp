#include "DataFile.h"
#include "VxmatTesting.h"

#include "projectfile/ProjectFile.h"
#include "vxMaterial/json/JsonText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace {

using testing::HasSubstr;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::vxmat;

/// Writes a file of materials with vxmat and returns its path.
std::string make(const Folder& folder, const std::string& command, const std::vector<std::string>& names,
                 const std::string& file)
{
    std::vector<std::string> arguments{command};
    arguments.insert(arguments.end(), names.begin(), names.end());
    arguments.insert(arguments.end(), {"-o", folder.path(file)});
    EXPECT_EQ(vxmat(arguments).status, 0);
    return folder.path(file);
}

/// Writes a copy of a file with the first `what` replaced, and returns its path.
std::string changed(const Folder& folder, const std::string& file, const std::string& what, const std::string& into)
{
    std::string text = vxtest::readText(file);
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return folder.file("changed", at == std::string::npos ? text : text.replace(at, what.size(), into));
}

TEST(Diff, PrintsNothingForEqualFiles)
{
    const Folder folder;
    const std::string project = make(folder, "new", {"Plastic Example 1", "Acoustic Material 1"}, "a.vxmat");
    const std::string same = make(folder, "new", {"Plastic Example 1", "Acoustic Material 1"}, "b.vxmat");
    const std::string document = make(folder, "export", {"Air", "Water"}, "a.json");
    const std::string sameDocument = make(folder, "export", {"Air", "Water"}, "b.json");
    for (const auto& [one, other] : {std::pair(project, same), std::pair(document, sameDocument)}) {
        const Outcome run = vxmat({"diff", one, other});
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "");
    }
}

TEST(Diff, PrintsADifferenceOfTheUnitSystemsOfTwoProjects)
{
    const Folder folder;
    const std::string one = make(folder, "new", {"Air"}, "a.vxmat");
    const std::string other = make(folder, "new", {"Air"}, "b.vxmat");
    ASSERT_EQ(vxmat({"set", one, "--project-units", "mm-t-s"}).status, 0);
    const Outcome run = vxmat({"diff", one, other});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "unit system: \"mm-t-s\" -> none\n");
    const Outcome json = vxmat({"diff", other, one, "--json"});
    const Json::Value difference = vxjson::readJsonText(json.out).document["differences"][0];
    EXPECT_TRUE(difference["material"].isNull());
    EXPECT_TRUE(difference["object"].isNull());
    EXPECT_EQ(difference["field"].asString(), "unit system");
    EXPECT_TRUE(difference["a"].isNull());
    EXPECT_EQ(difference["b"].asString(), "mm-t-s");
    const std::string document = make(folder, "export", {one}, "a.json");
    EXPECT_EQ(vxmat({"diff", one, document}).status, 0) << "a document has no place for it";
}

TEST(Diff, PrintsOneLineForEachDifferenceOfTwoProjects)
{
    const Folder folder;
    const std::string one = make(folder, "new", {"Plastic Example 1", "Air"}, "a.vxmat");
    const std::pair<std::pair<std::string, std::string>, std::string> cases[] = {
        {{"\"value\": 7850", "\"value\": 7850.5"}, "Density (4): value: 7850 -> 7850.5"},
        {{"\"value\": 7850", "\"value\": \"NaN\""}, "Density (4): value: 7850 -> nan"},
        {{"\"unit\": \"kg/m3\"", "\"unit\": \"g/cm3\""}, "Density (4): unit: \"kg/m3\" -> \"g/cm3\""},
        {{"\"description\": \"Mass density\"", "\"description\": \"a\\nb\""},
         "Density (4): description: \"Mass density\" -> \"a\\u000ab\""},
        {{"\"category\": 0", "\"category\": 9"}, "Density (4): category: \"Basic\" -> \"Undefined\""},
        {{"\"id\": 4, \"name\"", "\"id\": 5, \"name\""}, "Density (4): id: 4 -> 5"},
        {{"\"key\": \"rho\"", "\"key\": \"r\""}, "Density (4): key: \"rho\" -> \"r\""},
        {{"\"name\": \"Density\"", "\"name\": \"D\""}, "Density (4): name: \"Density\" -> \"D\""},
        {{"\"text\": \"Mises\"", "\"text\": \"Tresca\""}, "Yield type (33): word: \"Mises\" -> \"Tresca\""},
        {{"\"values\": [450, 608", "\"values\": [450.5, 608"},
         "Yield stress (38): list: [450, 608, 679, 732, 752, 766, 780] -> [450.5, 608, 679, 732, 752, 766, 780]"},
        {{"\"suppressed\": false", "\"suppressed\": true"}, "suppressed: no -> yes"},
        {{"\"suppressed\": false", "\"suppressed\": false, \"colour\": [0, 0.5, 1, 1]"},
         "colour: none -> [0, 0.5, 1, 1]"},
        {{"\"suppressed\": false", "\"suppressed\": false, \"settings\": {\"measurements\": \"m\\n1\"}"},
         "settings.measurements: none -> unreadable"},
        {{"\"suppressed\": false", "\"suppressed\": false, \"settings\": {\"later\": \"m\\n1\"}"},
         "settings.later: none -> \"m\\u000a1\""},
    };
    for (const auto& [change, line] : cases) {
        const Outcome run = vxmat({"diff", one, changed(folder, one, change.first, change.second)});
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "Plastic Example 1: " + line + "\n");
        EXPECT_EQ(run.err, "");
    }
}

TEST(Diff, NamesTheTestsAndFitsThatWereMeasured)
{
    const Folder folder;
    const std::string one = make(folder, "new", {"Air"}, "a.vxmat");
    projectfile::ProjectRecord project = projectfile::readProject(vxtest::readText(one));
    const auto diff = [&](const std::string& before, const std::string& after) {
        project.objects.at(0).settings["measurements"] = before;
        const std::string left = folder.file("left", projectfile::writeProject(project));
        project.objects[0].settings["measurements"] = after;
        return vxmat({"diff", left, folder.file("right", projectfile::writeProject(project))}).out;
    };
    const std::string test = R"({"name": "tension", "mode": "uniaxial", "parameter": 0, "weight": 1, )"
                             R"("abscissas": [1.5], "ordinates": [2e5]})";
    const std::string measured = R"({"version": 1, "tests": [)" + test + R"(], "fits": []})";
    EXPECT_EQ(diff("", measured), "Air: settings.measurements: none -> 1 test (tension)\n");
    EXPECT_EQ(diff(R"({"version": 1, "tests": [)" + test + ", " + test + R"(], "fits": []})", "x"),
              "Air: settings.measurements: 2 tests (tension, tension) -> unreadable\n");
    EXPECT_THAT(diff(measured, measured + " "), HasSubstr("Air: settings.measurements: \"{\"version\": 1"));
    EXPECT_EQ(diff(measured, measured), "");
}

TEST(Diff, DistinguishesMinusZeroFromZeroButNotNanFromNan)
{
    const Folder folder;
    const std::string zero = make(folder, "new", {"Plastic Example 2"}, "a.vxmat");
    EXPECT_EQ(
        vxmat({"diff", zero,
               changed(folder, zero, "\"key\": \"PHFactor\", \"value\": 0", "\"key\": \"PHFactor\", \"value\": -0.0")})
            .out,
        "Plastic Example 2: Hardening factor (36): value: 0 -> -0\n");
    const std::string none =
        folder.file("nan", vxtest::readText(changed(folder, zero, "\"value\": 7850", "\"value\": \"NaN\"")));
    EXPECT_EQ(vxmat({"diff", none, none}).status, 0);
}

TEST(Diff, NamesMaterialsAndPropertiesThatOnlyOneFileHas)
{
    const Folder folder;
    const std::string one = make(folder, "new", {"Structural Steel=Steel", "Air"}, "a.vxmat");
    const std::string other = make(folder, "new", {"Stainless Steel=Other", "Water=Steel"}, "b.vxmat");
    const Outcome run = vxmat({"diff", one, other});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.out, testing::StartsWith("Steel: number: 1 -> 2\nSteel: Density (4): value: 7850 -> "));
    EXPECT_THAT(run.out, HasSubstr("\nSteel: Young's modulus (5): only in " + one + "\n"));
    EXPECT_THAT(run.out, HasSubstr("\nSteel: Dynamic viscosity (21): only in " + other + "\n"));
    EXPECT_THAT(run.out, HasSubstr("\nAir: only in " + one + "\n"));
    EXPECT_THAT(run.out, testing::EndsWith("\nOther: only in " + other + "\n"));
}

TEST(Diff, PairsMaterialsOfTheSameLabelByNumberThenInOrder)
{
    const auto document = [](const std::string& materials) {
        return R"({"proj_type": 2, "material": [)" + materials + "]}";
    };
    const auto material = [](const std::string& number, const std::string& density) {
        return R"({"mat_id": )" + number + R"(, "mat_name": "M", "Props": [{"prop_type": 4, "prop_key": "rho",
                  "prop_name": "Density", "prop_value": )" +
               density + "}]}";
    };
    const Folder folder;
    const std::string one = folder.file("a", document(material("1", "1") + "," + material("2", "2")));
    const std::string other =
        folder.file("b", document(material("2", "2.5") + "," + material("3", "3") + "," + material("4", "4")));
    EXPECT_EQ(vxmat({"diff", one, other}).out, "M [1]: number: 1 -> 3\n"
                                               "M [1]: Density (4): value: 1 -> 3\n"
                                               "M [2]: Density (4): value: 2 -> 2.5\n"
                                               "M [4]: only in " +
                                                   other + "\n");
}

TEST(Diff, IgnoresDataThatDocumentsCannotCarryAndNotesItOnce)
{
    const Folder folder;
    const std::string project = make(folder, "new", {"Plastic Example 1", "Acoustic Material 1", "Air"}, "a.vxmat");
    const std::string document = make(folder, "export", {project}, "a.json");
    for (const auto& [one, other] : {std::pair(project, document), std::pair(document, project)}) {
        const Outcome run = vxmat({"diff", one, other});
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "vxmat: note: " + document +
                               " is an exchange document, which carries only the key, name and number of a property: "
                               "words, lists, units, descriptions, categories, colours, suppression and other objects "
                               "are not compared\n");
    }
    const Outcome run = vxmat({"diff", changed(folder, project, "\"value\": 1.225", "\"value\": 1.2"), document});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "Air: Density (4): value: 1.2 -> 1.225\n");
}

TEST(Diff, PrintsDifferencesAsJson)
{
    const Folder folder;
    const std::string one = make(folder, "new", {"Air", "Water"}, "a.vxmat");
    const std::string other = make(folder, "new", {"Air"}, "b.vxmat");
    const Outcome run =
        vxmat({"diff", changed(folder, one, "\"value\": 1.225", "\"value\": \"Infinity\""), other, "--json"});
    EXPECT_EQ(run.status, 1);
    const auto reading = vxjson::readJsonText(run.out);
    ASSERT_FALSE(reading.error);
    EXPECT_EQ(reading.document["a"], folder.path("changed"));
    EXPECT_EQ(reading.document["b"], other);
    const Json::Value& differences = reading.document["differences"];
    ASSERT_EQ(differences.size(), 2U);
    EXPECT_EQ(differences[0]["material"], "Air");
    EXPECT_EQ(differences[0]["property"], 4);
    EXPECT_EQ(differences[0]["property_name"], "Density");
    EXPECT_EQ(differences[0]["field"], "value");
    EXPECT_EQ(differences[0]["a"], "Infinity");
    EXPECT_EQ(differences[0]["b"], 1.225);
    EXPECT_EQ(differences[1]["material"], "Water");
    EXPECT_TRUE(differences[1]["property"].isNull());
    EXPECT_TRUE(differences[1]["field"].isNull());
    EXPECT_EQ(differences[1]["a"], true);
    EXPECT_EQ(differences[1]["b"], false);
    const Outcome equal = vxmat({"diff", one, one, "--json"});
    EXPECT_EQ(equal.status, 0);
    EXPECT_THAT(equal.out, HasSubstr("\"differences\" : []"));
}

TEST(Diff, RefusesAnAnalysis)
{
    const Folder folder;
    const std::string project = make(folder, "new", {"Air"}, "a.vxmat");
    const Outcome run = vxmat({"diff", project, vxtest::dataPath("documents/03-analysis.json")});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("an analysis document holds no materials"));
}

TEST(Diff, ComparesAHundredThousandMaterialsWithTheSameLabel)
{
    std::string text = R"({"proj_type": 2, "material": [)";
    constexpr int count = 100000;
    for (int i = 1; i <= count; ++i)
        text += (i == 1 ? "" : ",") + std::string(R"({"mat_id": )") + std::to_string(i) + R"(, "mat_name": "M"})";
    const Folder folder;
    const std::string one = folder.file("a", text + "]}");
    const std::string other = folder.file("b", text + R"(, {"mat_id": 100001, "mat_name": "M"}]})");
    EXPECT_EQ(vxmat({"diff", one, other}).out, "M [100001]: only in " + other + "\n");
}

} // namespace
