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

TEST(Report, TellsThatAMaterialHasAQuantityUnderAnotherName)
{
    const vxMat::MaterialBase& water = vxtest::libraryMaterial(vxMat::eMaterialType::AcousticMaterial1);
    for (const Format format : {Format::Nastran, Format::Apdl, Format::LsDyna, Format::Elmer, Format::Matml}) {
        EXPECT_EQ(vxtest::outcomeOf(vxtest::deckOf(format, water, "SI"), Id::SpeedOfSound),
                  "converted: the material names it \"Density\"; the deck has it under its own name");
        EXPECT_EQ(vxtest::outcomeOf(vxtest::deckOf(format, water, "SI"), Id::Density), "carried");
    }
    EXPECT_EQ(vxtest::outcomeOf(vxtest::deckOf(Format::Calculix, water, "SI"), Id::SpeedOfSound),
              "lost: the solver computes sound only as an analogy of heat conduction");
}

TEST(Report, TellsOfWhichMaterialsTheDeckHasNothing)
{
    const std::string nothing = "Test: no card of the deck has anything of the material";
    const vxMat::MaterialBase& chains = vxtest::libraryMaterial(vxMat::eMaterialType::Elastomer3);
    EXPECT_THAT(toLines(vxtest::deckOf(Format::Nastran, chains, "SI").report), Contains(nothing));
    EXPECT_THAT(toLines(vxtest::deckOf(Format::Apdl, chains, "SI").report), testing::Not(Contains(nothing)));
    const vxMat::CMaterial empty("Test");
    for (const vxDecks::FormatInfo& format : vxDecks::formats())
        EXPECT_THAT(toLines(vxtest::deckOf(format.format, empty, "SI").report), Contains(nothing)) << format.name;
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

/// Returns the lines of the deck of materials without a choice of units, without the line about the units.
std::vector<std::string> linesOf(Format format, const std::vector<vxDecks::DeckMaterial>& materials)
{
    std::vector<std::string> lines = toLines(vxDecks::writeDeck(format, materials, {}).report);
    lines.erase(lines.begin());
    return lines;
}

TEST(Report, TellsMaterialsOneByOneUnlessThereAreMany)
{
    vxtest::MaterialMaker air;
    air.number(Id::Density, 1.2).number(Id::RelativePermittivity, 1.0);
    std::vector<vxDecks::DeckMaterial> materials;
    for (int i = 1; i <= 10; ++i)
        materials.push_back({"Gas" + std::to_string(i), std::nullopt, &air.get()});
    EXPECT_EQ(linesOf(Format::Calculix, materials).size(), 20U);
    materials.push_back({"Gas11", std::nullopt, &air.get()});
    EXPECT_THAT(linesOf(Format::Calculix, materials),
                ElementsAre("11 materials (Gas1, Gas2, Gas3, ...): carried: Density",
                            "11 materials (Gas1, Gas2, Gas3, ...): lost: Relative permittivity: the format has no "
                            "card for it"));
}

TEST(Report, OfManyMaterialsTellsWhatOnlySomeOfThemHave)
{
    vxtest::MaterialMaker air;
    air.number(Id::Density, 1.2);
    vxtest::MaterialMaker water;
    water.number(Id::Density, 1000.0).number(Id::ThermalConductivity, 0.6);
    std::vector<vxDecks::DeckMaterial> materials(12, {"Air", std::nullopt, &air.get()});
    materials[5] = {"Water", std::nullopt, &water.get()};
    materials[7] = {"Sea", std::nullopt, &water.get()};
    EXPECT_THAT(linesOf(Format::Apdl, materials),
                ElementsAre("12 materials (Air, Air, Air, ...): carried: Density",
                            "2 materials (Water, Sea): carried: Thermal conductivity"));
}

TEST(Report, OfManyMaterialsHasAnExampleOfReasonsThatAllDiffer)
{
    vxtest::MaterialMaker air;
    air.number(Id::Density, 1.2);
    std::vector<vxDecks::DeckMaterial> materials;
    for (int i = 1; i <= 10000; ++i)
        materials.push_back({"Gas " + std::to_string(i), std::nullopt, &air.get()});
    EXPECT_THAT(linesOf(Format::Calculix, materials),
                ElementsAre("10000 materials (Gas 1, Gas 2, Gas 3, ...): for example Gas 1: renamed \"Gas_1\", because "
                            "the format does not take the name or has it already",
                            "10000 materials (Gas 1, Gas 2, Gas 3, ...): carried: Density"));
    const auto report = vxDecks::writeDeck(Format::Calculix, materials, {}).report;
    EXPECT_EQ(toJson(report)["materials"].size(), 10000U) << "JSON stays complete";
    EXPECT_EQ(toJson(report)["materials"][9999]["notes"][0]["text"],
              "renamed \"Gas_10000\", because the format does not take the name or has it already");
}

TEST(Report, TellsThatALongNameIsShortened)
{
    const std::string label = "Steel of the frame " + std::string(80, 'x');
    vxtest::MaterialMaker steel;
    steel.number(Id::Density, 7850.0);
    for (const Format format : {Format::Nastran, Format::Apdl, Format::LsDyna}) {
        const auto deck = vxDecks::writeDeck(format, {{label, 1, &steel.get()}}, {});
        EXPECT_EQ(deck.report.materials[0].writtenName, label.substr(0, 70));
        EXPECT_THAT(toLines(deck.report), Contains(label + ": the name is shortened to \"" + label.substr(0, 70) +
                                                   "\"; the format takes 70 bytes of it"));
        EXPECT_EQ(deck.text.find(label), std::string::npos);
    }
    // A character of several bytes is not cut.
    const std::string chinese = std::string(69, 'a') + "\xE9\x92\xA2";
    EXPECT_EQ(vxDecks::writeDeck(Format::Apdl, {{chinese, 1, &steel.get()}}, {}).report.materials[0].writtenName,
              std::string(69, 'a'));
}

TEST(Report, TellsThatATitleHasAnotherText)
{
    vxtest::MaterialMaker steel;
    steel.number(Id::Density, 7850.0).number(Id::YoungsModulus, 2e11).number(Id::PoissonsRatio, 0.3);
    const auto lines = [&](const char* name) {
        return toLines(vxDecks::writeDeck(Format::LsDyna, {{name, 1, &steel.get()}}, {}).report);
    };
    EXPECT_THAT(lines("two\tlines"), Contains(testing::HasSubstr("renamed \"two lines\"")));
    EXPECT_THAT(lines("*END"), Contains(testing::HasSubstr("renamed \" *END\"")));
    EXPECT_THAT(lines("Steel"), testing::Not(Contains(testing::HasSubstr("renamed"))));
}

TEST(Report, TellsDigitsThatAFieldOfTwentyCharactersLoses)
{
    // Needs 24 characters with all digits.
    vxtest::MaterialMaker material;
    material.number(Id::YoungsModulus, 1.2345678901234567e-105).number(Id::PoissonsRatio, 0.3);
    material.number(Id::ThermalConductivity, -1.2345678901234567e-105).number(Id::SpecificHeat, 1.0);
    const auto outcome = [&](Format format) {
        return vxtest::outcomeOf(vxtest::deckOf(format, material.get(), "SI"), Id::ThermalConductivity);
    };
    EXPECT_EQ(outcome(Format::Calculix), "approximated: rounded to a field of 20 characters");
    EXPECT_EQ(outcome(Format::LsDyna), "approximated: rounded to a field of 20 characters");
    EXPECT_EQ(outcome(Format::Apdl), "carried");
    EXPECT_EQ(outcome(Format::Elmer), "carried");
    EXPECT_EQ(outcome(Format::Matml), "carried");
}

TEST(Report, TellsNumbersAtTheEndsOfTheRangeOfADouble)
{
    for (const double number : {1.7976931348623157e308, 2.2250738585072014e-308, -5e-324}) {
        vxtest::MaterialMaker material;
        material.number(Id::ThermalConductivity, number).number(Id::SpecificHeat, 1.0);
        material.number(Id::Density, number).number(Id::SpeedOfSound, number);
        for (const vxDecks::FormatInfo& format : vxDecks::formats()) {
            vxDecks::DeckOptions options;
            options.units = vxUnits::UnitSystem::si();
            options.fields = vxDecks::FieldForm::Small;
            const auto deck = vxDecks::writeDeck(format.format, {{"A", 1, &material.get()}}, options);
            EXPECT_EQ(deck.report.materials.at(0).rows.size(), 4U) << format.name;
        }
    }
}

TEST(Report, TellsAWordThatTheMaterialDoesNotHave)
{
    // Materials of exchange documents have no words.
    auto material = vxtest::elastic();
    material->on(Id::Plasticity).word(Id::PlasticYieldType, "").word(Id::PlasticHardeningType, "");
    material->number(Id::PlasticInitialYieldStress, 2.5e8).number(Id::PlasticHardeningFactor, 1e9);
    const auto deck = vxtest::deckOf(Format::Calculix, material->get(), "SI");
    EXPECT_EQ(vxtest::outcomeOf(deck, Id::PlasticYieldType),
              "approximated: the material has no word for it; written as \"Mises\"");
    EXPECT_EQ(vxtest::outcomeOf(deck, Id::PlasticHardeningType),
              "approximated: the material has no word for it; written as \"Bilinear\"");
    const auto matml = vxtest::deckOf(Format::Matml, material->get(), "SI");
    EXPECT_EQ(vxtest::outcomeOf(matml, Id::PlasticYieldType), "lost: the material has no word for it");
    EXPECT_EQ(matml.text.find("PYield"), std::string::npos);
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
