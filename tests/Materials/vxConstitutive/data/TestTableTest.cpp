#include "vxConstitutive/data/TestTable.h"

#include "CommaLocale.h"
#include "ConstitutiveTesting.h"

#include "vxConstitutive/data/UnitFactor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

using namespace vxConstitutive;
using vxtest::firstArgument;
using vxtest::has;

namespace {

TestTable read(const std::string& text, const TableOptions& options = {})
{
    return readTestTable(text, unitFactor, options);
}

/// Expects three rows of two numbers.
void expectNumbers(const TestTable& table)
{
    ASSERT_EQ(table.columns.size(), 2U);
    EXPECT_EQ(table.columns[0].cells, (std::vector<double>{0.0, 0.5, 1.25}));
    EXPECT_EQ(table.columns[1].cells, (std::vector<double>{0.0, 10.75, -2e3}));
}

TEST(TableFormat, SeparatorAndDecimalMarkAreRecognisedByTheNumbers)
{
    struct Case
    {
        const char* text;
        char separator;
        char decimalMark;
    };
    for (const Case& c :
         {Case{"0,0\n0.5,10.75\n1.25,-2e3\n", ',', '.'}, Case{"0;0\n0,5;10,75\n1,25;-2e3\n", ';', ','},
          Case{"0;0\n0.5;10.75\n1.25;-2e3\n", ';', '.'}, Case{"0\t0\n0,5\t10,75\n1,25\t-2e3\n", '\t', ','},
          Case{"0 0\n  0.5    10.75\n1.25\t-2e3  \n", ' ', '.'}, Case{"0 0\n0,5 10,75\n1,25 -2E+3", ' ', ','},
          Case{"| 0 | 0 |\n| 0.5 | 10.75 |\n| 1.25 | -2e3 |\n", '|', '.'},
          Case{"0, 0\n0.5, 10.75\n1.25, -2e3\n", ',', '.'},
          Case{"\"0\",\"0\"\n\"0,5\",\"10,75\"\n\"1,25\",\"-2e3\"\n", ',', ','}})
    {
        SCOPED_TRACE(c.text);
        const TestTable table = read(c.text);
        EXPECT_EQ(table.format.separator, c.separator);
        EXPECT_EQ(table.format.decimalMark, c.decimalMark);
        if (c.separator != '|')
            expectNumbers(table);
    }
}

TEST(TableFormat, AnEmptyCellBeforeTheFirstSeparatorIsAColumnWithoutNumbers)
{
    const TestTable table = read("| 0 | 0 |\n| 0.5 | 10.75 |\n");
    ASSERT_EQ(table.columns.size(), 3U);
    EXPECT_TRUE(std::isnan(table.columns[0].cells[1]));
    EXPECT_EQ(table.columns[2].cells[1], 10.75);
}

TEST(TableFormat, LineEndsOfAllSystemsAreRead)
{
    for (const char* text : {"0,0\r\n0.5,10.75\r\n1.25,-2e3\r\n", "0,0\r0.5,10.75\r1.25,-2e3"}) {
        const TestTable table = read(text);
        expectNumbers(table);
        EXPECT_EQ(table.lines, 3U);
    }
}

TEST(TableFormat, TheLocaleHasNoEffect)
{
    const vxtest::CommaLocale locale;
    expectNumbers(read("0,0\n0.5,10.75\n1.25,-2e3\n"));
    expectNumbers(read("0;0\n0,5;10,75\n1,25;-2e3\n"));
}

TEST(TableFormat, ACallerCanPrescribeTheFormat)
{
    TableOptions options;
    options.separator = ' ';
    options.decimalMark = ',';
    const TestTable table = read("1, 2\n3, 4\n", options);
    EXPECT_EQ(table.columns[0].cells, (std::vector<double>{1.0, 3.0}));
    options.separator = ';';
    EXPECT_TRUE(hasError(read("1, 2\n3, 4\n", options).findings));
}

TEST(TableFormat, CommasThatMayGroupThousandsAreDoubted)
{
    EXPECT_EQ(firstArgument(read("1,000;2,500\n3,000;4,250\n").findings, FindingId::CommaMayGroupThousands), "1,000");
    const TestTable table = read("1,000;2,5\n3,000;4,25\n");
    EXPECT_FALSE(has(table.findings, FindingId::CommaMayGroupThousands));
    EXPECT_TRUE(has(table.findings, FindingId::DecimalCommaUnderstood));
    EXPECT_FALSE(has(read("0,001;0,002\n").findings, FindingId::CommaMayGroupThousands));
}

TEST(TableHeader, NamesAndUnitsAreSeparated)
{
    struct Case
    {
        const char* cell;
        const char* name;
        const char* unit;
    };
    for (const Case& c :
         {Case{"Stress [MPa]", "Stress", "MPa"}, Case{"Stress (MPa)", "Stress", "MPa"},
          Case{"stress/MPa", "stress", "MPa"}, Case{"stress in MPa", "stress", "MPa"},
          Case{"Stress MPa", "Stress", "MPa"}, Case{"strain / mm/mm", "strain", "mm/mm"},
          Case{"Strain %", "Strain", "%"}, Case{"Strain [-]", "Strain", "-"},
          Case{"Stress (engineering)", "Stress (engineering)", ""}, Case{"Stress (true) [kPa]", "Stress (true)", "kPa"},
          Case{"Stress [furlong]", "Stress", "furlong"}, Case{"stress/strain", "stress/strain", ""},
          Case{"Run 1", "Run 1", ""}, Case{"Creep strain", "Creep strain", ""},
          Case{"Strain ustrain", "Strain", "ustrain"}})
    {
        const TestTable table = read(std::string("x;") + c.cell + "\n1;2\n");
        ASSERT_EQ(table.columns.size(), 2U) << c.cell;
        EXPECT_EQ(table.columns[1].name, c.name);
        EXPECT_EQ(table.columns[1].unit, c.unit) << c.cell;
        EXPECT_EQ(table.headerLine, 1U);
    }
}

TEST(TableHeader, TwoMarksInAQuotedNameAreOne)
{
    const TestTable table = readTestTable(
        "strain,\"stress, \"\"eng\"\", 1 [MPa]\",\"\"\"note\"\"\"\n0.1,2,3\n0.2,4,5\n", vxConstitutive::unitFactor);
    ASSERT_EQ(table.columns.size(), 3U);
    EXPECT_EQ(table.columns[1].name, "stress, \"eng\", 1");
    EXPECT_EQ(table.columns[1].unit, "MPa");
    EXPECT_EQ(table.columns[2].name, "\"note\"");
}

TEST(TableHeader, UnitsMayBeBelowTheNames)
{
    const TestTable brackets = read("Strain;Stress\n[%];[MPa]\n1;2\n");
    EXPECT_EQ(brackets.columns[0].name, "Strain");
    EXPECT_EQ(brackets.columns[0].unit, "%");
    EXPECT_EQ(brackets.columns[1].unit, "MPa");
    const TestTable bare = read("Strain,Stress\nmm/mm,N/mm\xC2\xB2\n0.1,2\n");
    EXPECT_EQ(bare.columns[1].name, "Stress");
    EXPECT_EQ(bare.columns[1].unit, "N/mm\xC2\xB2");
}

TEST(TableHeader, BlanksSeparateNamesButNotTheirUnits)
{
    const TestTable table = read("strain [-]  stress [MPa]\n0.1 2\n");
    ASSERT_EQ(table.columns.size(), 2U);
    EXPECT_EQ(table.columns[0].name, "strain");
    EXPECT_EQ(table.columns[1].unit, "MPa");
}

TEST(TableHeader, TextBeforeItIsLeftOut)
{
    const TestTable table = read("Report of test 7\n\nDate;2024-05-01\nWidth;10\nStrain [%];Stress [MPa]\n1;2\n3;4\n");
    EXPECT_EQ(table.headerLine, 5U);
    EXPECT_EQ(table.columns[1].name, "Stress");
    EXPECT_EQ(table.rows(), 2U);
    EXPECT_FALSE(has(table.findings, FindingId::LinesSkipped));
}

TEST(TableHeader, MayBeMissing)
{
    const TestTable table = read("1;2\n3;4\n");
    EXPECT_EQ(table.headerLine, 0U);
    EXPECT_TRUE(table.columns[0].name.empty());
}

TEST(TableRows, TextBetweenThemIsLeftOutAndCounted)
{
    const TestTable table = read("a,b\n1,2\nspecimen broke\n\n3,4\nend,of,test\n");
    EXPECT_EQ(table.rows(), 2U);
    EXPECT_EQ(firstArgument(table.findings, FindingId::LinesSkipped), "2");
    EXPECT_EQ(firstArgument(table.findings, FindingId::LinesSkipped, 1), "3");
}

TEST(TableRows, MissingAndInvalidCellsAreNotNumbers)
{
    const TestTable table = read("1,2,3\n4,,6\n7,x,9\n10,nan,12\n13,inf,1e999\n14,15,16\n");
    ASSERT_EQ(table.rows(), 5U);
    for (const std::size_t row : {1U, 2U, 3U})
        EXPECT_TRUE(std::isnan(table.columns[1].cells[row])) << row;
    EXPECT_EQ(firstArgument(table.findings, FindingId::CellsSkipped), "2");
    EXPECT_EQ(table.columns[2].cells.back(), 16.0);
}

TEST(TableRows, TestsSideBySideMayHaveDifferentLengths)
{
    const TestTable table = read("l;P;l;P\n1;2;3;4\n5;6;7;8\n;;9;10\n");
    ASSERT_EQ(table.columns.size(), 4U);
    EXPECT_TRUE(std::isnan(table.columns[0].cells[2]));
    EXPECT_EQ(table.columns[3].cells[2], 10.0);
}

TEST(TableRows, ATypographicMinusIsAMinus)
{
    EXPECT_EQ(read("1;\xE2\x88\x92"
                   "2.5\n")
                  .columns.at(1)
                  .cells.at(0),
              -2.5);
}

TEST(TableEncoding, MarksAndLatinLettersAreUnderstood)
{
    EXPECT_EQ(read("\xEF\xBB\xBFStrain;Stress\n1;2\n").columns.at(0).name, "Strain");
    EXPECT_EQ(read("Strain;Stress [N/mm\xB2]\n1;2\n").columns.at(1).unit, "N/mm\xC2\xB2");
    const std::string wide("\xFF\xFE"
                           "1\0;\0"
                           "2\0\n\0"
                           "3\0;\0"
                           "4\0",
                           16);
    EXPECT_EQ(read(wide).columns.at(1).cells, (std::vector<double>{2.0, 4.0}));
    const std::string bigEndian("\xFE\xFF\0"
                                "1\0;\0"
                                "2",
                                8);
    EXPECT_EQ(read(bigEndian).columns.at(1).cells, (std::vector<double>{2.0}));
    EXPECT_EQ(read("1\xC2\xA0;\xC2\xA0"
                   "2\n")
                  .columns.at(1)
                  .cells.at(0),
              2.0);
}

TEST(TableRefusal, ATextWithoutATableIsAnError)
{
    EXPECT_TRUE(has(read("").findings, FindingId::NoNumbers));
    EXPECT_TRUE(has(read("Dear all,\nplease find the data attached.\n").findings, FindingId::NoNumbers));
    EXPECT_TRUE(has(read("1\n2\n3\n").findings, FindingId::OneColumn));
    EXPECT_EQ(firstArgument(read(std::string("PK\x03\x04", 4)).findings, FindingId::NotText), "2");
    EXPECT_TRUE(has(read(std::string(100, '\0')).findings, FindingId::NotText));
    EXPECT_TRUE(read("1\n2\n3\n").columns.empty());
}

TEST(TableRobustness, HostileTextsTakeLittleTimeAndMemory)
{
    EXPECT_LE(read("1,2\n" + std::string(1000000, ',') + "\n").columns.size(), 64U);
    EXPECT_LE(read("1,2\n" + std::string(1000000, ' ') + "\n").columns.size(), 2U);
    EXPECT_TRUE(read(std::string(1000000, '"')).columns.empty());
    EXPECT_TRUE(read(std::string(1000000, '9')).columns.empty());
    std::string wide;
    for (int i = 0; i < 5000; ++i)
        wide += "1;";
    EXPECT_EQ(read(wide).columns.size(), 64U);
    EXPECT_EQ(read("\"1;2\n3;4\n").columns.size(), 2U);
}

TEST(TableRobustness, AMillionLinesAreRead)
{
    std::string text = "strain;stress [MPa]\n";
    for (int i = 0; i < 1000000; ++i)
        text += std::to_string(i % 1000) + ";" + std::to_string(i) + "\n";
    const TestTable table = read(text);
    EXPECT_EQ(table.rows(), 1000000U);
    EXPECT_EQ(table.columns[1].cells.back(), 999999.0);
}

} // namespace
