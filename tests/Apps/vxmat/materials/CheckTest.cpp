#include "DataFile.h"
#include "VxmatTesting.h"

#include "vxMaterial/json/JsonText.h"

#include <QDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace {

using vxtest::dataPath;
using vxtest::Outcome;
using vxtest::vxmat;

std::vector<std::string> corpus(const std::string& folder)
{
    std::vector<std::string> files;
    const QDir documents(QString::fromStdString(dataPath(folder)));
    const QStringList kinds{QStringLiteral("*.json"), QStringLiteral("*.vxmat")};
    for (const QString& name : documents.entryList(kinds, QDir::Files, QDir::Name))
        files.push_back(std::string(folder).append("/").append(name.toStdString()));
    return files;
}

std::string stemOf(const std::string& file)
{
    return file.substr(0, file.rfind('.'));
}

/// The files of tests/data/documents and tests/data/projects. Beside each is a file with the expected result of
/// checking it: the exit status, the standard output and the standard error, with the name of the file instead of its
/// path.
class Corpus : public testing::TestWithParam<std::string>
{};

TEST_P(Corpus, GivesTheExpectedReport)
{
    const std::string file = dataPath(GetParam());
    const std::string name = GetParam().substr(GetParam().find('/') + 1);
    Outcome run = vxmat({"check", file});
    std::string report = std::to_string(run.status) + "\n" + run.out + run.err;
    for (std::size_t at = report.find(file); at != std::string::npos; at = report.find(file))
        report.replace(at, file.size(), name);
    EXPECT_EQ(report, vxtest::readText(stemOf(file) + ".expected"));
}

std::string testName(const testing::TestParamInfo<std::string>& file)
{
    std::string name = stemOf(file.param).substr(file.param.find('/') + 1);
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '-' || c == '.'; }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Documents, Corpus, testing::ValuesIn(corpus("documents")), testName);
INSTANTIATE_TEST_SUITE_P(Projects, Corpus, testing::ValuesIn(corpus("projects")), testName);

TEST(CheckCorpus, HasEnoughFiles)
{
    EXPECT_GE(corpus("documents").size(), 15U);
    EXPECT_GE(corpus("projects").size(), 15U);
}

TEST(Check, PrintsNothingForAValidDocument)
{
    const Outcome run = vxmat({"check", "-"}, vxmat({"export", "Air", "-o", "-"}).out);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "");
}

TEST(Check, PrintsFindingsAndNotesAsJson)
{
    const Outcome run = vxmat({"check", "-", "--json"},
                              R"({"proj_type": 2, "material": [{"mat_id": 1, "mat_name": "m", "Props": [
                              {"prop_type": 4, "prop_key": "rho", "prop_name": "Density", "prop_value": 0}]},
                              {"mat_id": 2, "mat_name": "empty"}]})");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "");
    const auto reading = vxjson::readJsonText(run.out);
    ASSERT_FALSE(reading.error);
    EXPECT_EQ(reading.document["file"], "-");
    ASSERT_EQ(reading.document["findings"].size(), 1U);
    EXPECT_EQ(reading.document["findings"][0]["path"], "$.material[0].Props[0].prop_value");
    EXPECT_EQ(reading.document["findings"][0]["message"], "is 0: Mass density must be positive!");
    EXPECT_EQ(reading.document["notes"].size(), 1U);
}

TEST(Check, ReadsTheMaterialsOfAnAnalysisFromAnotherDocument)
{
    const std::string analysis = dataPath("documents/03-analysis.json");
    EXPECT_EQ(vxmat({"check", analysis}).status, 1);
    const Outcome run = vxmat({"check", analysis, "--materials", dataPath("documents/02-two-materials.json")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(vxmat({"check", analysis, "--materials", "/no/such/file"}).status, 2);
}

TEST(Check, PrintsDoubtsApartFromErrors)
{
    const std::string document = vxmat({"export", "Plastic Example 2=3", "Air", "-o", "-"}).out;
    const Outcome run = vxmat({"check", "-"}, document);
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out,
                testing::StartsWith("-: doubt: 3 Plastic Example 2: Young's modulus = 206900 Pa with Density = "
                                    "7850 kg/m^3 gives a wave speed of 5.13388 m/s;"));
    EXPECT_THAT(run.out, testing::EndsWith(" 206900 MPa is usual for steel: multiply by 1e6.\n"));
    EXPECT_EQ(vxmat({"check", "-", "--strict"}, document).status, 1);
    EXPECT_EQ(vxmat({"check", "-", "--strict"}, vxmat({"export", "Air", "-o", "-"}).out).status, 0);
    const std::string project = vxmat({"new", "Plastic Example 2", "-o", "-"}).out;
    EXPECT_EQ(vxmat({"check", "-"}, project).status, 0);
    EXPECT_EQ(vxmat({"check", "-", "--strict"}, project).status, 1);
}

TEST(Check, PrintsDoubtsAsJson)
{
    const Outcome run = vxmat({"check", "-", "--json"}, vxmat({"new", "Plastic Example 2=Tough", "-o", "-"}).out);
    EXPECT_EQ(run.status, 0);
    const Json::Value doubts = vxjson::readJsonText(run.out).document["doubts"];
    ASSERT_EQ(doubts.size(), 1U);
    EXPECT_EQ(doubts[0]["number"], 1);
    EXPECT_EQ(doubts[0]["material"], "Tough");
    EXPECT_EQ(doubts[0]["id"], 5);
    EXPECT_EQ(doubts[0]["quantity"], "Young's modulus");
    EXPECT_EQ(doubts[0]["value"], 206900.0);
    EXPECT_EQ(doubts[0]["impossible"], false);
    EXPECT_EQ(doubts[0]["remedy"], "206900 MPa is usual for steel: multiply by 1e6");
}

/// Returns a project with a Neo-Hookean rubber whose C10 is 0.5 MPa and whose Mu is 3 MPa.
std::string rubberThatContradictsItself(const vxtest::Folder& folder)
{
    const std::string project =
        folder.file("rubber.vxmat", vxmat({"new", "Elastomer 1 (Neo-Hookean)=Seal", "-o", "-"}).out);
    using Change = std::pair<std::string, std::string>;
    for (const auto& [quantity, value] :
         {Change{"Density", "1100 kg/m^3"}, Change{"C10", "0.5 MPa"}, Change{"Mu", "3 MPa"}, Change{"D1", "1e-9 1/Pa"}})
    {
        const Outcome run = vxmat({"set", project, "Seal", quantity, value});
        EXPECT_EQ(run.status, 0) << run.err;
    }
    return project;
}

TEST(Check, PrintsDoubtsAboutModels)
{
    const vxtest::Folder folder;
    const std::string project = rubberThatContradictsItself(folder);
    const Outcome run = vxmat({"check", project, "--units", "mm-t-s"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, project +
                           ": doubt: 1 Seal: C10 is 0.5 MPa, but half of Mu is 1.5 MPa. The curve uses C10. Remove "
                           "one of the two constants.\n");
    EXPECT_EQ(vxmat({"check", project, "--strict"}).status, 1);
    const Json::Value doubts = vxjson::readJsonText(vxmat({"check", project, "--json"}).out).document["doubts"];
    ASSERT_EQ(doubts.size(), 1U);
    EXPECT_EQ(doubts[0]["id"], 26);
    EXPECT_TRUE(doubts[0]["value"].isNull());
    EXPECT_EQ(doubts[0]["impossible"], false);
    EXPECT_TRUE(doubts[0]["remedy"].isNull());
}

TEST(Check, ShowsDoubtsInTheUnitSystemOfTheOptionOrOfTheProject)
{
    const std::string project = vxmat({"new", "Plastic Example 2", "-o", "-"}).out;
    const std::string wrong =
        "Young's modulus = 0.2069 MPa with Density = 7.85e-09 t/mm^3 gives a wave speed of 5133.88 "
        "mm/s; known solids of such a density have 60000 mm/s to 20500000 mm/s.";
    EXPECT_THAT(vxmat({"check", "-", "--units", "mm-t-s"}, project).out, testing::HasSubstr(wrong));
    const vxtest::Folder folder;
    const std::string inProject = folder.file("p.vxmat", project);
    ASSERT_EQ(vxmat({"set", inProject, "--project-units", "mm-t-s"}).status, 0);
    EXPECT_THAT(vxmat({"check", inProject}).out, testing::HasSubstr(wrong));
    EXPECT_THAT(vxmat({"check", inProject, "--units", "SI"}).out, testing::HasSubstr("Young's modulus = 206900 Pa"));
    const Json::Value json = vxjson::readJsonText(vxmat({"check", inProject, "--json"}).out).document;
    EXPECT_EQ(json["units"], "mm-t-s");
    EXPECT_EQ(json["doubts"][0]["value"], 0.2069);
    EXPECT_EQ(json["doubts"][0]["unit"], "MPa");
    EXPECT_EQ(vxmat({"check", inProject, "--units", "mm-x"}).status, 2);
}

/// Returns a document with this element `count` times as material.
std::string documentOf(const std::string& material, int count)
{
    std::string materials;
    for (int i = 0; i < count; ++i)
        materials += (i == 0 ? "" : ",") + material;
    return R"({"proj_type": 2, "material": [)" + materials + "]}";
}

TEST(Check, ListsOnlyTheFirstErrorsAndNotesAndCountsTheOthers)
{
    // Two errors and one note for each.
    const Outcome run = vxmat({"check", "-"}, documentOf("{}", 1100));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 1000);
    EXPECT_THAT(run.out, testing::EndsWith("-: $.material[499].mat_name: is missing and read as the empty text\n"));
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1002);
    EXPECT_THAT(run.err, testing::EndsWith("vxmat: -: note: further errors are not listed: 1200\n"
                                           "vxmat: -: note: further notes are not listed: 100\n"));
    const Outcome json = vxmat({"check", "-", "--json"}, documentOf("{}", 1100));
    const Json::Value document = vxjson::readJsonText(json.out).document;
    EXPECT_EQ(document["findings"].size(), 1000U);
    EXPECT_EQ(document["notes"].size(), 1000U);
    EXPECT_EQ(document["omitted"]["findings"], 1200);
    EXPECT_EQ(document["omitted"]["notes"], 100);
    EXPECT_EQ(document["omitted"]["doubts"], 0);
}

TEST(Check, ListsOnlyTheFirstDoubtsAndCountsTheOthers)
{
    std::string materials;
    for (int i = 1; i <= 1003; ++i)
        materials += R"({"mat_id": )" + std::to_string(i) +
                     R"(, "mat_name": "m", "Props": [{"prop_type": 4, "prop_key": "rho", "prop_name": "Density", )"
                     R"("prop_value": 1e9}]})" +
                     (i == 1003 ? "" : ",");
    const Outcome run = vxmat({"check", "-"}, R"({"proj_type": 2, "material": [)" + materials + "]}");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 1000);
    EXPECT_EQ(run.err, "vxmat: -: note: further doubts are not listed: 3\n");
}

} // namespace
