#include "DecksTesting.h"
#include "SampleMaterials.h"

#include "vxDecks/DeckReading.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace {

using vxDecks::Format;
using vxDecks::recognisedFormat;

TEST(Recognition, KnowsTheDecksThatAreWritten)
{
    EXPECT_EQ(recognisedFormat(vxtest::deckOf(Format::Calculix, vxtest::steel()->get()).text), Format::Calculix);
    EXPECT_EQ(recognisedFormat(vxtest::deckOf(Format::LsDyna, vxtest::steel()->get()).text), Format::LsDyna);
    EXPECT_EQ(recognisedFormat(vxtest::deckOf(Format::Apdl, vxtest::steel()->get()).text), Format::Apdl);
    EXPECT_EQ(recognisedFormat(vxtest::deckOf(Format::Apdl, vxtest::neoHooke()->get()).text), Format::Apdl);
    EXPECT_EQ(recognisedFormat(vxtest::deckOf(Format::Elmer, vxtest::steel()->get()).text), Format::Elmer);
}

TEST(Recognition, KnowsAWholeModelByAnyOfItsKeywords)
{
    EXPECT_EQ(recognisedFormat("*Heading\n text\n"), Format::Calculix);
    EXPECT_EQ(recognisedFormat("** comment\r\n*node , nset=all\r\n1,0.,0.,0.\r\n"), Format::Calculix);
    EXPECT_EQ(recognisedFormat("*Part, name=P\n*Node\n1,0,0,0\n"), Format::Calculix);
    EXPECT_EQ(recognisedFormat("*SOLIDSECTION,ELSET=E,MATERIAL=M\n"), Format::Calculix);
}

TEST(Recognition, TellsTheKeywordFamiliesApart)
{
    EXPECT_EQ(recognisedFormat("*KEYWORD\n*NODE\n"), Format::LsDyna);
    EXPECT_EQ(recognisedFormat("$ comment\n*NODE\n       1       0.0\n"), Format::LsDyna);
    EXPECT_EQ(recognisedFormat("*PART\ntitle\n*SECTION_SHELL\n"), Format::LsDyna);
    EXPECT_EQ(recognisedFormat("*MAT_ELASTIC_TITLE\nsteel\n"), Format::LsDyna);
    EXPECT_EQ(recognisedFormat("*PART\n*ELASTIC\n"), Format::Calculix);
}

TEST(Recognition, KnowsNoFormatOfOtherTexts)
{
    for (const char* const text : {"", "\n", "{\"proj_type\": 2}", "* a list\n* of points\n", "**\n**\n", "*", "*1.0\n",
                                   "strain,stress\n0,0\n0.1,1\n", "*WONDERCARD\n", "MP,1,2\n", "TB,a,b\n",
                                   "Material 1\n", "Material a\n  x = 1\n"})
        EXPECT_EQ(recognisedFormat(text), std::nullopt) << text;
    EXPECT_EQ(recognisedFormat(std::string(1000, '\0')), std::nullopt);
}

} // namespace
