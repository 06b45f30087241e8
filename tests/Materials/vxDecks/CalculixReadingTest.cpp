#include "CommaLocale.h"
#include "ReadingTesting.h"

#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

using Id = vxMat::PropertyId;
using vxDecks::Format;
using vxDecks::ReadDeck;
using vxtest::errorOf;
using vxtest::numberOf;
using vxtest::readText;

const std::string steel = "*MATERIAL, NAME=Steel\n*ELASTIC\n210000., 0.3\n*DENSITY\n7.85E-9\n";

/// Returns the proposal of the error that the units are needed; "no error" if there is none.
std::string proposalFor(const std::string& text)
{
    try {
        readText(Format::Calculix, text);
    } catch (const vxDecks::UnitsNeeded& error) {
        return error.proposal();
    }
    return "no error";
}

TEST(CalculixReading, NeedsUnitsAndProposesThoseThatFit)
{
    EXPECT_EQ(proposalFor(steel), "mm-t-s");
    EXPECT_EQ(proposalFor("*MATERIAL, NAME=Steel\n*ELASTIC\n2.1e11, 0.3\n*DENSITY\n7850.\n"), "SI");
    EXPECT_EQ(proposalFor("*MATERIAL, NAME=A\n*EXPANSION\n1.2e-5\n"), "");
    EXPECT_EQ(
        errorOf(Format::Calculix, steel, ""),
        "the deck does not say in which units its numbers are; give the unit system; the numbers look like mm-t-s");
}

TEST(CalculixReading, NeedsNoUnitsForDecksWithoutMaterials)
{
    EXPECT_TRUE(readText(Format::Calculix, "*NODE\n1, 0., 0., 0.\n").materials.empty());
    EXPECT_TRUE(readText(Format::Calculix, "").materials.empty());
}

TEST(CalculixReading, TakesTheUnitsThatTheDeckDeclares)
{
    const std::string declared = "** a deck\n** Units: mm, t, s, K, A\n" + steel;
    const ReadDeck deck = readText(Format::Calculix, declared);
    EXPECT_EQ(deck.report.units, "mm-t-s");
    EXPECT_DOUBLE_EQ(numberOf(deck, Id::YoungsModulus), 2.1e11);
    EXPECT_EQ(vxDecks::declaredUnits(Format::Calculix, declared)->text(), "mm-t-s");
}

TEST(CalculixReading, TakesDeclaredBaseUnitsOfNoBuiltInSystem)
{
    const ReadDeck deck = readText(Format::Calculix, "** units: cm, g, us, K, A\n*MATERIAL, NAME=A\n*DENSITY\n7.85\n");
    EXPECT_DOUBLE_EQ(numberOf(deck, Id::Density), 7850.0);
}

TEST(CalculixReading, TakesNoOtherCommentAsUnits)
{
    for (const char* const comment : {"** Units: mm", "** Units: N, mm, MPa", "** Units: mm, t, s, K, A, and more",
                                      "** The units: mm, t, s, K, A", "** Units:", "* Units: mm, t, s, K, A"})
        EXPECT_FALSE(vxDecks::declaredUnits(Format::Calculix, std::string(comment) + "\n" + steel)) << comment;
}

TEST(CalculixReading, SkipsTheMarkOfUtf8)
{
    const std::string mark = "\xEF\xBB\xBF";
    EXPECT_EQ(readText(Format::Calculix, mark + steel, "SI").materials.size(), 1U);
    EXPECT_EQ(vxDecks::recognisedFormat(mark + steel), Format::Calculix);
    EXPECT_EQ(readText(Format::Calculix, mark + "** Units: mm, t, s, K, A\n" + steel).report.units, "mm-t-s");
}

TEST(CalculixReading, PrefersTheUnitsOfTheUserAndSaysSo)
{
    const ReadDeck deck = readText(Format::Calculix, "** Units: m, kg, s, K, A\n" + steel, "mm-t-s");
    EXPECT_DOUBLE_EQ(numberOf(deck, Id::YoungsModulus), 2.1e11);
    EXPECT_EQ(deck.report.notes.at(0).text(),
              "The deck declares the unit system SI, but is read in mm-t-s, which was chosen.");
}

TEST(CalculixReading, RefusesDecksThatAreJoinedFromSeveralUnitSystems)
{
    const std::string inMm = "** Units: mm, t, s, K, A\n" + steel;
    const std::string inSi = "** Units: m, kg, s, K, A\n*MATERIAL, NAME=B\n*DENSITY\n7850.\n";
    for (const char* const chosen : {"", "mm-t-s", "SI", "cm-g-s"})
        EXPECT_EQ(errorOf(Format::Calculix, inMm + inSi, chosen),
                  "line 7: the deck declares the unit system SI here, but mm-t-s in a line before; divide it into "
                  "decks of one "
                  "unit system each");
    EXPECT_EQ(readText(Format::Calculix, inMm + inMm).materials.size(), 2U);
}

/// A deck of materials that was copied into a model, whose first lines declare nothing.
TEST(CalculixReading, TellsUnitsThatAreDeclaredFurtherDown)
{
    std::string deck = "*NODE\n";
    for (int i = 0; i < 60; ++i)
        deck += "1, 0., 0., 0.\n";
    deck += "** Units: mm, t, s, K, A\n" + steel;
    EXPECT_THROW(readText(Format::Calculix, deck), vxDecks::UnitsNeeded);
    const auto noteWith = [&deck](const char* units) {
        return readText(Format::Calculix, deck, units).report.notes.back().text();
    };
    EXPECT_EQ(noteWith("mm-t-s"), "The deck declares the unit system mm-t-s.");
    EXPECT_EQ(noteWith("SI"), "The deck declares the unit system mm-t-s, but is read in SI, which was chosen.");
    EXPECT_THAT(errorOf(Format::Calculix, deck + "** Units: m, kg, s, K, A\n"), testing::StartsWith("line 68: "));
}

TEST(CalculixReading, ReportsUnitsThatDiffer)
{
    const ReadDeck deck = readText(Format::Calculix, steel, "mm-t-s");
    const auto lines = toLines(deck.report);
    EXPECT_EQ(lines.at(1), "Steel: carried: Isotropic elasticity, Poisson's ratio");
    EXPECT_EQ(lines.at(2), "Steel: converted: Density: from t/mm^3 to kg/m^3");
    EXPECT_EQ(lines.at(3), "Steel: converted: Young's modulus: from MPa to Pa");
    EXPECT_EQ(toJson(deck.report)["materials"][0]["quantities"][0]["card"].asString(), "*DENSITY");
}

/// CalculiX 2.20 computes with these numbers.
TEST(CalculixReading, TakesExponentsWithoutALetterAsTheSolverDoes)
{
    const auto density = [](const std::string& number) {
        return numberOf(readText(Format::Calculix, "*MATERIAL, NAME=A\n*DENSITY\n" + number + "\n", "SI"), Id::Density);
    };
    EXPECT_EQ(density("7.85+3"), 7850.0);
    EXPECT_EQ(density("785000-02"), 7850.0);
    EXPECT_EQ(density("+.785+4,"), 7850.0);
    EXPECT_EQ(density(" 7.85D+3 "), 7850.0);
    EXPECT_EQ(errorOf(Format::Calculix, "*MATERIAL, NAME=A\n*DENSITY\n7.85+\n"), R"(line 3: "7.85+" is not a number)");
}

TEST(CalculixReading, NamesTheLineOfTextThatIsNoNumber)
{
    EXPECT_EQ(errorOf(Format::Calculix, "*MATERIAL, NAME=A\n** comment\n*ELASTIC\n2.1e11, abc\n"),
              "line 4: \"abc\" is not a number");
    for (const char* const number :
         {"1e999", "nan", "inf", "0x10", "1.2.3", "2.1e", "--1", "1 2", "1,5,2,x", "2.1\xFF"})
        EXPECT_NE(errorOf(Format::Calculix, std::string("*MATERIAL, NAME=A\n*DENSITY\n") + number + "\n"), "")
            << number;
}

TEST(CalculixReading, NamesTheCardThatHasTooFewNumbers)
{
    EXPECT_EQ(errorOf(Format::Calculix, "*MATERIAL, NAME=A\n*ELASTIC\n*DENSITY\n7850.\n"),
              "line 2: *ELASTIC has too few numbers; the least is 1");
    EXPECT_EQ(errorOf(Format::Calculix, "*MATERIAL, NAME=A\n*CREEP\n1.e-10\n"),
              "line 2: *CREEP has too few numbers; the least is 2");
    EXPECT_EQ(errorOf(Format::Calculix, "*MATERIAL, NAME=A\n*PLASTIC\n, 0.\n"),
              "line 2: *PLASTIC has too few numbers; the least is 2");
}

TEST(CalculixReading, ReadsNothingOfTheNumbersOfForeignCards)
{
    const ReadDeck deck =
        readText(Format::Calculix, "*NODE\nabc, def\n*ELASTIC\nx\n" + steel + "*STEP\n*ELASTIC\ny\n", "SI");
    EXPECT_DOUBLE_EQ(numberOf(deck, Id::YoungsModulus), 210000.0);
    ASSERT_EQ(deck.foreign.size(), 3U);
    EXPECT_EQ(deck.foreign[1].name, "*ELASTIC");
    EXPECT_EQ(deck.foreign[1].count, 2U);
    EXPECT_EQ(deck.foreign[1].line, 3U);
}

TEST(CalculixReading, KeepsTheOrderAndTheNamesOfMaterials)
{
    const ReadDeck deck =
        readText(Format::Calculix, "*MATERIAL, NAME=b\n*MATERIAL, NAME=\"a, b\"\n*MATERIAL, NAME=b\n", "SI");
    ASSERT_EQ(deck.materials.size(), 3U);
    EXPECT_EQ(deck.materials[0].name, "b");
    EXPECT_EQ(deck.materials[1].name, "a, b");
    EXPECT_EQ(deck.materials[2].name, "b");
    EXPECT_FALSE(deck.materials[0].number);
}

TEST(CalculixReading, TakesTheCommentAboveAMaterialOfWhichItsNameIsMade)
{
    const auto nameOf = [](const std::string& text) {
        return readText(Format::Calculix, text, "SI").materials.at(0).name;
    };
    EXPECT_EQ(nameOf("** Steel 1.0038\n*MATERIAL, NAME=Steel_1_0038\n"), "Steel 1.0038");
    EXPECT_EQ(nameOf("** Steel 1.0038\n*MATERIAL, NAME=Steel_1_0038_12\n"), "Steel 1.0038");
    EXPECT_EQ(nameOf("** 316L\n*MATERIAL, NAME=M_316L\n"), "316L");
    EXPECT_EQ(nameOf("** Materials\n*MATERIAL, NAME=Steel\n"), "Steel");
    EXPECT_EQ(nameOf("** Steel 1.0038\n*NODE\n*MATERIAL, NAME=Steel_1_0038\n"), "Steel_1_0038");
    EXPECT_EQ(nameOf("**\n*MATERIAL, NAME=M\n"), "M");
}

TEST(CalculixReading, TellsTheTemperatureThatItDoesNotKeep)
{
    const auto notesOf = [](const std::string& cards) {
        return toLines(readText(Format::Calculix, "*MATERIAL, NAME=A\n" + cards, "SI").report).at(1);
    };
    EXPECT_EQ(notesOf("*ELASTIC\n2.1e11, .3, 20\n*CONDUCTIVITY\n45., 20.\n"),
              "A: *CONDUCTIVITY, *ELASTIC: values at temperature 20; the temperature is not kept");
    EXPECT_EQ(notesOf("*DENSITY\n7,85e-9\n"),
              "A: *DENSITY: values at temperature 8.5e-08; the temperature is not kept");
    EXPECT_EQ(notesOf("*MAGNETIC PERMEABILITY\n1.2e-6, 20.\n"),
              "A: *MAGNETIC PERMEABILITY: values at temperature 20; the temperature is not kept");
}

TEST(CalculixReading, TellsThatAMaterialIsEmpty)
{
    const ReadDeck deck = readText(Format::Calculix, "*MATERIAL, NAME=A\n" + steel, "SI");
    EXPECT_EQ(toLines(deck.report).at(1), "A: no quantity is read; the material is empty");
    EXPECT_TRUE(deck.report.materials.at(1).notes.empty());
}

TEST(CalculixReading, CountsWhatItDoesNotTellOneByOne)
{
    std::string text;
    for (int i = 0; i < 150; ++i)
        text += "*INCLUDE, INPUT=x\n*FOREIGN" + std::to_string(i) + "\n";
    const auto lines = toLines(readText(Format::Calculix, text, "SI").report);
    EXPECT_EQ(lines.at(100), "The file includes files in 50 more lines, which are not read.");
    EXPECT_EQ(lines.at(102), "50 more cards are not of materials.");
}

TEST(CalculixReading, TakesTheHeatCapacityOfItsOwnCardRatherThanOfTheFluid)
{
    const ReadDeck deck =
        readText(Format::Calculix, "*MATERIAL, NAME=A\n*FLUID CONSTANTS\n1., 2.\n*SPECIFIC HEAT\n3.\n", "SI");
    EXPECT_DOUBLE_EQ(numberOf(deck, Id::SpecificHeat), 3.0);
    EXPECT_DOUBLE_EQ(numberOf(deck, Id::DynamicViscosity), 2.0);
}

TEST(CalculixReading, TellsAnotherSpecificHeatOfTheFluid)
{
    const auto remarks = [](const char* heat) {
        return vxtest::remarkableLines(
            readText(Format::Calculix,
                     std::string("*MATERIAL, NAME=A\n*FLUID CONSTANTS\n1., 2.\n*SPECIFIC HEAT\n") + heat + "\n", "SI")
                .report);
    };
    EXPECT_THAT(remarks("3."), testing::Contains("A: lost: *FLUID CONSTANTS: its specific heat differs from that of "
                                                 "*SPECIFIC HEAT, which is taken"));
    EXPECT_THAT(remarks("1."), testing::Not(testing::Contains(testing::HasSubstr("lost"))));
}

TEST(CalculixReading, TellsParametersThatItDoesNotEvaluate)
{
    const ReadDeck deck =
        readText(Format::Calculix,
                 "*MATERIAL, NAME=A\n*ELASTIC, type=iso\n2.e11, .3\n*PLASTIC, SCALE STRESS=2.\n1.e8, 0.\n", "SI");
    EXPECT_THAT(vxtest::remarkableLines(deck.report),
                testing::Contains("A: lost: *PLASTIC: the parameter SCALESTRESS is not evaluated; check the numbers"));
    EXPECT_EQ(countRefused(deck.report), 1U);
    EXPECT_DOUBLE_EQ(numberOf(deck, Id::PlasticInitialYieldStress), 1e8);
}

TEST(CalculixReading, TellsImpossibleValuesWithTheirLineAndCard)
{
    const auto findings = [](const std::string& cards) {
        const ReadDeck deck = readText(Format::Calculix, "*MATERIAL, NAME=A\n" + cards, "mm-t-s");
        std::vector<std::string> texts;
        for (const vxDecks::Finding& finding : deck.report.materials.at(0).findings)
            texts.push_back(textOf(finding));
        return texts;
    };
    using testing::ElementsAre;
    EXPECT_THAT(findings("*DENSITY\n-7.85e-9\n"),
                ElementsAre("line 2, *DENSITY: Density = -7.85e-09 is not possible; the value must be above 0"));
    for (const char* const ratio : {"0.5", "-1.", "0.7"})
        EXPECT_THAT(findings(std::string("*DENSITY\n1.\n*ELASTIC\n2., ") + ratio + "\n"),
                    ElementsAre(testing::StartsWith("line 4, *ELASTIC: Poisson's ratio = ")))
            << ratio;
    EXPECT_THAT(findings("*ELASTIC\n2., .3\n*HYPERELASTIC, NEO HOOKE\n1., .1\n"),
                ElementsAre("line 4, *HYPERELASTIC: \"Isotropic elasticity\" and \"Neo-Hookean\" exclude each other; "
                            "remove one of them"));
    EXPECT_THAT(findings("*PLASTIC\n1., 0.\n2., .2\n3., .1\n"),
                ElementsAre("line 2, *PLASTIC: the plastic strains do not ascend; check the curve"));
    EXPECT_THAT(findings("*HYPERELASTIC, MOONEY-RIVLIN\n1., -2., .1\n"),
                ElementsAre("line 2, *HYPERELASTIC: C10 + C01 = -1 is not possible; the value must be above 0"));
    EXPECT_THAT(findings("*CREEP\n1.e-20, -5., -1.\n"),
                ElementsAre("line 2, *CREEP: Creep Modulus N = -5 is not possible; the value must be above 0",
                            "line 2, *CREEP: Creep Modulus M = -1 is not possible; the value must be above -1"));
    EXPECT_THAT(findings("*DENSITY\n7.85e-9\n*ELASTIC\n2.e5, 0.\n*PLASTIC\n250., 0.\n300., .1\n*CONDUCTIVITY\n0.\n"),
                testing::IsEmpty());
}

TEST(CalculixReading, TellsTheFindingsOfManyMaterialsByQuantity)
{
    std::string text;
    for (int i = 0; i < 12; ++i)
        text += "*MATERIAL, NAME=A\n*DENSITY\n-1.\n*ELASTIC\n2.e5, 0.5\n";
    EXPECT_THAT(toLines(readText(Format::Calculix, text, "SI").report),
                testing::IsSupersetOf(
                    {"12 materials (A, A, A, ...): for example A: line 2, *DENSITY: Density = -1 is not possible; the "
                     "value must be above 0",
                     "12 materials (A, A, A, ...): for example A: line 4, *ELASTIC: Poisson's ratio = 0.5 is not "
                     "possible; the value must be above -1 and below 0.5"}));
}

TEST(CalculixReading, HasItsFindingsInJson)
{
    const Json::Value json =
        toJson(readText(Format::Calculix, "*MATERIAL, NAME=A\n*DENSITY\n-1.\n", "SI").report)["materials"][0];
    ASSERT_EQ(json["findings"].size(), 1U);
    EXPECT_EQ(json["findings"][0]["line"].asUInt(), 2U);
    EXPECT_EQ(json["findings"][0]["card"], "*DENSITY");
    EXPECT_EQ(json["findings"][0]["key"], "rho");
    EXPECT_EQ(json["findings"][0]["id"], "decks.value-outside");
    EXPECT_EQ(json["findings"][0]["text"], "Density = -1 is not possible; the value must be above 0");
}

TEST(CalculixReading, RefusesPermeabilityAlongACurve)
{
    const ReadDeck deck = readText(Format::Calculix, "*MATERIAL, NAME=A\n*MAGNETIC PERMEABILITY, NONLINEAR\n", "SI");
    EXPECT_EQ(countRefused(deck.report), 1U);
}

TEST(CalculixReading, TakesTheModulusAtOnceOfAnIncompressibleSolid)
{
    // G at once is G of long term over 1 - g, and E = 3 G
    const ReadDeck deck = readText(
        Format::Calculix, "*MATERIAL, NAME=A\n*ELASTIC\n3.e6, 0.5\n*VISCOELASTIC, TIME=PRONY\n0.5, 0., 2.\n", "SI");
    EXPECT_DOUBLE_EQ(numberOf(deck, Id::YoungsModulus), 6e6);
    EXPECT_DOUBLE_EQ(numberOf(deck, Id::PoissonsRatio), 0.5);
    EXPECT_DOUBLE_EQ(numberOf(deck, Id::ShearRelaxationModulus), 0.5);
    EXPECT_EQ(countRefused(deck.report), 0U);
}

TEST(CalculixReading, ReportsNumbersThatTheUnitOfTheCatalogueCannotHold)
{
    const ReadDeck deck = readText(Format::Calculix, "*MATERIAL, NAME=A\n*DENSITY\n1e300\n", "mm-t-s");
    EXPECT_FALSE(deck.materials.at(0).material->hasProperty(Id::Density));
    EXPECT_EQ(countRefused(deck.report), 1U);
}

TEST(CalculixReading, ReadsDecimalPointsInALocaleWithCommas)
{
    const vxtest::CommaLocale locale;
    const ReadDeck deck =
        readText(Format::Calculix, "** Units: mm, t, s, K, A\n*MATERIAL, NAME=A\n*ELASTIC\n2.5D+5,.25\n");
    EXPECT_DOUBLE_EQ(numberOf(deck, Id::YoungsModulus), 2.5e11);
    EXPECT_DOUBLE_EQ(numberOf(deck, Id::PoissonsRatio), 0.25);
}

TEST(DeckReading, RefusesFormatsThatAreOnlyWritten)
{
    for (const Format format : {Format::Apdl, Format::LsDyna, Format::Elmer}) {
        EXPECT_FALSE(vxDecks::canRead(format));
        EXPECT_EQ(errorOf(format, "*KEYWORD\n"),
                  std::string("decks of ") + vxDecks::infoOf(format).title + " can be written, but not read");
    }
    EXPECT_TRUE(vxDecks::canRead(Format::Calculix));
}

TEST(DeckReading, TranslatesTheLineAndTheReasonOfAnError)
{
    try {
        readText(Format::Calculix, "*MATERIAL, NAME=A\n*ELASTIC\nx\n", "SI");
        FAIL();
    } catch (const vxDecks::DeckError& error) {
        const auto german = [](const char*, const char* english) {
            const std::string text = english;
            if (text == "line %1: %2")
                return std::string("Zeile %1: %2");
            return text == R"("%1" is not a number)" ? std::string(R"("%1" ist keine Zahl)") : text;
        };
        EXPECT_EQ(error.text(german), "Zeile 3: \"x\" ist keine Zahl");
        EXPECT_EQ(error.line(), 3U);
    }
}

TEST(FindingsBesides, LeaveOutTheValueAndTheExclusionThatTheReportTellsAndKeepWhatAModelLacks)
{
    const ReadDeck deck = readText(
        Format::Calculix, "*MATERIAL, NAME=Both\n*ELASTIC\n2.1e11, 0.6\n*HYPERELASTIC, NEO HOOKE\n1e6, 1e-9\n", "SI");
    deck.materials[0].material->removeProperty(
        deck.materials[0].material->findProperty(Id::IncompressibilityParameterD1));
    ASSERT_EQ(deck.report.materials[0].findings.size(), 2U) << "the ratio, and the second model";
    std::vector<std::string> texts;
    for (const auto& one : vxDecks::findingsBesides(deck.report.materials[0], *deck.materials[0].material))
        texts.push_back(vxMat::toText(one));
    EXPECT_THAT(texts,
                testing::ElementsAre(
                    "\"Neo-Hookean\" needs \"Incompressibility Parameter D1\", which the material does not have."));
}

TEST(FindingsBesides, AreNoneForAMaterialWithoutQuantities)
{
    const ReadDeck deck = readText(Format::Calculix, "*MATERIAL, NAME=Empty\n*DAMPING, ALPHA=1.\n", "SI");
    EXPECT_TRUE(vxDecks::findingsBesides(deck.report.materials[0], *deck.materials[0].material).empty());
}

} // namespace
