#include "SampleMaterials.h"

#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Id = vxMat::PropertyId;
using testing::EndsWith;
using vxDecks::Format;
using vxtest::outcomeOf;

std::string bodyOf(const vxtest::MaterialMaker& material)
{
    return vxtest::bodyOf(Format::Apdl, material);
}

vxDecks::Deck deckOf(const vxtest::MaterialMaker& material)
{
    return vxtest::deckOf(Format::Apdl, material.get(), "mm-t-s");
}

TEST(ApdlDeck, HasAResistivityWithoutErrorsOfRounding)
{
    vxtest::MaterialMaker insulator;
    insulator.number(Id::ElectricalConductivity, 1e-5); // 1 / 1e-5 is 99999.99999999999
    EXPECT_THAT(vxtest::deckOf(Format::Apdl, insulator.get(), "SI").text, EndsWith("MP,RSVX,1,1e5\n"));
}

TEST(ApdlDeck, HasOnePropertyInEachCommand)
{
    EXPECT_EQ(bodyOf(*vxtest::steel()), "! Material 1: Test\n"
                                        "MP,DENS,1,7.85e-9\n"
                                        "MP,C,1,4.9e8\n"
                                        "MP,KXX,1,54\n"
                                        "MP,EX,1,2e5\n"
                                        "MP,PRXY,1,0.3\n");
    EXPECT_EQ(bodyOf(*vxtest::fluid()), "! Material 1: Test\n"
                                        "MP,DENS,1,1e-9\n"
                                        "MP,SONC,1,1480000\n"
                                        "MP,C,1,4.2e9\n"
                                        "MP,KXX,1,0.6\n"
                                        "MP,VISC,1,1e-9\n");
}

TEST(ApdlDeck, HasTheResistivityOfAConductor)
{
    vxtest::MaterialMaker copper;
    copper.number(Id::ElectricalConductivity, 5e7).number(Id::RelativePermittivity, 1.0);
    copper.number(Id::RelativePermeability, 5.0);
    EXPECT_EQ(bodyOf(copper), "! Material 1: Test\n"
                              "MP,RSVX,1,0.02\n" // 50 kS/mm
                              "MP,PERX,1,1\n"
                              "MP,MURX,1,5\n");
    copper.number(Id::ElectricalConductivity, 0.0);
    EXPECT_EQ(outcomeOf(deckOf(copper), Id::ElectricalConductivity), "lost: a conductivity of 0 has no resistivity");
}

TEST(ApdlDeck, HasTheTangentModulusOfABilinearCurve)
{
    // 200000 * 1450 / 201450
    EXPECT_THAT(bodyOf(*vxtest::bilinear()), EndsWith("TB,BISO,1,1\nTBDATA,1,250,1439.5631670389675\n"));
    auto kinematic = vxtest::bilinear();
    kinematic->word(Id::PlasticHardeningType, "kinematic");
    EXPECT_THAT(bodyOf(*kinematic), EndsWith("TB,BKIN,1,1\nTBDATA,1,250,1439.5631670389675\n"));
    EXPECT_EQ(outcomeOf(deckOf(*kinematic), Id::PlasticHardeningFactor),
              "converted: in MPa instead of Pa: as the tangent modulus E H / (E + H), the slope of stress over total "
              "strain");
}

TEST(ApdlDeck, HasAHardeningCurveOverPlasticStrain)
{
    EXPECT_THAT(bodyOf(*vxtest::multilinear()), EndsWith("TB,PLASTIC,1,1,2,MISO\n"
                                                         "TBPT,DEFI,0,250\n"
                                                         "TBPT,DEFI,0.05,300\n"));
    auto kinematic = vxtest::multilinear();
    kinematic->word(Id::PlasticHardeningType, "Kinematic");
    EXPECT_THAT(bodyOf(*kinematic), testing::HasSubstr("TB,PLASTIC,1,1,2,KINH\n"));
}

TEST(ApdlDeck, HasTheConstantsOfEachHyperelasticModel)
{
    // mu = 2 C10
    EXPECT_THAT(bodyOf(*vxtest::neoHooke()), EndsWith("TB,HYPER,1,1,2,NEO\nTBDATA,1,1,0.002\n"));
    auto mooney = vxtest::mooney();
    EXPECT_THAT(bodyOf(*mooney), EndsWith("TB,HYPER,1,1,2,MOONEY\nTBDATA,1,0.3,0.2,0.002\n"));
    mooney->number(Id::MaterialConstantC11, 1e4).number(Id::IncompressibilityParameterD1, 0.0);
    EXPECT_THAT(bodyOf(*mooney), EndsWith("TB,HYPER,1,1,3,MOONEY\nTBDATA,1,0.3,0.2,0.01,0\n"));
    EXPECT_THAT(bodyOf(*vxtest::arrudaBoyce()), EndsWith("TB,HYPER,1,1,3,BOYCE\nTBDATA,1,1,5,0.002\n"));
}

TEST(ApdlDeck, HasRelaxationAndCreep)
{
    EXPECT_THAT(bodyOf(*vxtest::prony()), EndsWith("TB,PRONY,1,1,1,SHEAR\nTBDATA,1,0.5,2\n"));
    EXPECT_THAT(bodyOf(*vxtest::creeping()), EndsWith("TB,CREEP,1,1,4,2\nTBDATA,1,1e-10,5,0,0\n"));
    auto wrong = vxtest::prony();
    wrong->number(Id::ShearRelaxationModulus, 1.5);
    EXPECT_EQ(outcomeOf(deckOf(*wrong), Id::ShearRelaxationModulus),
              "lost: Shear relaxation modulus = 1.5 is not possible; the value must be above 0 and at most 1");
}

} // namespace
