#include "ReadingTesting.h"

#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/Quantity.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

/// Decks as people write them. Beside each one stands a text by hand of what reading must give:
///
///     units mm-t-s               the unit system that the user gives, or "declared"
///     material Steel             each material, and its quantities in the order of the catalogue
///     rho = 7850
///     IsoElastic                 a switch
///     report                     the lines of the report, without those that only tell that a quantity is taken
namespace {

namespace fs = std::filesystem;

constexpr double tolerance = 1e-14;

std::string contentOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    EXPECT_TRUE(file && !content.str().empty()) << path;
    return content.str();
}

/// A text by hand.
struct Expected
{
    std::string units;
    std::vector<std::string> quantities; ///< lines of materials and quantities
    std::vector<std::string> report;
};

Expected readExpected(const fs::path& path)
{
    Expected expected;
    std::istringstream file(contentOf(path));
    std::string line;
    std::getline(file, line);
    expected.units = line.substr(std::string("units ").size());
    while (std::getline(file, line) && line != "report")
        expected.quantities.push_back(line);
    while (std::getline(file, line))
        expected.report.push_back(line);
    return expected;
}

std::string textOf(const vxMat::MaterialProperty& property)
{
    switch (vxMat::findPropertyRecord(property.id)->kind) {
    case vxMat::ValueKind::ModelSwitch:
        return property.key;
    case vxMat::ValueKind::Word:
        return property.key + " = " + property.text;
    case vxMat::ValueKind::NumberList:
        return property.key + " = " + vxMat::formatNumberList(property.values);
    default:
        return property.key + " = " + vxMat::formatNumber(property.value);
    }
}

std::vector<std::string> quantitiesOf(const vxDecks::ReadDeck& deck)
{
    std::vector<std::string> lines;
    for (const vxDecks::ReadMaterial& material : deck.materials) {
        EXPECT_EQ(material.material->name, material.name);
        lines.push_back("material " + material.name);
        for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(*material.material)) {
            EXPECT_EQ(slot, property->id);
            lines.push_back(textOf(*property));
        }
    }
    return lines;
}

/// Numbers by hand are exact in decimal; 0 may be the difference of two numbers near 1.
bool areNear(double one, double other)
{
    return std::abs(one - other) <= (other == 0.0 ? tolerance : tolerance * std::abs(other));
}

/// Returns whether two lines are equal, or have the same key and nearly the same numbers.
bool areEqual(const std::string& line, const std::string& expected)
{
    const std::size_t equals = expected.find(" = ");
    if (line == expected || equals == std::string::npos || line.substr(0, equals) != expected.substr(0, equals))
        return line == expected;
    const auto numbers = vxMat::readNumberList(line.substr(equals));
    const auto hand = vxMat::readNumberList(expected.substr(equals));
    if (hand.empty())
        return false;
    return std::equal(numbers.begin(), numbers.end(), hand.begin(), hand.end(), areNear);
}

void compare(const fs::path& deck, vxDecks::Format format)
{
    SCOPED_TRACE(deck);
    const std::string text = contentOf(deck);
    const Expected expected = readExpected(fs::path(deck).replace_extension("expected"));
    EXPECT_EQ(vxDecks::recognisedFormat(text), format);
    const std::string units = expected.units == "declared" ? std::string() : expected.units;
    const vxDecks::ReadDeck read = vxtest::readText(format, text, units);
    const std::vector<std::string> lines = quantitiesOf(read);
    EXPECT_TRUE(
        std::equal(lines.begin(), lines.end(), expected.quantities.begin(), expected.quantities.end(), areEqual))
        << testing::PrintToString(lines) << "\nexpected:\n"
        << testing::PrintToString(expected.quantities);
    EXPECT_EQ(vxtest::remarkableLines(read.report), expected.report);
}

void compareAll(const char* folder, vxDecks::Format format, const char* extension, int least)
{
    int count = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(fs::path(VX_DECKS_CORPUS) / folder)) {
        if (entry.path().extension() != extension)
            continue;
        compare(entry.path(), format);
        ++count;
    }
    EXPECT_GE(count, least);
}

TEST(ReadingCorpus, HasDecksOfKeywordsThatAreReadAsTheTextsByHandSay)
{
    compareAll("calculix", vxDecks::Format::Calculix, ".inp", 13);
}

TEST(ReadingCorpus, HasBulkDataThatIsReadAsTheTextsByHandSay)
{
    compareAll("nastran", vxDecks::Format::Nastran, ".bdf", 9);
}

TEST(ReadingCorpus, HasDocumentsOfMatmlThatAreReadAsTheTextsByHandSay)
{
    compareAll("matml", vxDecks::Format::Matml, ".xml", 3);
}

} // namespace
