#include "DataFile.h"
#include "VxmatTesting.h"

#include "vxMaterial/json/JsonText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::vxmat;

TEST(Cards, PrintEveryCardThatAppliesToALibraryMaterial)
{
    const Outcome run = vxmat({"cards", "creep example", "EM", "-"}, "{}");
    EXPECT_EQ(run.status, 2) << "EM is neither a name nor a file";
    const Outcome cards = vxmat({"cards", "creep example", "Electromangetic Material 1"});
    EXPECT_EQ(cards.status, 0);
    EXPECT_EQ(cards.err, "");
    EXPECT_EQ(cards.out, "== Creep Example\n"
                         "-- elasticity\n 206900.000000, 0.290000\n"
                         "-- creep\n!CREEP, TYPE=NORTON\n 1e-10, 5, 0\n"
                         "-- density\n 7850, 0\n 7850, 1e+06\n"
                         "\n== Electromangetic Material 1\n(no card applies)\n");
}

TEST(Cards, AreReportedIfADocumentMakesThemIncomplete)
{
    const Folder folder;
    const std::string file = folder.path("materials.json");
    ASSERT_EQ(vxmat({"export", "Plastic Example 1=7", "Air=3", "-o", file}).status, 0);
    const Outcome run = vxmat({"cards", file});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err,
              "vxmat: " + file +
                  ": 7 Plastic Example 1: the plasticity card cannot be complete: exchange documents carry no "
                  "words and lists (\"Yield type\", \"Hardening type\", \"Yield stress\", \"Plastic strain\")\n");
    EXPECT_THAT(run.out, testing::StartsWith("== 3 Air\n-- density\n 1.225, 0\n"));
    EXPECT_THAT(run.out, HasSubstr("\n== 7 Plastic Example 1\n-- elasticity\n 206900.000000, 0.290000\n-- density\n"));
}

TEST(Cards, AreCompleteForADocumentOfCreepAndViscoElasticMaterials)
{
    const Folder folder;
    const std::string file = folder.path("materials.json");
    ASSERT_EQ(vxmat({"export", "Creep Example", "Viscoelastic Example", "-o", file}).status, 0);
    const Outcome run = vxmat({"cards", file});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, HasSubstr("!CREEP, TYPE=NORTON\n 1e-10, 5, 0\n"));
    EXPECT_THAT(run.out, HasSubstr("!VISCOELASTIC\n 0.5, 1\n"));
}

TEST(Cards, ArePrintedAsJsonWithTheirDoubts)
{
    const Outcome run = vxmat({"cards", "Plastic Example 2", "--json"});
    EXPECT_EQ(run.status, 0);
    const auto reading = vxjson::readJsonText(run.out);
    ASSERT_FALSE(reading.error);
    const Json::Value& material = reading.document["materials"][0];
    EXPECT_TRUE(material["source"].isNull());
    EXPECT_TRUE(material["number"].isNull());
    EXPECT_EQ(material["name"], "Plastic Example 2");
    EXPECT_EQ(material["kind"], 12);
    EXPECT_EQ(material["cards"][1]["name"], "plasticity");
    EXPECT_EQ(material["cards"][1]["text"], "!PLASTIC, YIELD=DRUCKER-PRAGER, HARDEN=BILINEAR\n 500, 20, 0\n");
    EXPECT_TRUE(material["doubts"].isArray());
    EXPECT_TRUE(material["doubts"].empty());
}

TEST(Cards, RefuseAnAnalysisDocument)
{
    const Outcome run = vxmat({"cards", "-"}, R"({"proj_type": 1})");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("an analysis document holds no materials"));
}

TEST(Cards, ReportADocumentWithoutMaterials)
{
    for (const char* const document : {"{}", R"({"proj_type": 2})", R"({"proj_type": 2, "material": []})"}) {
        const Outcome run = vxmat({"cards", "-"}, document);
        EXPECT_EQ(run.status, 1) << document;
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "vxmat: -: holds no materials\n");
    }
    const Outcome text = vxmat({"cards", "-"}, R"({"proj_type": 2, "material": "steel"})");
    EXPECT_EQ(text.status, 2);
    EXPECT_THAT(text.err, HasSubstr("\"material\" is not an array"));
}

TEST(Cards, EscapeControlCharactersInNames)
{
    const Outcome run = vxmat({"cards", "-"}, R"({"proj_type": 2, "material": [{"mat_id": 1,
        "mat_name": "x\n-- plasticity\u001b[31m", "Props": [{"prop_type": 45}]}]})");
    EXPECT_THAT(run.out, testing::StartsWith("== 1 x\\u000a-- plasticity\\u001b[31m\n-- creep\n"));
    EXPECT_THAT(run.err, HasSubstr("1 x\\u000a-- plasticity\\u001b[31m: the creep card lacks a value"));
}

TEST(Cards, RefuseADocumentThatCannotBeConverted)
{
    const Outcome run = vxmat({"cards", "-"}, R"({"proj_type": 2, "material": [{"mat_id": "one"}]})");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("Value is not convertible to UInt"));
    EXPECT_THAT(run.err, HasSubstr("'vxmat check' reports the place"));
}

TEST(Cards, AreCompleteForAProject)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "Plastic Example 1=Tough", "Air", "-o", project}).status, 0);
    const Outcome run = vxmat({"cards", project});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, testing::StartsWith("== 1 Tough\n-- elasticity\n 206900.000000, 0.290000\n-- plasticity\n"
                                             "!PLASTIC, YIELD=MISES, HARDEN=MULTILINEAR\n 450, 0\n 608, 0.05\n"));
    EXPECT_THAT(run.out, HasSubstr("\n== 2 Air\n-- density\n 1.225, 0\n"));
    EXPECT_EQ(vxmat({"cards", "-"}, vxtest::readText(project)).out, run.out);
    const Json::Value json = vxtest::vxmatJson({"cards", project, "--json"})["materials"];
    EXPECT_EQ(json[0]["source"], project);
    EXPECT_EQ(json[0]["number"], 1);
    EXPECT_EQ(json[0]["name"], "Tough");
    EXPECT_TRUE(json[0]["doubts"].empty());
}

TEST(Cards, SayWhichNumbersLoseDigits)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "--empty", "Gel", "-o", project}).status, 0);
    ASSERT_EQ(vxmat({"set", project, "Gel", "IsoElastic", "on"}).status, 0);
    ASSERT_EQ(vxmat({"set", project, "Gel", "E", "5.55 kPa"}).status, 0);
    ASSERT_EQ(vxmat({"set", project, "Gel", "nu", "0.45"}).status, 0);
    EXPECT_EQ(vxmat({"cards", project}).err, "");
    const Outcome run = vxmat({"cards", project, "--units", "mm-kg-ms"});
    EXPECT_THAT(run.out, HasSubstr(" 0.000006, 0.450000\n"));
    EXPECT_THAT(run.err,
                HasSubstr("1 Gel: the elasticity card has six decimals, so that Young's modulus 5.55e-06 becomes "
                          "0.000006; choose a unit system with a smaller unit\n"));
}

TEST(Cards, ReportAProjectWithoutMaterials)
{
    const Outcome run = vxmat({"cards", "-"}, R"({"format": "vxMaterial project", "format_version": 1, "name": "p",
                                              "next_object_id": 1, "materials": []})");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "vxmat: -: holds no materials\n");
}

} // namespace
