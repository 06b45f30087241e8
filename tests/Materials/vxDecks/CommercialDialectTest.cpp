#include "ReadingTesting.h"
#include "SampleMaterials.h"

#include "vxDecks/Mapping.h"
#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Id = vxMat::PropertyId;
using testing::HasSubstr;
using vxDecks::Deck;
using vxDecks::Dialect;
using vxDecks::Format;
using vxtest::MaterialMaker;
using vxtest::outcomeOf;

Deck deckOf(const MaterialMaker& material, const char* units = "mm-t-s", Format format = Format::Calculix)
{
    vxDecks::DeckOptions options;
    options.units = *vxUnits::UnitSystem::parse(units);
    options.dialect = Dialect::Commercial;
    return vxDecks::writeDeck(format, {{"Test", 1, &material.get()}}, options);
}

TEST(CommercialDialect, HasViscoelasticityByTheModulusAtOnce)
{
    const Deck deck = deckOf(*vxtest::prony());
    EXPECT_THAT(deck.text, HasSubstr("*ELASTIC, MODULI=INSTANTANEOUS\n2e5, 0.3\n"));
    EXPECT_THAT(deck.text, HasSubstr("*VISCOELASTIC, TIME=PRONY\n0.5, 0, 2\n"));
    EXPECT_EQ(outcomeOf(deck, Id::RelaxationTime), "carried");
    EXPECT_THAT(deckOf(*vxtest::steel()).text, HasSubstr("*ELASTIC\n2e5, 0.3\n"));
}

TEST(CommercialDialect, NamesTheLawOfCreepAndTakesItBesidePlasticity)
{
    auto material = vxtest::creeping();
    EXPECT_THAT(deckOf(*material).text, HasSubstr("*CREEP, LAW=TIME\n1e-10, 5, 0\n"));
    material->on(Id::Plasticity).word(Id::PlasticHardeningType, "Bilinear");
    material->number(Id::PlasticInitialYieldStress, 2.5e8).number(Id::PlasticHardeningFactor, 1e9);
    const Deck deck = deckOf(*material);
    EXPECT_THAT(deck.text, HasSubstr("*PLASTIC\n"));
    EXPECT_THAT(deck.text, HasSubstr("*CREEP, LAW=TIME\n"));
    EXPECT_EQ(outcomeOf(deckOf(*material, "SI"), Id::CreepModulusA),
              "lost: the solver computes with errors if the factor is below 1e-27; choose another unit system");
}

TEST(CommercialDialect, HasIncompressibleRubbers)
{
    auto rubber = vxtest::mooney();
    rubber->number(Id::IncompressibilityParameterD1, 0.0);
    const Deck deck = deckOf(*rubber);
    EXPECT_THAT(deck.text, HasSubstr("*HYPERELASTIC, MOONEY-RIVLIN\n0.3, 0.2, 0\n"));
    EXPECT_NE(outcomeOf(deck, Id::IncompressibilityParameterD1).substr(0, 12), "approximated");
    rubber->number(Id::IncompressibilityParameterD1, 1e-12);
    EXPECT_THAT(deckOf(*rubber, "SI").text, HasSubstr("3e5, 2e5, 1e-12\n")) << "it has no floor";
}

TEST(CommercialDialect, HardensKinematicallyAlongAStraightLineOnly)
{
    auto straight = vxtest::bilinear();
    straight->word(Id::PlasticHardeningType, "Kinematic").number(Id::PlasticHardeningFactor, 0.0);
    EXPECT_THAT(deckOf(*straight).text, HasSubstr("*PLASTIC, HARDENING=KINEMATIC\n250, 0\n250, 10\n"));
    auto curved = vxtest::multilinear();
    curved->word(Id::PlasticHardeningType, "Kinematic");
    curved->list(Id::PlasticYieldStress, {2.5e8, 3e8, 3.2e8}).list(Id::PlasticStrain, {0.0, 0.05, 0.1});
    const Deck deck = deckOf(*curved);
    EXPECT_THAT(deck.text, HasSubstr("*PLASTIC\n250, 0\n300, 0.05\n320, 0.1\n"));
    EXPECT_EQ(outcomeOf(deck, Id::PlasticHardeningType), "lost: the card hardens isotropically along its curve");
}

TEST(CommercialDialect, HasFluidsByTheirBulkModulusAndViscosity)
{
    // 1000 kg/m^3 (1480 m/s)^2 = 2.1904e9 Pa
    const Deck deck = deckOf(*vxtest::fluid());
    EXPECT_THAT(deck.text, HasSubstr("*ACOUSTIC MEDIUM, BULK MODULUS\n2190.4\n"));
    EXPECT_THAT(deck.text, HasSubstr("*VISCOSITY\n1e-9\n"));
    EXPECT_EQ(deck.text.find("*FLUID CONSTANTS"), std::string::npos);
    EXPECT_EQ(outcomeOf(deck, Id::SpeedOfSound),
              "converted: in mm/s instead of m/s: as the bulk modulus, the density times the square of the speed");
    MaterialMaker sound;
    sound.number(Id::SpeedOfSound, 340.0);
    EXPECT_EQ(outcomeOf(deckOf(sound), Id::SpeedOfSound), "lost: the card needs Density too");
}

TEST(CommercialDialect, HasAbsoluteConstantsOfElectromagnetics)
{
    MaterialMaker material;
    material.number(Id::RelativePermittivity, 2.0).number(Id::RelativePermeability, 1000.0);
    const std::string si = deckOf(material, "SI").text;
    EXPECT_THAT(si, HasSubstr("*DIELECTRIC\n1.77083756256e-11\n"));
    EXPECT_THAT(si, HasSubstr("*MAGNETIC PERMEABILITY\n0.00125663706212\n"));
    // F/m = A^2 s^4 / (kg m^3) = 1e-6 A^2 s^4 / (t mm^3), H/m = kg m / (s^2 A^2) = 1 t mm / (s^2 A^2)
    const std::string mm = deckOf(material, "mm-t-s").text;
    EXPECT_THAT(mm, HasSubstr("*DIELECTRIC\n1.77083756256e-17\n"));
    EXPECT_THAT(mm, HasSubstr("*MAGNETIC PERMEABILITY\n0.00125663706212\n"));
}

TEST(CommercialDialect, HasElectromagneticsThatComeBack)
{
    MaterialMaker material;
    material.number(Id::RelativePermittivity, 2.0).number(Id::RelativePermeability, 1000.0);
    for (const char* const units : {"SI", "mm-t-s", "cm-g-s"}) {
        const vxDecks::ReadDeck read = vxtest::readText(Format::Calculix, deckOf(material, units).text);
        EXPECT_DOUBLE_EQ(vxtest::numberOf(read, Id::RelativePermittivity), 2.0) << units;
        EXPECT_DOUBLE_EQ(vxtest::numberOf(read, Id::RelativePermeability), 1000.0) << units;
        EXPECT_EQ(countRefused(read.report), 0U);
    }
}

TEST(CommercialDialect, HasNoEffectInOtherFormats)
{
    const auto steel = vxtest::steel();
    for (const vxDecks::FormatInfo& format : vxDecks::formats()) {
        if (format.format != Format::Calculix) {
            EXPECT_EQ(deckOf(*steel, "mm-t-s", format.format).text,
                      vxtest::deckOf(format.format, steel->get(), "mm-t-s").text);
        }
    }
}

TEST(Dialects, AreFoundByNameInTheirFormat)
{
    ASSERT_NE(vxDecks::findDialect(Format::Calculix, "Commercial"), nullptr);
    EXPECT_EQ(vxDecks::findDialect(Format::Calculix, "commercial")->dialect, Dialect::Commercial);
    EXPECT_EQ(vxDecks::findDialect(Format::Calculix, "calculix")->dialect, Dialect::Standard);
    EXPECT_EQ(vxDecks::findDialect(Format::Nastran, "commercial"), nullptr);
}

TEST(Dialects, HaveARowForEachQuantity)
{
    EXPECT_EQ(vxDecks::mappings(Dialect::Commercial).size(), vxMat::catalogueSize);
    const auto& prony = *vxDecks::findMapping(Format::Calculix, Id::RelaxationTime, Dialect::Commercial);
    EXPECT_EQ(std::string(prony.card), "*VISCOELASTIC");
    EXPECT_EQ(prony.proof, vxDecks::Proof::NotRun);
}

} // namespace
