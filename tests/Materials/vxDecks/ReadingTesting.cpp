#include "ReadingTesting.h"

#include "DataFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sstream>

namespace vxtest {

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> corpusFiles()
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(VX_DECKS_CORPUS)) {
        if (entry.is_regular_file() && entry.path().extension() != ".expected")
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// Returns the unit system in the first line of the text by hand, "units SI"; empty if the deck declares its units.
std::string unitsOfCorpusFile(fs::path file)
{
    std::istringstream hand(readText(file.replace_extension("expected").string()));
    std::string word;
    std::string units;
    hand >> word >> units;
    return units == "declared" ? std::string() : units;
}

} // namespace

vxDecks::ReadDeck readText(vxDecks::Format format, const std::string& text, const std::string& units)
{
    std::istringstream file(text);
    vxDecks::ReadOptions options;
    if (!units.empty())
        options.units = *vxUnits::UnitSystem::parse(units);
    return vxDecks::readDeck(format, file, options);
}

std::vector<vxDecks::ReadMaterial> readCorpus()
{
    std::vector<vxDecks::ReadMaterial> materials;
    for (const fs::path& file : corpusFiles()) {
        const std::string text = readText(file.string());
        vxDecks::ReadDeck deck = readText(vxDecks::recognisedFormat(text).value(), text, unitsOfCorpusFile(file));
        std::move(deck.materials.begin(), deck.materials.end(), std::back_inserter(materials));
    }
    return materials;
}

double numberOf(const vxDecks::ReadDeck& deck, std::int32_t id)
{
    double number = 0.0;
    EXPECT_EQ(deck.materials.size(), 1U);
    EXPECT_TRUE(!deck.materials.empty() && deck.materials[0].material->getPropertyValue(id, number)) << id;
    return number;
}

std::string errorOf(vxDecks::Format format, const std::string& text, const std::string& units)
{
    try {
        readText(format, text, units);
    } catch (const vxDecks::DeckError& error) {
        EXPECT_EQ(error.what(), error.text());
        return error.what();
    }
    return {};
}

std::vector<std::string> remarkableLines(const vxDecks::Report& report)
{
    std::vector<std::string> lines;
    const auto add = [&lines](const vxDecks::Report& part) {
        for (const std::string& line : toLines(part))
            if (line.find(": carried: ") == std::string::npos && line.find(": converted: ") == std::string::npos)
                lines.push_back(line);
    };
    add({report.format, report.units, report.notes, {}});
    for (const vxDecks::MaterialReport& material : report.materials)
        add({report.format, report.units, {}, {material}});
    return lines;
}

} // namespace vxtest
