#include "CommaLocale.h"
#include "ReadingTesting.h"
#include "SampleMaterials.h"

#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <istream>
#include <streambuf>
#include <string>

namespace {

using Id = vxMat::PropertyId;
using testing::HasSubstr;
using vxDecks::Format;
using vxDecks::ReadDeck;

ReadDeck readSi(const std::string& text)
{
    return vxtest::readText(Format::Nastran, text, "SI");
}

double modulusOf(const std::string& field)
{
    return vxtest::numberOf(readSi("MAT1,1," + field + ",,.3"), Id::YoungsModulus);
}

std::string errorOf(const std::string& text)
{
    return vxtest::errorOf(Format::Nastran, text);
}

TEST(NastranReading, TakesTheExponentWithoutALetter)
{
    EXPECT_EQ(modulusOf("7.85-9"), 7.85e-9);
    EXPECT_EQ(modulusOf("2.1+11"), 2.1e11);
    EXPECT_EQ(modulusOf("-1.5-3"), -1.5e-3);
    EXPECT_EQ(modulusOf("+.3"), 0.3);
    EXPECT_EQ(modulusOf("2.1E+5"), 2.1e5);
    EXPECT_EQ(modulusOf("2.1D5"), 2.1e5);
    EXPECT_EQ(modulusOf("2.1d+05"), 2.1e5);
    EXPECT_EQ(modulusOf("210000"), 210000.0);
    EXPECT_EQ(modulusOf("1.-400"), 0.0);
}

TEST(NastranReading, RefusesAFieldThatIsNotANumberWithItsLineAndName)
{
    EXPECT_EQ(errorOf("$ comment\nMAT1,1,steel"), R"(line 2: the field MAT1 E has "STEEL", which is not a number)");
    for (const char* const text : {"1.2.3", "0x10", "nan", "inf", "1.+", "1,5+", "1.+400", "2.1 E5", "1e5e5", "--1."})
        EXPECT_THAT(errorOf("MAT1    1       " + std::string(text)), HasSubstr("which is not a number")) << text;
    EXPECT_EQ(errorOf("MAT4,5,54.\nMAT4,6,,x"), R"(line 2: the field MAT4 CP has "X", which is not a number)");
    EXPECT_EQ(errorOf("MAT1,1,1.\nMATS1,1,2,PLASTIC\nTABLES1,2\n+,0.,0.,x,1.,ENDT"),
              R"(line 3: the field TABLES1 has "X", which is not a number)");
}

TEST(NastranReading, RefusesAMaterialWithoutANumber)
{
    EXPECT_EQ(errorOf("MAT1,,1."), R"(line 1: "" is not the number of a material; MAT1 needs a whole number above 0)");
    for (const char* const number : {"0", "-1", "1.", "A", "99999999999"})
        EXPECT_THAT(errorOf("MAT1," + std::string(number)), HasSubstr("is not the number of a material")) << number;
    EXPECT_EQ(readSi("MAT1,4294967295,1.").materials.at(0).number, 4294967295U);
}

TEST(NastranReading, ReadsTheFieldsOfATableThatMaterialsUseOnly)
{
    EXPECT_EQ(errorOf("TABLES1,2\n+,0.,0.,x,1.,ENDT\nMAT1,1,1."), "");
}

/// Reads a solid whose hardening over plastic strain is a table with these fields behind its number.
std::vector<std::string> remarksOnTable(const std::string& points, const std::string& rest = {})
{
    const std::string solid = "MAT1,1,2.1+11,,.3\nMATS1,1,7,PLSTRN\nTABLES1,7\n+," + points + ",ENDT\n" + rest;
    return vxtest::remarkableLines(readSi(solid).report);
}

TEST(NastranReading, RefusesATableWithoutPoints)
{
    EXPECT_THAT(remarksOnTable(""), testing::Contains("1: lost: MATS1 TID: the table has no points"));
    EXPECT_THAT(remarksOnTable("-.1,-1.+8"), testing::Contains("1: lost: MATS1 TID: the table has no points"));
    EXPECT_THAT(remarksOnTable("0.,1.+8"), testing::Not(testing::Contains(HasSubstr("lost"))));
}

TEST(NastranReading, DoubtsATableOverPlasticStrainThatDoesNotAscendFromZero)
{
    EXPECT_THAT(remarksOnTable(".1,3.+8,.05,2.5+8"),
                testing::IsSupersetOf(
                    {"1: approximated: Plastic strain: the first plastic strain is 0.1, not 0; check the curve",
                     "1: line 2, MATS1: the plastic strains do not ascend; check the curve"}));
    EXPECT_THAT(remarksOnTable("0.,2.5+8,.1,3.+8"), testing::Not(testing::Contains(HasSubstr("check the curve"))));
}

TEST(NastranReading, TellsASecondTableWithTheSameNumber)
{
    EXPECT_THAT(remarksOnTable("0.,2.5+8,.1,3.+8", "TABLES1,7\n+,0.,1.+8,.1,2.+8,ENDT\n"),
                testing::Contains("1: lost: TABLES1: another entry has this number; that of line 5 is not taken"));
}

TEST(NastranReading, TellsNumbersThatOthersGive)
{
    const auto remarksOn = [](const std::string& text) { return vxtest::remarkableLines(readSi(text).report); };
    EXPECT_THAT(remarksOn("MAT1,1,2.6+5,1.+5,.3"),
                testing::Contains("1: lost: MAT1 G: the other numbers of the material give it within 1 %: "
                                  "E / (2 (1 + NU)); the number itself is not kept"));
    EXPECT_THAT(remarksOn("MAT1,1,2.6+5,1.005+5,.3"), testing::Contains(HasSubstr("lost: MAT1 G: the other numbers")));
    EXPECT_THAT(remarksOn("MAT1,1,2.6+5,1.2+5,.3"),
                testing::Contains(HasSubstr("lost: MAT1 G: the number contradicts")));
    EXPECT_THAT(remarksOn("MAT10,1,4.+9,1.+3,2.+3"),
                testing::Contains(HasSubstr("lost: MAT10 BULK: the other numbers")));
    EXPECT_THAT(remarksOn("MAT1,1,2.+11,,.3,7850.\nMAT4,1,54.,490.,7860."),
                testing::Contains(HasSubstr("lost: MAT4 RHO: the other numbers")));
    EXPECT_THAT(remarksOn("MAT1,1,2.+11,,.3,7850.\nMAT4,1,54.,490.,7850."),
                testing::Not(testing::Contains(HasSubstr("lost"))));
}

TEST(NastranReading, TellsFieldsOfPlasticityThatHaveNoEffect)
{
    const std::string table = "TABLES1,7\n+,0.,2.5+8,.1,3.+8,ENDT\n";
    const auto remarksOn = [&table](const std::string& fields) {
        return vxtest::remarkableLines(readSi("MAT1,1,2.1+11,,.3\nMATS1,1," + fields + "\n" + table).report);
    };
    EXPECT_THAT(remarksOn("7,PLSTRN,1.+9"), testing::Contains("1: lost: MATS1 H: the table replaces it"));
    EXPECT_THAT(remarksOn(",PLASTIC,1.+9,1,1,2.5+8,3.+8"),
                testing::Contains("1: lost: MATS1 LIMIT2: the catalogue has no quantity for it"));
}

TEST(NastranReading, TellsImpossibleValuesWithTheirLineAndEntry)
{
    const ReadDeck deck = readSi("$ a comment\nMAT1,1,-2.+11,,.5,-7850.\nMAT4,1,-54.,-490.,-7850.");
    EXPECT_THAT(toLines(deck.report),
                testing::IsSupersetOf(
                    {"1: line 2, MAT1: Density = -7850 is not possible; the value must be above 0",
                     "1: line 2, MAT1: Young's modulus = -2e+11 is not possible; the value must be above 0",
                     "1: line 2, MAT1: Poisson's ratio = 0.5 is not possible; the value must be above -1 and below 0.5",
                     "1: line 3, MAT4: Specific heat = -490 is not possible; the value must be above 0",
                     "1: line 3, MAT4: Thermal conductivity = -54 is not possible; the value must be 0 or above"}));
    EXPECT_EQ(vxDecks::countFindings(deck.report), 5U);
    double density = 0.0;
    EXPECT_TRUE(deck.materials.at(0).material->getPropertyValue(Id::Density, density));
    EXPECT_EQ(density, -7850.0) << "the values are read";
}

TEST(NastranReading, NeedsUnitsThatTheDeckOrTheUserGives)
{
    const std::string steel = "MAT1,1,2.1+5,,.3,7.85-9";
    EXPECT_THROW((void)vxtest::readText(Format::Nastran, steel), vxDecks::UnitsNeeded);
    try {
        (void)vxtest::readText(Format::Nastran, steel);
    } catch (const vxDecks::UnitsNeeded& needed) {
        EXPECT_EQ(needed.proposal(), "mm-t-s");
    }
    const auto declared = vxtest::readText(Format::Nastran, "$ Units: mm, t, s, K, A\n" + steel);
    EXPECT_EQ(vxtest::numberOf(declared, Id::YoungsModulus), 2.1e11);
    EXPECT_EQ(vxtest::numberOf(declared, Id::Density), 7850.0);
}

TEST(NastranReading, RefusesDecksThatAreJoinedFromSeveralUnitSystems)
{
    const std::string joined = "$ Units: mm, t, s, K, A\nMAT1,1,2.1+5\n$ Units: cm, g, s, K, A\nMAT1,2,2.1+12\n";
    for (const char* const chosen : {"", "SI"})
        EXPECT_THAT(vxtest::errorOf(Format::Nastran, joined, chosen),
                    HasSubstr("line 3: the deck declares the unit system cm-g-s here, but mm-t-s in a line before"));
}

TEST(NastranReading, IsRecognisedByTheEntriesOfAModel)
{
    const auto isNastran = [](const std::string& text) { return vxDecks::recognisedFormat(text) == Format::Nastran; };
    EXPECT_TRUE(isNastran("SOL 101\nCEND\nTITLE=x\n"));
    EXPECT_TRUE(isNastran("$ a\nbegin bulk\n"));
    EXPECT_TRUE(isNastran("GRID,1,,0.,0.,0."));
    EXPECT_TRUE(isNastran("MAT1*   1               2.1+5\n"));
    EXPECT_TRUE(isNastran("mat1\t1\t2.1+5\n"));
    for (const char* const text : {"", "$ a comment", "MAT1", "MAT1,steel", "MP,EX,1,2.1e5", "*MATERIAL, NAME=MAT1\n",
                                   "Material 1\n", "{\"MAT1\": 1}", "BEGIN"})
        EXPECT_FALSE(isNastran(text)) << text;
}

TEST(NastranReading, ReadsDecksInACommaLocale)
{
    const vxtest::CommaLocale locale;
    EXPECT_EQ(modulusOf("2.15+5"), 2.15e5);
    EXPECT_EQ(modulusOf("2.15E+5"), 2.15e5);
}

TEST(NastranReading, TakesLinesWithCarriageReturnsAndAByteOrderMark)
{
    const ReadDeck deck = readSi("\xEF\xBB\xBFMAT1,1,2.\r\nMAT1,2,3.\rMAT1,3,4.");
    ASSERT_EQ(deck.materials.size(), 3U);
    EXPECT_EQ(deck.materials[2].number, 3U);
}

TEST(NastranReading, TakesNamesThatAreNotUtf8)
{
    EXPECT_EQ(readSi("$ Material 1: St\xE4hl\nMAT1,1,2.").materials.at(0).name, "St\xC3\xA4hl");
    EXPECT_EQ(readSi("$ Material 1: \xE9\x92\xA2\nMAT1,1,2.").materials.at(0).name, "\xE9\x92\xA2");
}

TEST(NastranReading, ReadsATruncatedDeckUpToItsEnd)
{
    const std::string whole = vxtest::deckOf(Format::Nastran, vxtest::multilinear()->get(), "mm-t-s").text;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        try {
            EXPECT_LE(vxtest::readText(Format::Nastran, whole.substr(0, length), "SI").materials.size(), 1U);
        } catch (const vxDecks::DeckError& error) {
            EXPECT_THAT(error.what(), HasSubstr("line ")) << length;
        }
    }
}

TEST(NastranReading, RefusesBinaryContent)
{
    EXPECT_EQ(errorOf(std::string("MAT1,1,2.\n\0\1\2", 13)), "line 2: the content is binary");
}

/// A stream of the same line again and again.
class EndlessLines : public std::streambuf
{
public:
    EndlessLines(std::string line, std::size_t count) : m_line(std::move(line)), m_count(count) {}

protected:
    int_type underflow() override
    {
        if (m_count == 0)
            return traits_type::eof();
        --m_count;
        setg(m_line.data(), m_line.data(), m_line.data() + m_line.size());
        return traits_type::to_int_type(m_line.front());
    }

private:
    std::string m_line;
    std::size_t m_count;
};

ReadDeck readLines(const std::string& line, std::size_t count)
{
    EndlessLines lines(line, count);
    std::istream file(&lines);
    return vxDecks::readDeck(Format::Nastran, file, {vxUnits::UnitSystem::si()});
}

std::string errorOfLines(const std::string& line, std::size_t count)
{
    try {
        readLines(line, count);
    } catch (const vxDecks::DeckError& error) {
        return error.text();
    }
    return {};
}

TEST(NastranReading, CountsTheEntriesOfALargeModelAndKeepsNoneOfThem)
{
    const ReadDeck deck = readLines("GRID    1               0.      0.      0.\n+       5.\n", 200000);
    EXPECT_TRUE(deck.materials.empty());
    ASSERT_EQ(deck.foreign.size(), 1U);
    EXPECT_EQ(deck.foreign[0].count, 200000U);
}

TEST(NastranReading, BoundsWhatOneEntryAndOneMaterialMayHave)
{
    EXPECT_THAT(errorOfLines("MAT1    1       1.\n", 200), HasSubstr("the material 1 has more than 100 entries"));
    // 8 fields in a line: 200,000 fields are 25,000 lines
    EXPECT_EQ(errorOfLines("+       1.      1.      1.      1.      1.      1.      1.      1.\n", 30000), "");
    std::string table = "TABLES1,1\n";
    for (int i = 0; i < 26000; ++i)
        table += "+       1.      1.      1.      1.      1.      1.      1.      1.\n";
    EXPECT_THAT(errorOf(table), HasSubstr("the entry TABLES1 has more than 200000 fields"));
}

TEST(NastranReading, DropsTablesBeyondTheirBoundAndSaysSo)
{
    std::string table;
    for (int i = 0; i < 20000; ++i)
        table += "+       0.      0.      1.      1.      2.      2.      3.      3.\n";
    // 80,004 points in each; 2,000,000 are kept
    std::string text;
    for (int i = 0; i < 25; ++i)
        text += "TABLES1 " + std::to_string(100 + i) + "\n" + table;
    text += "TABLES1 8\n+       0.      0.      1.      1.      ENDT\nMAT1,1,1.\nMATS1,1,8,PLASTIC,,1,1,1.\n";
    EXPECT_THAT(vxtest::remarkableLines(readSi(text).report).back(),
                HasSubstr("the table 8 is not read, because the tables of the file have more than 2000000 points"));
}

TEST(NastranReading, LimitsTheNamesOfForeignEntries)
{
    std::string text;
    for (int i = 0; i < 500; ++i)
        text += "X" + std::to_string(i) + ",1\n";
    EXPECT_EQ(readSi(text).foreign.size(), 100U);
}

TEST(NastranReading, LimitsTheNotesAboutIncludedFiles)
{
    const ReadDeck deck = readLines("INCLUDE 'x.bdf'\n", 1000);
    EXPECT_LE(deck.report.notes.size(), 102U);
    EXPECT_THAT(deck.report.notes.at(0).text(), HasSubstr("x.bdf"));
}

TEST(NastranReading, CountsWhatItDoesNotTellOneByOne)
{
    std::string text;
    for (int i = 0; i < 150; ++i) {
        const std::string number = std::to_string(i);
        text += "INCLUDE 'x.bdf'\nMATX" + number + "," + std::to_string(i + 1) + "\nX" + number + ",1\n";
    }
    const auto lines = toLines(readSi(text).report);
    ASSERT_GT(lines.size(), 203U);
    EXPECT_EQ(lines[100], "The file includes files in 50 more lines, which are not read.");
    EXPECT_EQ(lines[201], "The catalogue has no quantities for 50 more kinds of entries.");
    EXPECT_EQ(lines[203], "50 more cards are not of materials.");
}

TEST(NastranReading, TellsThatAMaterialIsEmpty)
{
    EXPECT_THAT(toLines(readSi("MAT1,1").report), testing::Contains("1: no quantity is read; the material is empty"));
}

TEST(NastranReading, TakesATitleBehindSeveralWordsIfItHasANumber)
{
    const auto nameOf = [](const std::string& comment) { return readSi(comment + "\nMAT1,1,2.").materials.at(0).name; };
    EXPECT_EQ(nameOf("$ Written by the pre-processor Material 1 : Steel"), "Steel");
    EXPECT_EQ(nameOf("$ Properties of the material: see the table"), "1");
}

TEST(NastranReading, TellsTheFormOfWhatItConverts)
{
    const auto deck =
        vxtest::readText(Format::Nastran, vxtest::deckOf(Format::Nastran, vxtest::neoHooke()->get(), "mm-t-s").text);
    std::vector<std::string> lines = toLines(deck.report);
    EXPECT_THAT(lines,
                testing::Contains("Test: converted: Incompressibility Parameter D1: from 1/MPa to 1/Pa; from half "
                                  "the bulk modulus, 1 / D1"));
}

} // namespace
