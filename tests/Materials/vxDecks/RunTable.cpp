#include "RunTable.h"

#include "DataFile.h"
#include "MarkdownTable.h"
#include "TableAtEnd.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <vector>

namespace vxtest {

namespace {

constexpr const char* documentVariable = "VX_DECK_RUNS";
constexpr const char* heading = "## Runs of CalculiX\n";

constexpr const char* introduction = R"(
The program `decks_tests` writes this table; do not edit it. To update it:

    VX_DECK_RUNS=docs/decks.md build/default/bin/decks_tests

CalculiX 2.20 runs the decks of all materials of an analysis in one model, with two cubes of one element for each material: one with
the deck in the first unit system, one with the deck in the second. The table has the largest relative difference of the results
of both cubes, which the solver itself subtracts, and the largest deviation from a reference that does not use the deck: a curve of
`vxMaterial::constitutive` in percent of its largest value, or a formula.
Materials "of the corpus" are read from decks as people write them; those whose new decks are complete, and have a curve, are run.
Materials of the corpus that have plasticity or creep without linear elasticity are not: no solver computes them, and their new decks
refuse the model.

)";

std::vector<RunRow>& rows()
{
    static std::vector<RunRow> all;
    return all;
}

std::string counted(std::size_t number)
{
    return std::to_string(number);
}

/// Each material has a deck in each of two systems.
std::size_t decksOf(const RunRow& row)
{
    return 2 * (row.builtIn + row.ofCorpus + row.random);
}

/// Returns the columns that identify a row.
std::vector<std::string> beginning(const RunRow& row)
{
    return {row.analysis,        counted(row.builtIn),  counted(row.ofCorpus),
            counted(row.random), counted(decksOf(row)), row.systems};
}

std::string figure(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.1e", value);
    return text;
}

std::string tableText()
{
    if (rows().empty())
        return {};
    std::string text = tableHeader({"analysis", "built-in materials", "of the corpus", "random materials", "decks",
                                    "unit systems", "largest difference", "reference", "largest deviation, %"});
    std::size_t decks = 0;
    for (const RunRow& row : rows()) {
        std::vector<std::string> cells = beginning(row);
        cells.insert(cells.end(), {figure(row.difference), row.reference, percentText(row.deviation)});
        text += tableRow(cells);
        decks += decksOf(row);
    }
    return text + "\n" + counted(decks) + " decks are run.\n\n";
}

void writeInto(const std::string& path)
{
    const std::string document = readText(path);
    const std::size_t begin = document.find(heading);
    const std::size_t end = document.find("## ", begin + 3);
    ASSERT_NE(end, std::string::npos) << path << " has no such section, or no section after it: " << heading;
    std::ofstream(path, std::ios::binary)
        << document.substr(0, begin) << heading << introduction << tableText() << document.substr(end);
}

[[maybe_unused]] const ::testing::Environment* const tableAtEnd =
    ::testing::AddGlobalTestEnvironment(new TableAtEnd(documentVariable, tableText, writeInto));

} // namespace

void recordRun(const RunRow& row)
{
    rows().push_back(row);
    if (documentToWrite(documentVariable) != nullptr)
        return;
    std::string cells = tableRow(beginning(row));
    cells.pop_back(); // the end of the line
    EXPECT_NE(readText(VX_DECKS_DOCUMENT).find(cells), std::string::npos)
        << "docs/decks.md has no row " << cells << "; update it as the section \"Runs of CalculiX\" says";
}

} // namespace vxtest
