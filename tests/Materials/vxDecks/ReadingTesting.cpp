#include "ReadingTesting.h"

#include <gtest/gtest.h>

#include <sstream>

namespace vxtest {

vxDecks::ReadDeck readText(vxDecks::Format format, const std::string& text, const std::string& units)
{
    std::istringstream file(text);
    vxDecks::ReadOptions options;
    if (!units.empty())
        options.units = *vxUnits::UnitSystem::parse(units);
    return vxDecks::readDeck(format, file, options);
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
    for (const std::string& line : toLines(report))
        if (line.find(": carried: ") == std::string::npos && line.find(": converted: ") == std::string::npos)
            lines.push_back(line);
    return lines;
}

} // namespace vxtest
