#include "DataFile.h"
#include "VxmatTesting.h"

#include "vxMaterial/json/JsonText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::shell;
using vxtest::vxmat;

const std::string deck =
    "*NODE\n1, 0., 0., 0.\n*MATERIAL, NAME=Frame steel\n*ELASTIC\n210000., 0.3\n*DENSITY\n7.85E-9\n"
    "*MATERIAL, NAME=Foam\n*DENSITY\n5.E-11\n*STEP\n";

TEST(ImportDeck, MakesAProjectOfTheMaterialsOfAModel)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    const std::string file = folder.file("model.txt", deck);
    const Outcome run = vxmat({"import", file, "--units", "mm-t-s", "-o", project});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "vxmat: note: Not of materials, and therefore not taken: *NODE (1), *STEP (1).\n"
                       "vxmat: note: The numbers of the deck are read in the unit system mm-t-s.\n"
                       "vxmat: note: Frame steel: carried: Isotropic elasticity, Poisson's ratio\n"
                       "vxmat: note: Frame steel: converted: Density: from t/mm^3 to kg/m^3\n"
                       "vxmat: note: Frame steel: converted: Young's modulus: from MPa to Pa\n"
                       "vxmat: note: Foam: converted: Density: from t/mm^3 to kg/m^3\n");
    const std::string shown = vxmat({"show", project}).out;
    EXPECT_THAT(shown, HasSubstr("Frame steel"));
    EXPECT_THAT(shown, HasSubstr("Foam"));
    const Outcome found = vxmat({"find", project, "E = 210 GPa and density = 7850 kg/m^3"});
    EXPECT_EQ(found.status, 0) << found.err;
    EXPECT_THAT(found.out, HasSubstr("Frame steel"));
}

TEST(ImportDeck, NeedsTheUnitsAndProposesThoseThatFit)
{
    const Folder folder;
    const std::string file = folder.file("model.inp", deck);
    const Outcome run = vxmat({"import", file, "-o", folder.path("p.vxmat")});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "vxmat: " + file +
                           ": the deck does not say in which units its numbers are; give the unit system; the numbers "
                           "look like mm-t-s; if they are, give --units mm-t-s\n");
    EXPECT_THAT(folder.names(), ElementsAre("model.inp"));
}

TEST(ImportDeck, IsAFindingIfTheNumbersLookLikeOtherUnits)
{
    const Folder folder;
    const std::string file = folder.file("model.inp", deck);
    const Outcome run = vxmat({"import", file, "--units", "SI", "-o", folder.path("p.vxmat")});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, HasSubstr("vxmat: " + file + ": the numbers look like mm-t-s, not SI; --units gives"));
}

TEST(ImportDeck, OfTheDeckThatTheProgramWritesGivesTheSameMaterialsAgain)
{
    const Folder folder;
    const std::string project = folder.path("p.vxmat");
    const std::string written = folder.path("d.inp");
    ASSERT_EQ(vxmat({"new", "Concrete", "Cast Iron=Iron", "-o", project}).status, 0);
    ASSERT_EQ(vxmat({"deck", project, "--solver", "calculix", "--units", "mm-t-s", "-o", written}).status, 0);
    ASSERT_EQ(vxmat({"import", written, "-o", folder.path("q.vxmat")}).status, 0);
    const Outcome diff = vxmat({"diff", project, folder.path("q.vxmat")});
    EXPECT_EQ(diff.out, "");
}

TEST(ImportDeck, NotesAMaterialInOtherUnitsThanTheDeckDeclaresButHasAFindingIfTheUserGivesThem)
{
    const Folder folder;
    const std::string text = "*MATERIAL, NAME=A\n*ELASTIC\n210000., 0.3\n*DENSITY\n7.85e-9\n"
                             "*MATERIAL, NAME=B\n*ELASTIC\n70000., 0.33\n*DENSITY\n2.7e-9\n"
                             "*MATERIAL, NAME=C\n*ELASTIC\n110000., 0.34\n*DENSITY\n8.9e-9\n"
                             "*MATERIAL, NAME=Odd\n*ELASTIC\n2.1e11, 0.3\n*DENSITY\n7850.\n";
    const std::string doubt =
        "4 Odd: the numbers look like SI, not mm-t-s; --units gives the unit system of its numbers\n";
    const std::string declared = folder.file("d.inp", "** Units: mm, t, s, K, A\n" + text);
    const Outcome noted = vxmat({"import", declared, "-o", folder.path("d.vxmat")});
    EXPECT_EQ(noted.status, 0) << noted.err;
    EXPECT_THAT(noted.err, HasSubstr("note: " + declared + ": " + doubt));
    const std::string bare = folder.file("b.inp", text);
    const Outcome found = vxmat({"import", bare, "--units", "mm-t-s", "-o", folder.path("b.vxmat")});
    EXPECT_EQ(found.status, 1);
    EXPECT_THAT(found.err, HasSubstr("vxmat: " + bare + ": " + doubt));
}

TEST(ImportDeck, IsAFindingIfTheUserMustGiveQuantities)
{
    const Folder folder;
    const std::string file = folder.file("a.inp", "*MATERIAL, NAME=A\n*ELASTIC, TYPE=ORTHO\n1.,2.,3.\n");
    const Outcome run = vxmat({"import", file, "--units", "SI", "-o", folder.path("p.vxmat")});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, HasSubstr("A: lost: *ELASTIC: TYPE=ORTHO is not isotropic\n"));
    EXPECT_THAT(folder.names(), ElementsAre("a.inp", "p.vxmat"));
}

TEST(ImportDeck, IsAFindingIfAValueIsImpossible)
{
    const Folder folder;
    const std::string file =
        folder.file("a.inp", "*MATERIAL, NAME=A\n*DENSITY\n-7850.\n*ELASTIC\n2.1e11, 0.5\n*PLASTIC\n"
                             "2.5e8, 0.\n3e8, 0.1\n3.1e8, 0.05\n");
    const Outcome run = vxmat({"import", file, "--units", "SI", "-o", folder.path("p.vxmat")});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, HasSubstr("note: A: line 2, *DENSITY: Density = -7850 is not possible; the value must be "
                                   "above 0\n"));
    EXPECT_THAT(run.err, HasSubstr("note: A: line 4, *ELASTIC: Poisson's ratio = 0.5 is not possible; the value must "
                                   "be above -1 and below 0.5\n"));
    EXPECT_THAT(run.err, HasSubstr("note: A: line 6, *PLASTIC: the plastic strains do not ascend; check the curve\n"));
    EXPECT_THAT(vxmat({"show", folder.path("p.vxmat")}).out, HasSubstr("-7850")) << "it is imported";
    const Outcome asJson = vxmat({"import", file, "--units", "SI", "--json", "--force", "-o", folder.path("p.vxmat")});
    EXPECT_EQ(asJson.status, 1);
    EXPECT_THAT(asJson.out, HasSubstr("\"card\" : \"*DENSITY\""));
    EXPECT_THAT(asJson.out, HasSubstr("\"line\" : 2"));
}

TEST(ImportDeck, IsAFindingIfTheCheckOfMaterialsFindsMoreThanImpossibleValues)
{
    const Folder folder;
    const std::string file = folder.file("a.inp", "*MATERIAL, NAME=A\n*DENSITY\n7850.\n*ELASTIC\n2.1e11\n"
                                                  "*MATERIAL, NAME=B\n*ELASTIC\n2.1e11, 0.6\n");
    const Outcome run = vxmat({"import", file, "--units", "SI", "-o", folder.path("p.vxmat")});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, HasSubstr("a.inp: 1 A: \"Poisson's ratio\" is 0; it must be from 0.001 to 0.499.\n"));
    EXPECT_THAT(run.err, HasSubstr("note: B: line 7, *ELASTIC: Poisson's ratio = 0.6"));
    EXPECT_THAT(run.err, testing::Not(HasSubstr("\"Poisson's ratio\" is 0.6"))) << "it is told once";
}

TEST(ImportDeck, PrintsItsReportAsJson)
{
    const Folder folder;
    const std::string file = folder.file("model.inp", deck);
    const Json::Value json =
        vxtest::vxmatJson({"import", file, "--units", "mm-t-s", "--json", "-o", folder.path("p.vxmat")});
    EXPECT_EQ(json["format"], "calculix");
    EXPECT_EQ(json["units"], "mm-t-s");
    EXPECT_EQ(json["materials"][0]["name"], "Frame steel");
    EXPECT_EQ(json["materials"][0]["quantities"][0]["outcome"], "converted");
    EXPECT_EQ(json["foreign"][1]["name"], "*STEP");
    EXPECT_EQ(json["foreign"][1]["line"], 11);
    EXPECT_EQ(vxmat({"import", file, "--units", "mm-t-s", "--json", "-o", "-"}).status, 2);
}

TEST(ImportDeck, PrintsAllItsFindingsAsJsonAndNoneOnStandardError)
{
    const Folder folder;
    const std::string file = folder.file("a.inp", "*MATERIAL, NAME=A\n*DENSITY\n7850.\n*ELASTIC\n2.1e11\n"
                                                  "*MATERIAL, NAME=B\n*DENSITY\n7850.\n*ELASTIC\n2.1e11, 0.3\n"
                                                  "*MATERIAL, NAME=Odd\n*DENSITY\n7.85e-9\n*ELASTIC\n210000., 0.3\n");
    const Outcome run = vxmat({"import", file, "--units", "SI", "--json", "-o", folder.path("p.vxmat")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "");
    const Json::Value json = vxjson::readJsonText(run.out).document;
    ASSERT_EQ(json["materials"][0]["findings"].size(), 1U);
    const Json::Value& finding = json["materials"][0]["findings"][0];
    EXPECT_EQ(finding["text"], R"("Poisson's ratio" is 0; it must be from 0.001 to 0.499.)");
    EXPECT_EQ(finding["key"], "nu");
    EXPECT_TRUE(finding["line"].isNull());
    EXPECT_TRUE(json["materials"][1]["findings"].empty());
    ASSERT_EQ(json["doubts"].size(), 1U);
    EXPECT_EQ(json["doubts"][0]["system"], "mm-t-s");
    EXPECT_EQ(json["doubts"][0]["materials"][0], "Odd");
    EXPECT_THAT(json["doubts"][0]["text"].asString(), HasSubstr("3 Odd: the numbers look like mm-t-s, not SI"));
}

TEST(ImportDeck, OfADocumentPrintsItsMessagesAsJson)
{
    const Folder folder;
    const std::string document = folder.path("d.json");
    ASSERT_EQ(vxmat({"export", "Plastic Example 2=7", "-o", document}).status, 0);
    const Outcome run = vxmat({"import", document, "--json", "-o", folder.path("p.vxmat")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, HasSubstr("\"messages\""));
    EXPECT_THAT(run.out, HasSubstr("documents carry no words"));
}

TEST(ImportDeck, IsNamedByCommandsThatReadNoDecks)
{
    const Folder folder;
    const std::string file = folder.file("model.inp", deck);
    for (const std::string command : {"show", "check", "cards"}) {
        const Outcome run = vxmat({command, file});
        EXPECT_EQ(run.status, 2) << command;
        EXPECT_EQ(run.err, "vxmat: " + file + ": this is a deck of CalculiX; 'vxmat import' makes a project of it\n");
    }
    EXPECT_THAT(vxmat({"deck", file, "--solver", "nastran"}).err,
                HasSubstr("this is a deck of CalculiX; 'vxmat import'"));
    const std::string dyna = folder.file("a.k", "*KEYWORD\n*MAT_ELASTIC\n");
    EXPECT_EQ(vxmat({"show", dyna}).err,
              "vxmat: " + dyna + ": this is a deck of LS-DYNA, which can be written, but not read\n");
}

TEST(ImportDeck, ReadsStandardInput)
{
    const Outcome run = vxmat({"import", "-", "--units", "mm-t-s", "-o", "-"}, deck);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("Frame steel"));
}

TEST(ImportDeck, EndsReadingAnEndlessInputThatIsNoDeck)
{
    EXPECT_EQ(shell("\"$VXMAT\" import - -o - </dev/zero").status, 2);
    EXPECT_EQ(shell("yes nonsense | \"$VXMAT\" import - -o -").status, 2);
}

TEST(ImportDeck, NamesTheLineThatCannotBeRead)
{
    const Folder folder;
    const std::string file = folder.file("a.inp", "*MATERIAL, NAME=A\n*DENSITY\n7,85x\n");
    const Outcome run = vxmat({"import", file, "--units", "SI", "-o", folder.path("p.vxmat")});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "vxmat: " + file + ": line 3: \"85x\" is not a number\n");
}

TEST(ImportDeck, RefusesDecksWithoutMaterialsAndFormatsThatAreOnlyWritten)
{
    const Folder folder;
    const std::string mesh = folder.file("mesh.inp", "*NODE\n1, 0., 0., 0.\n");
    const Outcome empty = vxmat({"import", mesh, "-o", folder.path("p.vxmat")});
    EXPECT_EQ(empty.status, 2);
    EXPECT_THAT(empty.err, HasSubstr("vxmat: " + mesh + ": the deck has no materials; no project is written\n"));
    const std::string dyna = folder.file("a.k", "*KEYWORD\n*MAT_ELASTIC\n");
    const Outcome other = vxmat({"import", dyna, "--units", "SI", "-o", folder.path("p.vxmat")});
    EXPECT_EQ(other.status, 2);
    EXPECT_EQ(other.err, "vxmat: " + dyna + ": decks of LS-DYNA can be written, but not read\n");
    EXPECT_THAT(folder.names(), ElementsAre("a.k", "mesh.inp"));
}

TEST(ImportDeck, TakesACommentOfADocumentForNoKeyword)
{
    const Outcome run = vxmat({"import", "-", "-o", "-"}, "/* the\n*Density\n*/ {\"proj_type\": 2, \"material\": []}");
    EXPECT_THAT(run.err, testing::Not(HasSubstr("deck")));
    EXPECT_THAT(run.out, HasSubstr("{"));
}

TEST(ImportDeck, DoesNotReplaceAProjectUnlessItIsForced)
{
    const Folder folder;
    const std::string file = folder.file("model.inp", deck);
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"new", "Air", "-o", project}).status, 0);
    EXPECT_EQ(vxmat({"import", file, "--units", "mm-t-s", "-o", project}).status, 2);
    EXPECT_EQ(vxmat({"import", file, "--units", "mm-t-s", "--force", "-o", project}).status, 0);
    EXPECT_EQ(vxmat({"import", file, "--units", "mm-t-s", "--force", "-o", file}).status, 2);
    EXPECT_EQ(vxtest::readText(file), deck);
}

} // namespace
