#include "DataFile.h"
#include "SchemaJudge.h"
#include "VxmatTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace {

using testing::HasSubstr;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::vxmat;
using vxtest::vxmatJson;

TEST(Deck, IsPrintedWithItsReportOnStandardError)
{
    const Outcome run = vxmat({"deck", "concrete", "--solver", "CalculiX", "--units", "mm-t-s"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "** Units: mm, t, s, K, A\n*MATERIAL, NAME=Concrete\n*DENSITY\n2.3e-9\n*SPECIFIC HEAT\n8.8e8\n"
                       "*CONDUCTIVITY\n1.8\n*ELASTIC\n30000, 0.18\n");
    EXPECT_THAT(run.err, HasSubstr("vxmat: note: The deck is in the unit system mm-t-s.\n"));
    EXPECT_THAT(run.err, HasSubstr("vxmat: note: Concrete: converted: Young's modulus: in MPa instead of Pa\n"));
}

TEST(Deck, OfAProjectIsWrittenToAFileAndReportedAsJson)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    const std::string deck = folder.path("p.inp");
    ASSERT_EQ(vxmat({"new", "Plastic Example 1=Tough one", "Air", "-o", project}).status, 0);
    const Json::Value json = vxmatJson({"deck", project, "--solver", "calculix", "--json", "-o", deck});
    EXPECT_EQ(json["units"], "SI");
    EXPECT_EQ(json["materials"].size(), 2U);
    EXPECT_EQ(json["materials"][0]["written_name"], "Tough_one");
    EXPECT_FALSE(json.isMember("deck"));
    EXPECT_THAT(vxtest::readText(deck), HasSubstr("*MATERIAL, NAME=Tough_one\n*DENSITY\n7850\n*ELASTIC\n206900, 0.29\n"
                                                  "*PLASTIC\n450, 0\n608, 0.05\n"));
    EXPECT_EQ(vxmatJson({"deck", project, "--solver", "calculix", "--json"})["deck"], vxtest::readText(deck));
}

TEST(Deck, ReplacesADeckButNoProject)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "Air", "-o", project}).status, 0);
    const std::string before = vxtest::readText(project);
    const Outcome run = vxmat({"deck", "Concrete", "--solver", "apdl", "-o", project});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err,
              "vxmat: " + project + ": this file is a project, which the deck would replace; give another name\n");
    EXPECT_EQ(vxtest::readText(project), before);
    const std::string deck = folder.file("old.mac", "! an older deck\n");
    EXPECT_EQ(vxmat({"deck", "Concrete", "--solver", "apdl", "-o", deck}).status, 0);
    EXPECT_THAT(vxtest::readText(deck), HasSubstr("MP,DENS,1,2300\n"));
}

TEST(Deck, IsAFindingIfAModelOfTheFormatCannotBeWritten)
{
    const Outcome run = vxmat({"deck", "Plastic Example 2", "--solver", "calculix"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err,
                HasSubstr("lost: Plasticity, Yield type, Hardening factor: the format has no card for the yield "
                          "type \"DRUCKER-PRAGER\""));
}

TEST(Deck, OfADocumentSaysThatWordsAndListsAreMissing)
{
    const Folder folder;
    const std::string document = folder.path("m.json");
    ASSERT_EQ(vxmat({"export", "Concrete", "-o", document}).status, 0);
    const Outcome run = vxmat({"deck", document, "--solver", "calculix"});
    EXPECT_THAT(run.err, HasSubstr("note: " + document + ": exchange documents carry no words and lists\n"));
    EXPECT_THAT(run.out, HasSubstr("*ELASTIC\n3e10, 0.18\n"));
    const std::string before = vxtest::readText(document);
    EXPECT_EQ(vxmat({"deck", document, "--solver", "calculix", "-o", document}).status, 2);
    EXPECT_EQ(vxtest::readText(document), before) << "a file that is read is not overwritten";
}

TEST(Deck, OfADocumentHasNoNumberThatTheDocumentDoesNotHave)
{
    const Folder folder;
    const std::string document =
        folder.file("m.json", R"({"proj_type": 2, "material": [{"mat_id": 1, "mat_name": "A", "Props": [
                       {"prop_type": 4, "prop_key": "rho", "prop_name": "Density"},
                       {"prop_type": 203, "prop_key": "k", "prop_name": "Thermal conductivity", "prop_value": 0}]}]})");
    const Outcome run = vxmat({"deck", document, "--solver", "calculix"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, HasSubstr("vxmat: " + document +
                                   ": A: the document has no number for Density; the deck does not have it\n"));
    EXPECT_THAT(run.err, testing::Not(HasSubstr("carried: Density")));
    EXPECT_THAT(run.out, testing::Not(HasSubstr("*DENSITY")));
    EXPECT_THAT(run.out, HasSubstr("*CONDUCTIVITY\n0\n")) << "a number of 0 is one";
}

TEST(Deck, OfADocumentTellsTheListsThatAreMissing)
{
    const Folder folder;
    const std::string document = folder.path("m.json");
    ASSERT_EQ(vxmat({"export", "Plastic Example 1", "-o", document}).status, 0);
    const Outcome run = vxmat({"deck", document, "--solver", "calculix"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, HasSubstr("lost: Plasticity, Yield type, Hardening type, Yield stress, Plastic strain: the "
                                   "curve has no points\n"));
}

TEST(Deck, NumbersMaterialsFromTheChosenNumber)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "Concrete", "Cast Iron", "-o", project}).status, 0);
    const std::string own = vxmat({"deck", project, "--solver", "nastran"}).out;
    EXPECT_THAT(own, HasSubstr("$ Material 1: Concrete\nMAT1    1       3.+10           .18     2300.\n"));
    EXPECT_THAT(own, HasSubstr("MAT1    2 "));
    const std::string chosen = vxmat({"deck", project, "--solver", "nastran", "--ids", "101"}).out;
    EXPECT_THAT(chosen, HasSubstr("MAT1    101     3.+10           .18     2300.\n"));
    EXPECT_THAT(chosen, HasSubstr("MAT1    102 "));
}

TEST(Deck, IsWrittenForEverySolverThatIsListed)
{
    const Json::Value solvers = vxmatJson({"solvers", "--json"})["solvers"];
    EXPECT_EQ(solvers.size(), 6U);
    for (const Json::Value& solver : solvers) {
        const std::string name = solver["name"].asString();
        const Outcome run = vxmat({"deck", "Concrete", "--solver", name});
        EXPECT_EQ(run.status, 0) << name << run.err;
        EXPECT_THAT(run.out, HasSubstr("Concrete")) << name;
    }
}

TEST(Deck, RefusesWhatItDoesNotKnow)
{
    EXPECT_THAT(
        vxmat({"deck", "Air", "--solver", "solvix"}).err,
        HasSubstr(
            "--solver: there is no solver \"solvix\"; the solvers are: calculix, nastran, apdl, lsdyna, elmer, matml"));
    EXPECT_THAT(vxmat({"deck", "Air", "--solver", "calculix", "--units", "mm"}).err, HasSubstr("--units: "));
    EXPECT_THAT(vxmat({"deck", "Air", "--solver", "calculix", "--ids", "0"}).err,
                HasSubstr("--ids: the number of a material must be above 0"));
    EXPECT_THAT(vxmat({"deck", "Airr", "--solver", "calculix"}).err, HasSubstr("Air"));
    for (const std::string wrong : {"--solver=x", "--ids=-1"})
        EXPECT_EQ(vxmat({"deck", "Air", "--solver", "calculix", wrong}).status, 2) << wrong;
}

TEST(Deck, RefusesNumbersBeyondTheLargestOfTheFormat)
{
    const Outcome run = vxmat({"deck", "Concrete", "Cast Iron", "--solver", "apdl", "--ids", "99999"});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("--ids: 2 materials cannot be numbered from 99999; the largest number in Mechanical "
                                   "APDL is 99999"));
    EXPECT_EQ(vxmat({"deck", "Concrete", "Cast Iron", "--solver", "apdl", "--ids", "99998"}).status, 0);
    EXPECT_EQ(vxmat({"deck", "Concrete", "--solver", "apdl", "--ids", "100000"}).status, 2);
}

TEST(Deck, HasTheFieldsThatTheUserChooses)
{
    EXPECT_THAT(vxmat({"deck", "Concrete", "--solver", "nastran", "--fields", "free"}).out,
                HasSubstr("MAT1,1,3.+10,,.18,2300.\n"));
    EXPECT_THAT(vxmat({"deck", "Concrete", "--solver", "nastran", "--fields", "wide"}).err,
                HasSubstr("--fields: there is no form \"wide\"; the forms are: small, large, free"));
    EXPECT_THAT(vxmat({"deck", "Concrete", "--solver", "apdl", "--fields", "small"}).err,
                HasSubstr("--fields: only nastran has fields of different forms"));
}

TEST(Deck, HasTheDialectThatTheUserChooses)
{
    EXPECT_THAT(vxmat({"deck", "Viscoelastic Example", "--solver", "calculix", "--dialect", "commercial"}).out,
                HasSubstr("*VISCOELASTIC, TIME=PRONY\n"));
    EXPECT_THAT(vxmat({"deck", "Air", "--solver", "calculix", "--dialect", "x"}).err,
                HasSubstr("--dialect: calculix has no dialect \"x\"; the dialects are: calculix, commercial"));
    EXPECT_THAT(vxmat({"deck", "Air", "--solver", "elmer", "--dialect", "commercial"}).err,
                HasSubstr("--dialect: elmer has no dialects"));
}

TEST(Solvers, AreListedWithTheirCards)
{
    const Outcome run = vxmat({"solvers"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, testing::ContainsRegex("Quantity +Key +calculix"));
    EXPECT_THAT(run.out, testing::ContainsRegex("Young's modulus +E +\\*ELASTIC"));
    EXPECT_THAT(run.out, testing::ContainsRegex("Relaxation time +RTime +-"));
    const Json::Value json = vxmatJson({"solvers", "--json"});
    EXPECT_EQ(json["solvers"][0]["name"], "calculix");
    ASSERT_EQ(json["quantities"].size(), 36U);
    const Json::Value& density = json["quantities"][0]["solvers"]["calculix"];
    EXPECT_EQ(density["card"], "*DENSITY");
    EXPECT_EQ(density["proof"], "run");
    const Json::Value& sound = json["quantities"][1]["solvers"]["calculix"];
    EXPECT_TRUE(sound["card"].isNull());
    EXPECT_EQ(sound["how"], "the solver computes sound only as an analogy of heat conduction");
    EXPECT_EQ(json["quantities"][1]["dialects"]["commercial"]["card"], "*ACOUSTIC MEDIUM");
    EXPECT_EQ(json["solvers"][0]["dialects"][1]["name"], "commercial");
    EXPECT_TRUE(json["solvers"][0]["largestNumber"].isNull());
    EXPECT_EQ(json["solvers"][2]["largestNumber"], 99999);
}

TEST(Solvers, AreListedWithWhetherTheirDecksCanBeRead)
{
    const Outcome run = vxmat({"solvers"});
    EXPECT_THAT(run.out, testing::StartsWith("Solver "));
    EXPECT_THAT(run.out, testing::ContainsRegex("calculix +CalculiX +written, read +\\.inp +commercial\n"));
    EXPECT_THAT(run.out, testing::ContainsRegex("lsdyna +LS-DYNA +written +\\.k +-\n"));
    std::string readable;
    const Json::Value json = vxmatJson({"solvers", "--json"});
    for (const Json::Value& solver : json["solvers"])
        readable += solver["canRead"].asBool() ? solver["name"].asString() + " " : "";
    EXPECT_EQ(readable, "calculix nastran matml ");
}

TEST(Solvers, AreListedAsTheirSchemaSays)
{
    const Folder folder;
    const std::string path = folder.path("solvers.json");
    std::ofstream(path) << vxmat({"solvers", "--json"}).out;
    EXPECT_EQ(vxtest::faultsBySchema("solvers.schema.json", {path}), "");
    std::ofstream(path) << R"({"solvers": [], "quantities": []})";
    EXPECT_NE(vxtest::faultsBySchema("solvers.schema.json", {path}), "");
}

} // namespace
