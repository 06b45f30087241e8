#include "CommaLocale.h"
#include "DecksTesting.h"

#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <sstream>

namespace {

using Id = vxMat::PropertyId;
using testing::HasSubstr;
using testing::Not;
using vxDecks::Deck;
using vxtest::elastic;
using vxtest::MaterialMaker;
using vxtest::outcomeOf;

Deck deckOf(const MaterialMaker& material, const std::string& units = {}, const std::string& name = "Test")
{
    return vxtest::deckOf(vxDecks::Format::Calculix, material.get(), units, name);
}

/// Adds the switch of plasticity and the words of its laws.
MaterialMaker& plastic(MaterialMaker& material, const char* hardening)
{
    return material.on(Id::Plasticity).word(Id::PlasticYieldType, "mises").word(Id::PlasticHardeningType, hardening);
}

TEST(CalculixDeck, HasOneBlockForEachMaterial)
{
    auto steel = elastic();
    steel->number(Id::Density, 7850).number(Id::SpecificHeat, 490).number(Id::ThermalConductivity, 54);
    steel->number(Id::ElectricalConductivity, 4.032e6);
    EXPECT_EQ(deckOf(*steel, "SI").text, "** Units: m, kg, s, K, A\n"
                                         "*MATERIAL, NAME=Test\n"
                                         "*DENSITY\n7850\n"
                                         "*SPECIFIC HEAT\n490\n"
                                         "*CONDUCTIVITY\n54\n"
                                         "*ELASTIC\n2e11, 0.3\n"
                                         "*ELECTRICAL CONDUCTIVITY\n4032000\n");
    EXPECT_EQ(deckOf(*steel, "mm-t-s").text, "** Units: mm, t, s, K, A\n"
                                             "*MATERIAL, NAME=Test\n"
                                             "*DENSITY\n7.85e-9\n"
                                             "*SPECIFIC HEAT\n4.9e8\n"
                                             "*CONDUCTIVITY\n54\n"
                                             "*ELASTIC\n2e5, 0.3\n"
                                             "*ELECTRICAL CONDUCTIVITY\n4.032\n");
}

TEST(CalculixDeck, HasTheViscosityOfAFluidAfterItsSpecificHeat)
{
    MaterialMaker fluid;
    fluid.number(Id::DynamicViscosity, 0.00089);
    EXPECT_EQ(outcomeOf(deckOf(fluid), Id::DynamicViscosity), "lost: the card needs Specific heat too");
    fluid.number(Id::SpecificHeat, 4184);
    EXPECT_THAT(deckOf(fluid).text, HasSubstr("*FLUID CONSTANTS\n4184, 0.00089\n"));
}

TEST(CalculixDeck, HasABilinearCurveAsTwoPoints)
{
    auto steel = elastic();
    plastic(*steel, "Bilinear").number(Id::PlasticInitialYieldStress, 2.5e8).number(Id::PlasticHardeningFactor, 1.45e9);
    const Deck deck = deckOf(*steel, "mm-t-s");
    EXPECT_THAT(deck.text, HasSubstr("*ELASTIC\n2e5, 0.3\n*PLASTIC\n250, 0\n14750, 10\n"));
    EXPECT_EQ(outcomeOf(deck, Id::PlasticHardeningFactor),
              "converted: in MPa instead of Pa: as two points of the curve, up to a plastic strain of 10");
    steel->number(Id::PlasticHardeningFactor, 0.0);
    EXPECT_THAT(deckOf(*steel, "mm-t-s").text, testing::EndsWith("*PLASTIC\n250, 0\n")) << "ideal plasticity";
    plastic(*steel, "Kinematic");
    const Deck kinematic = deckOf(*steel, "mm-t-s");
    EXPECT_THAT(kinematic.text, HasSubstr("*PLASTIC, HARDENING=KINEMATIC\n250, 0\n"));
    EXPECT_EQ(outcomeOf(kinematic, Id::PlasticHardeningType),
              "carried: the solver computes it right only in steps with large strains; write NLGEOM behind *STEP");
}

TEST(CalculixDeck, HasAHardeningCurvePointByPoint)
{
    auto steel = elastic();
    plastic(*steel, "Multilinear").list(Id::PlasticYieldStress, {2.5e8, 3e8}).list(Id::PlasticStrain, {0.0, 0.05});
    EXPECT_THAT(deckOf(*steel, "mm-t-s").text, HasSubstr("*PLASTIC\n250, 0\n300, 0.05\n"));
    plastic(*steel, "Swift");
    const Deck swift = deckOf(*steel);
    EXPECT_THAT(swift.text, HasSubstr("*PLASTIC\n2.5e8, 0\n3e8, 0.05\n"));
    EXPECT_EQ(outcomeOf(swift, Id::PlasticHardeningType), "converted: as the points of the curve");
}

TEST(CalculixDeck, RefusesACurveThatTheSolverWouldMisread)
{
    const auto outcome = [](const std::vector<double>& stresses, const std::vector<double>& strains) {
        auto steel = elastic();
        plastic(*steel, "Multilinear").list(Id::PlasticYieldStress, stresses).list(Id::PlasticStrain, strains);
        const Deck deck = deckOf(*steel);
        EXPECT_THAT(deck.text, Not(HasSubstr("*PLASTIC")));
        EXPECT_TRUE(vxtest::rowOf(deck, Id::PlasticStrain).refused);
        return outcomeOf(deck, Id::PlasticStrain);
    };
    EXPECT_EQ(
        outcome({2.5e8, 3e8}, {0.002, 0.05}),
        "lost: the first plastic strain is 0.002, but the solver takes the first stress as the yield stress at 0; "
        "add a point at 0");
    EXPECT_EQ(outcome({2.5e8, 3e8, 4e8}, {0.0, 0.05, 0.05}), "lost: the plastic strains do not ascend");
    EXPECT_EQ(outcome({2.5e8, 3e8}, {0.0}), "lost: there are 2 yield stresses and 1 plastic strains");
    EXPECT_EQ(outcome({0.0, 3e8}, {0.0, 0.1}), "lost: Yield stress = 0 is not possible; the value must be above 0");
    EXPECT_EQ(outcome({}, {0.0}), "lost: the curve has no points");
}

TEST(CalculixDeck, BeginsACurveAboveZeroWithTheInitialYieldStress)
{
    auto steel = elastic();
    plastic(*steel, "Multilinear").list(Id::PlasticYieldStress, {2.6e8, 3e8}).list(Id::PlasticStrain, {0.002, 0.05});
    steel->number(Id::PlasticInitialYieldStress, 2.5e8);
    const Deck deck = deckOf(*steel);
    EXPECT_THAT(deck.text, HasSubstr("*PLASTIC\n2.5e8, 0\n2.6e8, 0.002\n3e8, 0.05\n"));
    EXPECT_EQ(outcomeOf(deck, Id::PlasticInitialYieldStress),
              "converted: the initial yield stress is the point at plastic strain 0");
}

TEST(CalculixDeck, LosesPlasticityThatTheCatalogueDoesNotDescribe)
{
    auto soil = elastic();
    plastic(*soil, "Bilinear").word(Id::PlasticYieldType, "Mohr-Coulomb").number(Id::PlasticFAI, 30.0);
    const Deck deck = deckOf(*soil);
    EXPECT_THAT(deck.text, Not(HasSubstr("*PLASTIC")));
    EXPECT_EQ(outcomeOf(deck, Id::PlasticYieldType),
              "lost: the format has no card for the yield type \"Mohr-Coulomb\" with the quantities of the catalogue");
    EXPECT_EQ(outcomeOf(deck, Id::PlasticFAI), "lost: the solver has no plasticity with internal friction");
    auto steel = elastic();
    plastic(*steel, "Combined").number(Id::PlasticInitialYieldStress, 2.5e8).number(Id::PlasticHardeningFactor, 1e9);
    EXPECT_EQ(outcomeOf(deckOf(*steel), Id::PlasticHardeningType),
              "lost: the catalogue does not have the shares of isotropic and kinematic hardening");
    plastic(*steel, "Ramberg-Osgood");
    EXPECT_EQ(outcomeOf(deckOf(*steel), Id::PlasticHardeningType),
              "lost: the hardening type \"Ramberg-Osgood\" needs a curve of yield stresses and plastic strains");
}

TEST(CalculixDeck, HasTheConstantsOfEachHyperelasticModel)
{
    MaterialMaker neo;
    neo.on(Id::NeoHooke).number(Id::MaterialConstantC10, 5e5).number(Id::IncompressibilityParameterD1, 2e-9);
    EXPECT_THAT(deckOf(neo, "SI").text, HasSubstr("*HYPERELASTIC, NEO HOOKE\n5e5, 2e-9\n"));
    EXPECT_THAT(deckOf(neo, "mm-t-s").text, HasSubstr("*HYPERELASTIC, NEO HOOKE\n0.5, 0.002\n"));
    MaterialMaker mooney;
    mooney.on(Id::MooneyRivlin).number(Id::MaterialConstantC10, 3e5).number(Id::MaterialConstantC01, 2e5);
    mooney.number(Id::IncompressibilityParameterD1, 2e-9);
    EXPECT_THAT(deckOf(mooney).text, HasSubstr("*HYPERELASTIC, MOONEY-RIVLIN\n3e5, 2e5, 2e-9\n"));
    mooney.number(Id::MaterialConstantC11, 1e4);
    EXPECT_THAT(deckOf(mooney).text, HasSubstr("*HYPERELASTIC, POLYNOMIAL, N=2\n3e5, 2e5, 0, 10000, 0, 2e-9, 20\n"));
    MaterialMaker arruda;
    arruda.on(Id::ArrudaBoyce).number(Id::InitialShearModulusMu, 1e6).number(Id::LimitingNetworkStretch, 5.15);
    arruda.number(Id::IncompressibilityParameterD1, 2e-9).number(Id::MaterialConstantC10, 1.0);
    const Deck deck = deckOf(arruda, "mm-t-s");
    EXPECT_THAT(deck.text, HasSubstr("*HYPERELASTIC, ARRUDA-BOYCE\n1, 5.15, 0.002\n")) << "the stretch has no unit";
    EXPECT_EQ(outcomeOf(deck, Id::LimitingNetworkStretch), "carried");
    EXPECT_EQ(outcomeOf(deck, Id::MaterialConstantC10), "lost: the material model does not use it");
}

TEST(CalculixDeck, TellsTheBulkModulusOfRubberWithoutD1)
{
    MaterialMaker rubber;
    rubber.on(Id::NeoHooke).number(Id::MaterialConstantC10, 5e5);
    const Deck deck = deckOf(rubber);
    EXPECT_THAT(deck.text, HasSubstr("*HYPERELASTIC, NEO HOOKE\n5e5, 4e-9\n"));
    EXPECT_EQ(outcomeOf(deck, Id::IncompressibilityParameterD1),
              "approximated: the solver has no incompressible solid; the bulk modulus is 500 times the initial shear "
              "modulus");
}

TEST(CalculixDeck, ReplacesExactIncompressibilityByALargeBulkModulus)
{
    MaterialMaker rubber;
    rubber.on(Id::NeoHooke).number(Id::MaterialConstantC10, 5e5).number(Id::IncompressibilityParameterD1, 0.0);
    const Deck deck = deckOf(rubber);
    // mu = 1 MPa, K = 500 MPa, D1 = 2 / K
    EXPECT_THAT(deck.text, HasSubstr("*HYPERELASTIC, NEO HOOKE\n5e5, 4e-9\n"));
    EXPECT_EQ(outcomeOf(deck, Id::IncompressibilityParameterD1),
              "approximated: the solver has no incompressible solid; the bulk modulus is 500 times the initial shear "
              "modulus");
}

TEST(CalculixDeck, ChoosesOtherUnitsForAD1ThatTheSolverWouldReplace)
{
    MaterialMaker stiff;
    stiff.on(Id::NeoHooke).number(Id::MaterialConstantC10, 1e9).number(Id::IncompressibilityParameterD1, 8e-11);
    const Deck deck = deckOf(stiff);
    EXPECT_THAT(deck.text, HasSubstr("** Units: mm, t, s, K, A\n"));
    EXPECT_THAT(deck.text, HasSubstr("*HYPERELASTIC, NEO HOOKE\n1000, 8e-5\n"));
    ASSERT_EQ(deck.report.notes.size(), 1U);
    EXPECT_EQ(deck.report.notes[0].text(), "The deck is in mm-t-s, because the solver would misread numbers in SI.");
    const Deck forced = deckOf(stiff, "SI");
    EXPECT_THAT(forced.text, Not(HasSubstr("*HYPERELASTIC")));
    EXPECT_EQ(outcomeOf(forced, Id::IncompressibilityParameterD1),
              "lost: the solver replaces D1 below 1e-10 by K = 20 mu; choose another unit system");
}

TEST(CalculixDeck, ChoosesOtherUnitsForACreepFactorThatTheSolverWouldReplace)
{
    auto steel = elastic();
    steel->on(Id::Creep).number(Id::CreepModulusA, 1e-40).number(Id::CreepModulusN, 5.0).number(Id::CreepModulusM, 0.0);
    EXPECT_THAT(deckOf(*steel).text, HasSubstr("*ELASTIC\n2e5, 0.3\n*CREEP\n1e-10, 5, 0\n"));
    EXPECT_EQ(outcomeOf(deckOf(*steel, "SI"), Id::CreepModulusA),
              "lost: the solver replaces A below 1e-20 by 1e-20; choose another unit system");
    steel->number(Id::CreepModulusM, -1.0);
    EXPECT_EQ(outcomeOf(deckOf(*steel), Id::Creep),
              "lost: Creep Modulus M = -1 is not possible; the value must be above -1");
}

TEST(CalculixDeck, RefusesModelsThatContradictEachOther)
{
    auto steel = elastic();
    plastic(*steel, "Bilinear").number(Id::PlasticInitialYieldStress, 2.5e8).number(Id::PlasticHardeningFactor, 1e9);
    steel->on(Id::Creep).number(Id::CreepModulusA, 1e-10).number(Id::CreepModulusN, 1.0).number(Id::CreepModulusM, 0.0);
    EXPECT_EQ(outcomeOf(deckOf(*steel), Id::CreepModulusA),
              "lost: beside plasticity, the solver applies the law to the overstress only");
    auto rubber = elastic();
    rubber->on(Id::NeoHooke).on(Id::ArrudaBoyce).number(Id::MaterialConstantC10, 1.0);
    const Deck both = deckOf(*rubber);
    EXPECT_THAT(both.text, Not(HasSubstr("ELASTIC")));
    EXPECT_EQ(outcomeOf(both, Id::MaterialConstantC10), "lost: more than one hyperelastic model is switched on");
    EXPECT_EQ(outcomeOf(both, Id::YoungsModulus), "lost: the hyperelastic model replaces it");
    MaterialMaker half;
    half.number(Id::YoungsModulus, 2e11);
    EXPECT_EQ(outcomeOf(deckOf(half), Id::YoungsModulus), "lost: the card needs Poisson's ratio too");
    half.number(Id::PoissonsRatio, 0.5);
    EXPECT_EQ(outcomeOf(deckOf(half), Id::YoungsModulus),
              "lost: Poisson's ratio = 0.5 is not possible; the value must be above -1 and below 0.5");
}

TEST(CalculixDeck, HasNoNumberThatIsNotFinite)
{
    MaterialMaker material;
    material.number(Id::Density, std::numeric_limits<double>::infinity());
    material.number(Id::ThermalConductivity, std::numeric_limits<double>::quiet_NaN()).number(Id::SpecificHeat, 1e308);
    const Deck deck = deckOf(material, "mm-t-s");
    EXPECT_EQ(deck.text, "** Units: mm, t, s, K, A\n*MATERIAL, NAME=Test\n");
    for (const std::int32_t id : {Id::Density, Id::ThermalConductivity, Id::SpecificHeat})
        EXPECT_EQ(outcomeOf(deck, id), "lost: the number is not finite in the unit system of the deck");
}

TEST(CalculixDeck, HasNoNumberOfMoreThanTwentyCharacters)
{
    for (const double number : {5.098581064889641e-09, -2.2250738585072014e-308, 1.7976931348623157e308,
                                0.12345678901234567, 123456789012345678.0, -1.2345678901234567e-5})
    {
        MaterialMaker material;
        material.number(Id::Density, number);
        const std::string text = deckOf(material, "SI").text;
        const std::size_t begin = text.find("*DENSITY\n") + 9;
        const std::string written = text.substr(begin, text.find('\n', begin) - begin);
        EXPECT_LE(written.size(), 20U) << written;
        std::istringstream stream(written);
        double back = 0.0;
        stream >> back;
        EXPECT_NEAR(back / number, 1.0, 1e-12) << written;
    }
}

TEST(CalculixDeck, HasADecimalPointInAnyLocale)
{
    const vxtest::CommaLocale locale;
    MaterialMaker material;
    material.number(Id::Density, 1.2345e-5);
    EXPECT_THAT(deckOf(material, "SI").text, HasSubstr("*DENSITY\n1.2345e-5\n"));
}

TEST(CalculixDeck, GivesEachMaterialANameOfItsOwn)
{
    const MaterialMaker empty;
    const auto& material = empty.get();
    const Deck deck = vxDecks::writeDeck(vxDecks::Format::Calculix,
                                         {{"Steel (new), 1", {}, &material},
                                          {"steel_new_1", {}, &material},
                                          {"42CrMo4", {}, &material},
                                          {"", {}, &material},
                                          {"\xE9\x92\xA2\n*STEP", {}, &material},
                                          {std::string(90, 'x'), {}, &material},
                                          {std::string(100, 'X'), {}, &material}},
                                         {});
    std::vector<std::string> names;
    for (const auto& one : deck.report.materials)
        names.push_back(one.writtenName);
    EXPECT_THAT(names, testing::ElementsAre("Steel_new_1", "steel_new_1_2", "M_42CrMo4", "M", "STEP",
                                            std::string(80, 'x'), std::string(78, 'X') + "_2"));
    EXPECT_THAT(deck.text, HasSubstr("** Steel (new), 1\n*MATERIAL, NAME=Steel_new_1\n"));
    EXPECT_THAT(deck.text, HasSubstr("** \xE9\x92\xA2 *STEP\n*MATERIAL, NAME=STEP\n")) << "a name cannot add a line";
    EXPECT_EQ(deck.report.materials[2].notes.at(0).text(),
              "renamed \"M_42CrMo4\", because the format does not take the name or has it already");
    EXPECT_THAT(deck.report.materials[5].notes.at(0).text(), testing::StartsWith("renamed \"" + std::string(80, 'x')));
}

} // namespace
