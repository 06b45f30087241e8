#include "vxInspector/decks/DeckLines.h"

#include "vxDecks/DeckReading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace {

TEST(DeckLines, HaveTheImpossibleValuesOfADeckAsRemarks)
{
    std::istringstream file("*MATERIAL, NAME=Foam\n*DENSITY\n-30.\n");
    const auto deck = vxDecks::readDeck(vxDecks::Format::Calculix, file, {vxUnits::UnitSystem::si()});
    const auto lines = vxInspector::deckLines(deck.report);
    const auto found = std::find_if(lines.begin(), lines.end(), [](const vxInspector::DeckLine& line) {
        return line.kind == vxInspector::DeckLine::Kind::Remark;
    });
    ASSERT_NE(found, lines.end());
    EXPECT_EQ(found->reason.toStdString(),
              "line 2, *DENSITY: Density = -30 is not possible; the value must be above 0");
    EXPECT_EQ(found->materials.toStdString(), "Foam");
}

} // namespace
