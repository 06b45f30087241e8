#include "DataFile.h"
#include "VxmatTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

/// The subcommands and projects with objects of other classes than materials.
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using vxtest::dataPath;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::vxmat;
using vxtest::vxmatJson;

std::string mixed()
{
    return dataPath("projects/02-mixed.vxmat");
}

/// Writes a copy of the mixed project with the first `what` replaced, and returns its path.
std::string changed(const Folder& folder, const std::string& what, const std::string& into)
{
    std::string text = vxtest::readText(mixed());
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return folder.file("changed", at == std::string::npos ? text : text.replace(at, what.size(), into));
}

TEST(OtherObjects, AreListedAfterTheMaterials)
{
    const Outcome run = vxmat({"show", mixed()});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, AllOf(testing::StartsWith("1 Steel\n"), HasSubstr("\n2 Air\n")));
    EXPECT_THAT(run.out, EndsWith("\nObjects of other classes\n\n"
                                  "Number  Name      Class                    Suppressed\n"
                                  "3       Probe A   Stub::Probe              no\n"
                                  "4       Measured  Obj::ProjectObjectGroup  yes\n"));
}

TEST(OtherObjects, AreListedAsJson)
{
    const Json::Value document = vxmatJson({"show", mixed(), "--json"});
    EXPECT_EQ(document["materials"].size(), 2U);
    ASSERT_EQ(document["objects"].size(), 2U);
    const Json::Value& probe = document["objects"][0];
    EXPECT_EQ(probe["number"], 3);
    EXPECT_EQ(probe["name"], "Probe A");
    EXPECT_EQ(probe["class"], "Stub::Probe");
    EXPECT_EQ(probe["suppressed"], false);
    EXPECT_EQ(probe["properties"]["Depth"], 0.5);
    EXPECT_EQ(probe["content"]["samples"][1], 2.5);
    EXPECT_EQ(document["objects"][1]["links"][0], 3);
    EXPECT_EQ(vxmatJson({"show", dataPath("projects/01-materials.vxmat"), "--json"})["objects"].size(), 0U);
}

TEST(OtherObjects, AreListedForAProjectWithoutMaterials)
{
    const Outcome run = vxmat({"show", dataPath("projects/03-other-class.vxmat")});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, testing::StartsWith("Objects of other classes\n"));
}

TEST(OtherObjects, AreComparedInEveryField)
{
    const Folder folder;
    EXPECT_EQ(vxmat({"diff", mixed(), mixed()}).status, 0);
    const std::pair<std::pair<std::string, std::string>, std::string> cases[] = {
        {{"\"Depth\": 0.5", "\"Depth\": 0.75"},
         R"(Probe A: properties: {"Depth":0.5,"Enabled":true,"Material":1} -> {"Depth":0.75,"Enabled":true,"Material":1})"},
        {{"\"Expanded\": false", "\"Expanded\": true"}, R"(Probe A: node: {"Expanded":false} -> {"Expanded":true})"},
        {{"1.5,", "1.25,"}, R"(Probe A: content: {"samples":[1.5,2.5]} -> {"samples":[1.25,2.5]})"},
        {{"\"class\": \"Stub::Probe\"", "\"class\": \"Stub::Sonde\""},
         "Probe A: class: \"Stub::Probe\" -> \"Stub::Sonde\""},
        {{"\"suppressed\": true", "\"suppressed\": false"}, "Measured: suppressed: yes -> no"},
        {{"    3,\n    1\n", "    1,\n    3\n"}, "Measured: links: [3, 1] -> [1, 3]"},
        {{"\"object_id\": 4", "\"object_id\": 6"}, "Measured: number: 4 -> 6"},
        {{"\"Batch\": \"B 12\"", "\"Batch\": \"B\""}, R"(Steel: properties: {"Batch":"B 12"} -> {"Batch":"B"})"},
        {{"\"label\": \"Probe A\"", "\"label\": \"Probe B\""}, "Probe A: only in "},
    };
    for (const auto& [change, line] : cases) {
        std::string file = changed(folder, change.first, change.second);
        if (line.find("number") != std::string::npos) {
            std::string text = vxtest::readText(file);
            text.replace(text.find("\"next_object_id\": 5"), 19, "\"next_object_id\": 7");
            file = folder.file("changed", text);
        }
        const Outcome run = vxmat({"diff", mixed(), file});
        EXPECT_EQ(run.status, 1) << line;
        EXPECT_THAT(run.out, testing::StartsWith(line));
        EXPECT_EQ(run.err, "");
    }
}

TEST(OtherObjects, AreComparedAsJson)
{
    const Folder folder;
    const Outcome run = vxmat({"diff", mixed(), changed(folder, "\"Depth\": 0.5", "\"Depth\": 1.5"), "--json"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.out, AllOf(HasSubstr("\"material\" : null"), HasSubstr("\"object\" : \"Probe A\""),
                               HasSubstr("\"field\" : \"properties\""), HasSubstr("\"Depth\" : 1.5")));
}

TEST(OtherObjects, AreNotComparedWithADocument)
{
    const Folder folder;
    const std::string document = folder.path("d.json");
    ASSERT_EQ(vxmat({"export", mixed(), "-o", document}).status, 0);
    const Outcome run = vxmat({"diff", mixed(), document});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, HasSubstr("suppression and other objects are not compared"));
}

TEST(OtherObjects, AreLeftOutOfAnExportWithANote)
{
    const Outcome run = vxmat({"export", mixed(), "-o", "-"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "vxmat: note: " + mixed() +
                           ": exchange documents carry only materials; the other objects are left out\n");
    EXPECT_THAT(run.out, AllOf(HasSubstr("\"Steel\""), HasSubstr("\"Air\""), testing::Not(HasSubstr("Probe"))));
}

TEST(OtherObjects, DoNotPreventTheUseOfTheMaterials)
{
    const Outcome cards = vxmat({"cards", mixed()});
    EXPECT_EQ(cards.status, 0);
    EXPECT_EQ(cards.err, "");
    EXPECT_THAT(cards.out, AllOf(HasSubstr("== 1 Steel\n"), HasSubstr("== 2 Air\n")));
    const std::string analysis = dataPath("documents/03-analysis.json");
    EXPECT_NE(vxmat({"query", analysis, "--materials", mixed()}).status, 2);
    EXPECT_NE(vxmat({"check", analysis, "--materials", mixed()}).status, 2);
}

} // namespace
