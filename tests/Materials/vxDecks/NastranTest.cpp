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

Deck deckInFields(vxDecks::FieldForm fields, const vxtest::MaterialMaker& material)
{
    vxDecks::DeckOptions options;
    options.units = *vxUnits::UnitSystem::parse("SI");
    options.fields = fields;
    return vxDecks::writeDeck(Format::Nastran, {{"Test", 1, &material.get()}}, options);
}

TEST(NastranDeck, RoundsToSmallFieldsIfTheUserChoosesThem)
{
    auto steel = vxtest::steel();
    steel->number(Id::YoungsModulus, 206123456789.0);
    const Deck deck = deckInFields(vxDecks::FieldForm::Small, *steel);
    EXPECT_THAT(deck.text, testing::HasSubstr("MAT1    1       2.061+11        .3      7850.\n"));
    EXPECT_EQ(outcomeOf(deck, Id::YoungsModulus), "approximated: rounded to a field of 8 characters");
    EXPECT_EQ(outcomeOf(deck, Id::PoissonsRatio), "carried");
    EXPECT_EQ(outcomeOf(deckOf(*steel, "SI"), Id::YoungsModulus), "carried") << "in a large field";
}

TEST(NastranDeck, HasLargeFieldsIfTheUserChoosesThem)
{
    EXPECT_THAT(deckInFields(vxDecks::FieldForm::Large, *vxtest::steel()).text,
                testing::HasSubstr("MAT1*   1               2.+11                           .3              *\n"
                                   "*       7850.\n"
                                   "MAT4*   1               54.             490.            7850.           *\n*\n"));
}

TEST(NastranDeck, TellsDigitsThatALargeFieldLoses)
{
    vxtest::MaterialMaker material;
    material.number(Id::ThermalConductivity, -1.2345678901234567e-105);
    EXPECT_EQ(outcomeOf(deckInFields(vxDecks::FieldForm::Large, material), Id::ThermalConductivity),
              "approximated: rounded to a field of 16 characters");
}

TEST(NastranDeck, HasFieldsDividedByCommasIfTheUserChoosesThem)
{
    auto steel = vxtest::steel();
    EXPECT_THAT(deckInFields(vxDecks::FieldForm::Free, *steel).text,
                testing::HasSubstr("MAT1,1,2.+11,,.3,7850.\nMAT4,1,54.,490.,7850.\n"));
    steel->number(Id::YoungsModulus, 206123456789.0);
    EXPECT_THAT(deckInFields(vxDecks::FieldForm::Free, *steel).text,
                testing::HasSubstr("MAT1*,1,206123456789.,,.3,*\n*,7850.\n"));
    auto mooney = vxtest::mooney();
    mooney->number(Id::MaterialConstantC11, 1e4);
    EXPECT_THAT(deckInFields(vxDecks::FieldForm::Free, *mooney).text,
                testing::HasSubstr("MATHP,1,3.+5,2.+5,5.+8,,,,,+\n+,,2,,,,,,,+\n+,,1.+4\n"));
}

TEST(NastranDeck, HasFormsOfFieldsByName)
{
    EXPECT_EQ(vxDecks::findFieldForm("FREE"), vxDecks::FieldForm::Free);
    EXPECT_EQ(vxDecks::findFieldForm("small"), vxDecks::FieldForm::Small);
    EXPECT_EQ(vxDecks::findFieldForm("large"), vxDecks::FieldForm::Large);
    EXPECT_EQ(vxDecks::findFieldForm("wide"), std::nullopt);
}

TEST(NastranDeck, RefusesASpecificHeatWithoutADensity)
{
    // The default of the density is 1, so that the solver would compute with another heat capacity.
    vxtest::MaterialMaker material;
    material.number(Id::ThermalConductivity, 54.0).number(Id::SpecificHeat, 490.0);
    const Deck deck = deckOf(material, "SI");
    EXPECT_THAT(deck.text, testing::EndsWith("MAT4    1       54.\n"));
    EXPECT_EQ(outcomeOf(deck, Id::SpecificHeat), "lost: the card needs Density too");
}

TEST(NastranDeck, HasOnlyTheConstantsOfTheChosenModel)
{
    auto material = vxtest::neoHooke();
    material->number(Id::MaterialConstantC01, 2e5);
    EXPECT_EQ(bodyOf(*material), bodyOf(*vxtest::neoHooke()));
    EXPECT_EQ(outcomeOf(deckOf(*material), Id::MaterialConstantC01), "lost: the material model does not use it");
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

TEST(NastranDeck, RefusesAHardeningCurveWhoseTotalStrainsDoNotAscend)
{
    // The stress falls faster than the plastic strain grows: 0.0021749, 0.0020300.
    auto falling = vxtest::multilinear();
    falling->list(Id::PlasticYieldStress, {4.5e8, 4.2e8}).list(Id::PlasticStrain, {0.0, 1e-7});
    const Deck deck = deckOf(*falling);
    EXPECT_THAT(deck.text, testing::Not(testing::HasSubstr("MATS1")));
    EXPECT_THAT(outcomeOf(deck, Id::PlasticYieldStress), testing::StartsWith("lost: the table needs ascending total"));

    // Small fields give both strains the same digits.
    auto close = vxtest::multilinear();
    close->list(Id::PlasticYieldStress, {4.5e8, 4.500001e8}).list(Id::PlasticStrain, {0.0, 1e-9});
    vxDecks::DeckOptions options;
    options.fields = vxDecks::FieldForm::Small;
    options.units = *vxUnits::UnitSystem::parse("mm-t-s");
    EXPECT_THAT(writeDeck(Format::Nastran, {{"Close", 1, &close->get()}}, options).text,
                testing::Not(testing::HasSubstr("TABLES1")));
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
