#include "DecksDocument.h"

#include "DataFile.h"

#include <gtest/gtest.h>

namespace {

TEST(DecksDocument, HasTheTablesOfTheLibrary)
{
    const std::string document = vxtest::readText(VX_DECKS_DOCUMENT);
    EXPECT_EQ(document, vxtest::withNewTables(document)) << "Run \"ninja vx_decks_document\".";
}

} // namespace
