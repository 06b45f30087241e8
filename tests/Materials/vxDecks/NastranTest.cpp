#include "SampleMaterials.h"

#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace {

using Id = vxMat::PropertyId;
using vxDecks::Deck;
using vxDecks::Format;
using vxtest::outcomeOf;

std::string bodyOf(const vxtest::MaterialMaker& material)
{
    return vxtest::bodyOf(Format::Nastran, material);
}

Deck deckOf(const vxtest::MaterialMaker& material, const char* units = "mm-t-s")
{
    return vxtest::deckOf(Format::Nastran, material.get(), units);
}

// The fields of the expected lines begin in the columns 1, 9, 17, 25, ...

TEST(NastranDeck, HasElasticityAndHeatInFieldsOfEightCharacters)
{
    EXPECT_EQ(bodyOf(*vxtest::steel()), "$ Material 1: Test\n"
                                        "MAT1    1       2.+5            .3      7.85-9\n"
                                        "MAT4    1       54.     4.9+8   7.85-9\n");
}

TEST(NastranDeck, HasLargeFieldsIfANumberWouldLoseDigits)
{
    auto steel = vxtest::steel();
    steel->number(Id::YoungsModulus, 206123456789.0);
    EXPECT_THAT(deckOf(*steel, "SI").text,
                testing::HasSubstr("MAT1*   1               206123456789.                   .3              *\n"
                                   "*       7850.\n"
                                   "MAT4    1       54.     490.    7850.\n"));
}

TEST(NastranDeck, HasRealNumbersWithAPointInEveryField)
{
    for (const double number : {1.0, 1e-300, 123456789.0, 0.1, 1.0 / 3.0, 9.9999999999999999e22, 3.14159e-5}) {
        vxtest::MaterialMaker material;
        material.number(Id::ThermalConductivity, number);
        const std::string text = deckOf(material, "SI").text;
        std::istringstream lines(text.substr(text.find("MAT4")));
        std::string line;
        std::getline(lines, line);
        const bool isLarge = line[4] == '*';
        std::string field = line.substr(isLarge ? 24 : 16, isLarge ? 16 : 8);
        field.erase(field.find_last_not_of(" *") + 1);
        EXPECT_NE(field.find('.'), std::string::npos) << field;
        const std::size_t sign = field.find_last_of("+-");
        if (sign != std::string::npos && sign > 0)
            field.insert(sign, "e");
        EXPECT_NEAR(std::stod(field) / number, 1.0, 1e-10) << field;
    }
}

TEST(NastranDeck, HasBilinearPlasticityByThePlasticModulus)
{
    auto material = vxtest::bilinear();
    EXPECT_THAT(bodyOf(*material), testing::EndsWith("MATS1   1               PLASTIC 1450.   1       1       250.\n"));
    EXPECT_EQ(outcomeOf(deckOf(*material), Id::PlasticHardeningFactor), "converted: in MPa instead of Pa");
    material->word(Id::PlasticHardeningType, "Kinematic");
    EXPECT_THAT(bodyOf(*material), testing::EndsWith("MATS1   1               PLASTIC 1450.   1       2       250.\n"));
}

TEST(NastranDeck, HasAHardeningCurveOverTotalStrainFromTheOrigin)
{
    // 250 / 200000 = 0.00125; 0.05 + 300 / 200000 = 0.0515
    EXPECT_THAT(bodyOf(*vxtest::multilinear()),
                testing::EndsWith("MATS1   1       1       PLASTIC         1       1       250.\n"
                                  "TABLES1 1                                                               +\n"
                                  "+       0.      0.      .00125  250.    .0515   300.    ENDT\n"));
    EXPECT_EQ(outcomeOf(deckOf(*vxtest::multilinear()), Id::PlasticStrain),
              "converted: as total strains, plastic strain + stress / E");
}

TEST(NastranDeck, HasHyperelasticConstantsWithHalfTheBulkModulus)
{
    // K = 2 / D1 = 1000 MPa
    EXPECT_EQ(bodyOf(*vxtest::neoHooke()), "$ Material 1: Test\n"
                                           "MATHP   1       .5      0.      500.    1.-9\n");
    auto mooney = vxtest::mooney();
    EXPECT_THAT(bodyOf(*mooney), testing::EndsWith("MATHP   1       .3      .2      500.\n"));
    mooney->number(Id::MaterialConstantC11, 1e4);
    EXPECT_THAT(bodyOf(*mooney),
                testing::EndsWith("MATHP   1       .3      .2      500.                                    +\n"
                                  "+               2                                                       +\n"
                                  "+               .01\n"));
    EXPECT_EQ(outcomeOf(deckOf(*mooney), Id::IncompressibilityParameterD1),
              "converted: in 1/MPa instead of 1/Pa: as half the bulk modulus, 1 / D1");
}

TEST(NastranDeck, HasCreepInItsTotalForm)
{
    EXPECT_THAT(bodyOf(*vxtest::creeping()),
                testing::EndsWith("CREEP   1                       CRLAW                                   +\n"
                                  "+       300     1.-10   5.              1.\n"));
    auto primary = vxtest::creeping();
    primary->number(Id::CreepModulusM, -0.5); // A / (M + 1) = 2 A
    EXPECT_THAT(bodyOf(*primary), testing::EndsWith("+       300     2.-10   5.              .5\n"));
    primary->number(Id::CreepModulusN, 9.0);
    EXPECT_EQ(outcomeOf(deckOf(*primary), Id::CreepModulusN),
              "lost: the solver takes only exponents with 1 < N < 8 and -0.8 < M < 1");
}

TEST(NastranDeck, HasTheSpeedOfSoundOfAFluidOnly)
{
    EXPECT_EQ(bodyOf(*vxtest::fluid()), "$ Material 1: Test\n"
                                        "MAT10   1               1.-9    1.48+6\n"
                                        "MAT4    1       .6      4.2+9   1.-9            1.-9\n");
    auto steel = vxtest::steel();
    steel->number(Id::SpeedOfSound, 5000.0);
    EXPECT_EQ(outcomeOf(deckOf(*steel), Id::SpeedOfSound),
              "lost: the solid has the number of the material; a fluid with the same number is not possible");
}

TEST(NastranDeck, LosesWhatHasNoEntry)
{
    EXPECT_EQ(outcomeOf(deckOf(*vxtest::arrudaBoyce()), Id::LimitingNetworkStretch),
              "lost: the format has no eight-chain model");
    EXPECT_EQ(outcomeOf(deckOf(*vxtest::prony()), Id::RelaxationTime), "lost: the format has no card for it");
    vxtest::MaterialMaker light;
    light.number(Id::Density, 1.0);
    EXPECT_EQ(outcomeOf(deckOf(light), Id::Density), "lost: no card of the material has a place for it");
}

TEST(NastranDeck, NumbersMaterialsFromTheChosenNumber)
{
    const auto steel = vxtest::steel();
    const vxMat::MaterialBase* const material = &steel->get();
    const auto numbers = [&](const vxDecks::DeckOptions& options) {
        std::vector<std::uint32_t> all;
        const auto deck = vxDecks::writeDeck(
            Format::Nastran, {{"A", 7, material}, {"B", {}, material}, {"C", 7, material}, {"D", 1, material}},
            options);
        for (const auto& one : deck.report.materials)
            all.push_back(one.id);
        return all;
    };
    EXPECT_THAT(numbers({}), testing::ElementsAre(7, 2, 3, 1)) << "the second 7 gets a free number";
    EXPECT_THAT(numbers({std::nullopt, 100}), testing::ElementsAre(100, 101, 102, 103));
    EXPECT_THAT(numbers({std::nullopt, 99999998}), testing::ElementsAre(99999998, 99999999, 1, 2));
}

TEST(NastranDeck, TellsWhichMaterialsHaveOtherNumbers)
{
    const auto steel = vxtest::steel();
    const vxMat::MaterialBase* const material = &steel->get();
    const auto deck = vxDecks::writeDeck(Format::Nastran, {{"A", 7, material}, {"B", 7, material}}, {});
    EXPECT_TRUE(deck.report.materials[0].notes.empty());
    ASSERT_EQ(deck.report.materials[1].notes.size(), 1U);
    EXPECT_EQ(deck.report.materials[1].notes[0].text(), "has the number 1 instead of 7");
    const auto high = vxDecks::writeDeck(Format::Nastran, {{"A", 7, material}}, {std::nullopt, 100000000});
    EXPECT_EQ(high.report.materials[0].notes.at(0).text(), "has the number 1 instead of 100000000");
    const auto names = vxDecks::writeDeck(Format::Calculix, {{"A", 7, material}}, {std::nullopt, 5});
    EXPECT_EQ(names.report.notes.at(0).text(),
              "The format has no numbers of materials; the chosen number has no effect.");
}

} // namespace
