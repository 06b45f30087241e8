#include "vxDecks/Mapping.h"

#include "DecksTesting.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using vxDecks::Mapping;
using vxDecks::Transport;

TEST(Mapping, HasOneRowForEachQuantityOfEachFormatInTheOrderOfTheCatalogue)
{
    ASSERT_EQ(vxDecks::mappings().size(), vxDecks::formats().size() * vxMat::catalogueSize);
    auto row = vxDecks::mappings().begin();
    for (const vxDecks::FormatInfo& format : vxDecks::formats()) {
        for (const vxMat::PropertyRecord& record : vxMat::propertyRecords()) {
            EXPECT_EQ(row->format, format.format);
            EXPECT_EQ(row->id, record.id) << format.name << ": " << record.name;
            ++row;
        }
    }
}

TEST(Mapping, NamesCardAndFieldOrTheReason)
{
    for (const Mapping& row : vxDecks::mappings()) {
        const bool isCarried = row.transport != Transport::None;
        EXPECT_EQ(*row.card != '\0', isCarried) << row.id;
        EXPECT_EQ(*row.field != '\0', isCarried) << row.id;
        EXPECT_NE(std::string(row.manual), "") << row.id;
        if (row.transport != Transport::Same) {
            EXPECT_NE(std::string(row.how.english), "") << row.id;
        }
    }
}

TEST(Mapping, IsTrueForEveryLibraryMaterial)
{
    for (const vxDecks::FormatInfo& format : vxDecks::formats()) {
        for (const vxMat::MaterialBase* const material : vxtest::libraryMaterials()) {
            const auto deck = vxtest::deckOf(format.format, *material, "mm-t-s", material->name);
            for (const vxDecks::ReportRow& row : deck.report.materials.at(0).rows) {
                const Mapping& mapping = *vxDecks::findMapping(format.format, row.slot);
                const bool isLost = row.outcome == vxDecks::Outcome::Lost;
                EXPECT_EQ(isLost, mapping.transport == Transport::None || row.refused) << material->name << row.name;
                EXPECT_EQ(row.card, isLost ? "" : mapping.card) << material->name << row.name;
            }
        }
    }
}

TEST(Mapping, HasTextsWithIdsOfTheirOwn)
{
    std::set<std::string> ids;
    for (const vxUnits::MessageText& text : vxDecks::messageTexts()) {
        EXPECT_TRUE(ids.insert(text.id).second) << text.id;
        EXPECT_NE(std::string(text.english), "") << text.id;
    }
    EXPECT_EQ(ids.count("decks.lost.no-card"), 1U);
    EXPECT_EQ(ids.count("decks.not-finite"), 1U);
}

TEST(Formats, AreFoundByNameInAnyCase)
{
    ASSERT_NE(vxDecks::findFormat("CalculiX"), nullptr);
    EXPECT_EQ(std::string(vxDecks::findFormat("CalculiX")->name), "calculix");
    EXPECT_EQ(vxDecks::findFormat("ccx"), nullptr);
    EXPECT_EQ(vxDecks::findFormat(""), nullptr);
}

} // namespace
