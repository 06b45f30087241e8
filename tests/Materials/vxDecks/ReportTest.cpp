#include "DecksTesting.h"

#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Id = vxMat::PropertyId;
using testing::Contains;
using testing::ElementsAre;
using vxDecks::Format;

TEST(Report, HasARowForEachPropertyOfEveryLibraryMaterial)
{
    for (const vxDecks::FormatInfo& format : vxDecks::formats()) {
        for (const vxMat::MaterialBase* const material : vxtest::libraryMaterials()) {
            const auto deck = vxtest::deckOf(format.format, *material, "SI", material->name);
            EXPECT_EQ(deck.report.materials.at(0).rows.size(), material->properties.size()) << material->name;
        }
    }
}

TEST(Report, JoinsQuantitiesOfTheSameOutcomeForTheSameReason)
{
    auto material = vxtest::elastic();
    material->number(Id::RelativePermittivity, 2.0).number(Id::Density, 7850.0);
    EXPECT_THAT(toLines(vxtest::deckOf(Format::Calculix, material->get(), "mm-t-s").report),
                ElementsAre("The deck is in the unit system mm-t-s.",
                            "Test: carried: Isotropic elasticity, Poisson's ratio",
                            "Test: converted: Density: in t/mm^3 instead of kg/m^3",
                            "Test: converted: Young's modulus: in MPa instead of Pa",
                            "Test: lost: Relative permittivity: the format has no card for it"));
}

TEST(Report, IsTranslatedTextByText)
{
    const auto shout = [](const char*, const char* english) { return vxMat::toUpperAscii(english); };
    vxtest::MaterialMaker material;
    material.number(Id::RelativePermittivity, 2.0);
    EXPECT_THAT(toLines(vxtest::deckOf(Format::Calculix, material.get(), "SI").report, shout),
                Contains("Test: LOST: Relative permittivity: THE FORMAT HAS NO CARD FOR IT"));
}

TEST(Report, IsJsonWithOutcomeCardAndReasons)
{
    vxtest::MaterialMaker material;
    material.number(Id::Density, 7850.0).number(Id::RelativePermittivity, 2.0);
    const Json::Value json = toJson(vxtest::deckOf(Format::Calculix, material.get(), "mm-t-s", "My steel").report);
    EXPECT_EQ(json["format"], "calculix");
    EXPECT_EQ(json["units"], "mm-t-s");
    const Json::Value& one = json["materials"][0];
    EXPECT_EQ(one["name"], "My steel");
    EXPECT_EQ(one["written_name"], "My_steel");
    EXPECT_EQ(one["notes"][0]["id"], "decks.renamed");
    EXPECT_EQ(one["quantities"][0]["key"], "rho");
    EXPECT_EQ(one["quantities"][0]["outcome"], "converted");
    EXPECT_EQ(one["quantities"][0]["card"], "*DENSITY");
    EXPECT_EQ(one["quantities"][0]["how"][0]["text"], "in t/mm^3 instead of kg/m^3");
    EXPECT_EQ(one["quantities"][1]["outcome"], "lost");
    EXPECT_TRUE(one["quantities"][1]["card"].isNull());
    EXPECT_FALSE(one["quantities"][1]["refused"].asBool());
}

TEST(Report, NamesAQuantityThatTheCatalogueDoesNotHave)
{
    vxMat::CMaterial material;
    material.setProperty(9999, std::make_unique<vxMat::MaterialProperty>(9999, "Colour", "col", 1.0));
    const auto deck = vxtest::deckOf(Format::Calculix, material, "SI");
    EXPECT_THAT(toLines(deck.report), Contains("Test: lost: Colour: the catalogue does not have the quantity"));
}

} // namespace
