#include "SampleMaterials.h"

#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Id = vxMat::PropertyId;
using testing::EndsWith;
using testing::HasSubstr;
using vxDecks::Format;
using vxtest::outcomeOf;

std::string bodyOf(const vxtest::MaterialMaker& material)
{
    return vxtest::bodyOf(Format::LsDyna, material);
}

vxDecks::Deck deckOf(const vxtest::MaterialMaker& material, const char* units = "mm-t-s")
{
    return vxtest::deckOf(Format::LsDyna, material.get(), units);
}

// Each field has 10 characters: MID, RO, E, PR, ...

TEST(LsDynaDeck, HasElasticityAndHeat)
{
    EXPECT_EQ(bodyOf(*vxtest::steel()), "*MAT_ELASTIC_TITLE\n"
                                        "Test\n"
                                        "         1   7.85e-9       2e5       0.3\n"
                                        "*MAT_THERMAL_ISOTROPIC_TITLE\n"
                                        "Test\n"
                                        "         1   7.85e-9         0         0\n"
                                        "     4.9e8        54\n");
}

TEST(LsDynaDeck, HasNoTitleThatIsAKeywordOrAComment)
{
    const auto steel = vxtest::elastic();
    for (const char* const name : {"*END", "$ steel"}) {
        const auto deck = vxDecks::writeDeck(Format::LsDyna, {{name, 1, &steel->get()}}, {});
        EXPECT_THAT(deck.text, HasSubstr(std::string("*MAT_ELASTIC_TITLE\n ") + name + "\n         1"));
    }
}

TEST(LsDynaDeck, HasLongFieldsIfANumberWouldLoseDigits)
{
    auto steel = vxtest::elastic();
    steel->number(Id::YoungsModulus, 206123456789.0).number(Id::Density, 7850.0);
    EXPECT_THAT(deckOf(*steel, "SI").text,
                EndsWith("*MAT_ELASTIC_TITLE+\n"
                         "Test\n"
                         "                   1                7850        206123456789                 0.3\n"));
}

TEST(LsDynaDeck, HasTheTangentModulusOfABilinearCurve)
{
    // 200000 * 1450 / 201450
    const std::string fields = "                   1             7.85e-9                 2e5                 0.3"
                               "                 250  1439.5631670389675                   ";
    const std::string second = "                   0                   0                   0                   0\n";
    auto material = vxtest::bilinear();
    EXPECT_EQ(bodyOf(*material), "*MAT_PLASTIC_KINEMATIC_TITLE+\nTest\n" + fields + "1\n" + second);
    material->word(Id::PlasticHardeningType, "Kinematic");
    EXPECT_EQ(bodyOf(*material), "*MAT_PLASTIC_KINEMATIC_TITLE+\nTest\n" + fields + "0\n" + second);
}

TEST(LsDynaDeck, HasAHardeningCurveOverPlasticStrain)
{
    EXPECT_EQ(bodyOf(*vxtest::multilinear()), "*MAT_PIECEWISE_LINEAR_PLASTICITY_TITLE\n"
                                              "Test\n"
                                              "         1   7.85e-9       2e5       0.3       250\n"
                                              "         0         0         1\n"
                                              "         0\n"
                                              "         0\n"
                                              "*DEFINE_CURVE\n"
                                              "         1         0         1         1\n"
                                              "                   0                 250\n"
                                              "                0.05                 300\n");
    auto kinematic = vxtest::multilinear();
    kinematic->word(Id::PlasticHardeningType, "Kinematic");
    EXPECT_EQ(outcomeOf(deckOf(*kinematic), Id::PlasticHardeningType),
              "lost: the card hardens isotropically along its curve");
}

TEST(LsDynaDeck, HasTheConstantsOfEachHyperelasticModel)
{
    // K = 1000 MPa, mu = 1 MPa: nu = 2998 / 6002
    EXPECT_THAT(bodyOf(*vxtest::neoHooke()), HasSubstr("*MAT_MOONEY-RIVLIN_RUBBER_TITLE+\nTest\n"
                                                       "                   1                1e-9                 0.5"
                                                       "                   0  0.4995001666111296\n"));
    auto mooney = vxtest::mooney();
    mooney->number(Id::MaterialConstantC11, 1e4);
    EXPECT_THAT(bodyOf(*mooney), EndsWith("*MAT_HYPERELASTIC_RUBBER_TITLE+\nTest\n"
                                          "                   1                   0  0.4995001666111296"
                                          "                   0\n"
                                          "                 0.3                 0.2                0.01\n"));
    // K, mu and the number of links 5^2
    EXPECT_EQ(bodyOf(*vxtest::arrudaBoyce()), "*MAT_ARRUDA_BOYCE_RUBBER_TITLE\nTest\n"
                                              "         1         0      1000         1        25\n"
                                              "         0         0         0\n");
    EXPECT_EQ(outcomeOf(deckOf(*vxtest::arrudaBoyce()), Id::LimitingNetworkStretch),
              "converted: as the number of links of a chain, the square of the stretch");
}

TEST(LsDynaDeck, ReportsTheKeywordThatHasAQuantity)
{
    const auto cardOf = [](const vxtest::MaterialMaker& material, std::int32_t id) {
        const vxDecks::Deck deck = deckOf(material);
        const std::string card = vxtest::rowOf(deck, id).card;
        EXPECT_THAT(deck.text, HasSubstr(card + "_TITLE"));
        return card;
    };
    EXPECT_EQ(cardOf(*vxtest::arrudaBoyce(), Id::InitialShearModulusMu), "*MAT_ARRUDA_BOYCE_RUBBER");
    EXPECT_EQ(cardOf(*vxtest::arrudaBoyce(), Id::LimitingNetworkStretch), "*MAT_ARRUDA_BOYCE_RUBBER");
    EXPECT_EQ(cardOf(*vxtest::multilinear(), Id::PlasticStrain), "*MAT_PIECEWISE_LINEAR_PLASTICITY");
    EXPECT_EQ(cardOf(*vxtest::bilinear(), Id::PlasticHardeningFactor), "*MAT_PLASTIC_KINEMATIC");
    auto mooney = vxtest::mooney();
    mooney->number(Id::MaterialConstantC11, 1e4);
    EXPECT_EQ(cardOf(*mooney, Id::MaterialConstantC11), "*MAT_HYPERELASTIC_RUBBER");
}

TEST(LsDynaDeck, HasRelaxationAsModuliAndDecay)
{
    auto material = vxtest::prony();
    material->number(Id::YoungsModulus, 2.6e11); // G = 100000 MPa, K = 216666.67 MPa
    EXPECT_THAT(bodyOf(*material), EndsWith("*MAT_VISCOELASTIC_TITLE+\nTest\n"
                                            "                   1             7.85e-9  216666.66666666663"
                                            "                 1e5               50000                 0.5\n"));
    EXPECT_EQ(outcomeOf(deckOf(*material), Id::RelaxationTime), "converted: as the decay constant, 1 / tau");
}

TEST(LsDynaDeck, HasCreepInItsTotalForm)
{
    auto primary = vxtest::creeping();
    primary->number(Id::CreepModulusM, -0.5); // A / (M + 1) = 2 A
    EXPECT_EQ(bodyOf(*primary), "*MAT_UNIFIED_CREEP_TITLE\nTest\n"
                                "         1   7.85e-9       2e5       0.3     2e-10         5       0.5\n");
}

TEST(LsDynaDeck, HasOneModelOfAFluid)
{
    auto fluid = vxtest::fluid();
    EXPECT_THAT(bodyOf(*fluid), testing::StartsWith("*MAT_ACOUSTIC_TITLE\nTest\n"
                                                    "         1      1e-9   1480000\n"
                                                    "         0         0         0         0\n"));
    EXPECT_EQ(outcomeOf(deckOf(*fluid), Id::DynamicViscosity), "lost: another model of the material has its number");
    vxtest::MaterialMaker oil;
    oil.number(Id::Density, 900.0).number(Id::DynamicViscosity, 0.1);
    EXPECT_EQ(bodyOf(oil), "*MAT_NULL_TITLE\nTest\n         1     9e-10         0      1e-7\n");
}

} // namespace
