#include "vxInspector/decks/DeckLines.h"

#include "vxDecks/DeckReading.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

TEST(DeckLines, HaveTheFindingsOfADeckFirstAndShareEqualOnes)
{
    using Kind = vxInspector::DeckLine::Kind;
    std::istringstream file(
        "*MATERIAL, NAME=Foam\n*DENSITY\n-30.\n*DAMPING, ALPHA=1.\n*MATERIAL, NAME=Wool\n*DENSITY\n-30.\n");
    const auto deck = vxDecks::readDeck(vxDecks::Format::Calculix, file, {vxUnits::UnitSystem::si()});
    const auto lines = vxInspector::deckLines(
        deck.report, {{{Kind::Finding, "not possible"}}, {{Kind::Finding, "not possible"}, {Kind::Doubt, "unusual"}}});
    ASSERT_EQ(lines.size(), 4U) << "the report's own findings are not told again";
    EXPECT_EQ(lines[0].kind, Kind::Finding);
    EXPECT_EQ(lines[0].reason.toStdString(), "not possible");
    EXPECT_EQ(lines[0].materials.toStdString(), "Foam, Wool");
    EXPECT_EQ(lines[1].kind, Kind::Lost);
    EXPECT_EQ(lines[2].kind, Kind::Doubt);
    EXPECT_EQ(lines[2].materials.toStdString(), "Wool");
    EXPECT_EQ(lines[3].kind, Kind::Carried);
}

} // namespace
