#include "vxConstitutive/ModelDoubts.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace vxConstitutive;
using Id = vxMat::PropertyId;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using vxMat::eMaterialType;

namespace {

std::unique_ptr<vxMat::CMaterial> materialOf(const std::vector<std::pair<std::int32_t, double>>& numbers)
{
    auto material = std::make_unique<vxMat::CMaterial>();
    for (const auto& [id, number] : numbers)
        material->setProperty(id, std::make_unique<vxMat::MaterialProperty>(id, "", "", number));
    return material;
}

void setWord(vxMat::CMaterial& material, std::int32_t id, const std::string& word)
{
    material.addProperty(id, "", word, "", "");
}

/// Returns the doubts as their keys and quantities: "c10-and-mu-differ 26".
std::vector<std::string> doubtsAbout(const vxMat::MaterialBase& material)
{
    std::vector<std::string> texts;
    for (const ModelDoubt& doubt : doubtsAboutModels(material))
        texts.push_back(findingRecord(doubt.finding.id).key + (' ' + std::to_string(doubt.propertyId)));
    return texts;
}

TEST(ModelDoubts, OfTheLibraryAreThoseThatTheMaterialsDeserve)
{
    const std::map<eMaterialType, std::vector<std::string>> deserved = {
        // D1 makes the bulk modulus equal to the shear modulus. Compression in three tests then halves the volume, and
        // the energy (J-1)^2/D1 does not resist a volume below a half: d(J dU/dJ)/d(ln J) = 2 J (2 J - 1)/D1.
        {eMaterialType::Elastomer1, {"unstable-below 25", "unstable-below 25", "unstable-below 25"}},
    };
    for (const vxMat::LibraryEntry& entry : vxMat::libraryEntries()) {
        const auto material = entry.create();
        const auto expected = deserved.find(entry.type);
        EXPECT_EQ(doubtsAbout(*material), expected == deserved.end() ? std::vector<std::string>() : expected->second)
            << material->name;
    }
}

TEST(ModelDoubts, OfTheCompressibleLibraryElastomerVanishWithTheD1OfARubber)
{
    vxMat::CMaterial rubber;
    rubber.copyPropertiesFrom(vxMat::Elastomer1());
    setWord(rubber, Id::IncompressibilityParameterD1, "1e-9");
    EXPECT_THAT(doubtsAbout(rubber), IsEmpty());
}

TEST(ModelDoubts, AreAboutC10AndMuThatDiffer)
{
    auto rubber = materialOf({{Id::NeoHooke, 1.0}, {Id::MaterialConstantC10, 5e5}, {Id::InitialShearModulusMu, 3e6}});
    EXPECT_THAT(doubtsAbout(*rubber), ElementsAre("c10-and-mu-differ 26"));
    setWord(*rubber, Id::InitialShearModulusMu, "1e6");
    EXPECT_THAT(doubtsAbout(*rubber), IsEmpty());
}

// An incompressible rubber is stable where the second derivatives of W by two logarithmic principal strains are positive
// definite. The abscissas are those at which central differences of W = C10 (I1 - 3) + C01 (I2 - 3) are no longer so.
TEST(ModelDoubts, NameTheFirstUnstableAbscissaInEachMode)
{
    const auto rubber =
        materialOf({{Id::MooneyRivlin, 1.0}, {Id::MaterialConstantC10, 1e6}, {Id::MaterialConstantC01, -1e5}});
    std::vector<std::string> texts;
    for (const ModelDoubt& doubt : doubtsAboutModels(*rubber)) {
        EXPECT_EQ(doubt.propertyId, Id::MaterialConstantC01);
        texts.push_back(describe(doubt.finding));
    }
    EXPECT_THAT(
        texts,
        ElementsAre(StartsWith("uniaxial tension and compression: the material is unstable above the stretch 3.16 "),
                    StartsWith("equibiaxial tension: the material is unstable above the stretch 2.25 "),
                    StartsWith("planar tension (pure shear): the material is unstable above the stretch 3.05 "),
                    StartsWith("simple shear: the material is unstable above the amount of shear 2.72 ")));
}

TEST(ModelDoubts, SayOnceThatARubberIsUnstableWithoutLoad)
{
    EXPECT_THAT(doubtsAbout(*materialOf({{Id::NeoHooke, 1.0}, {Id::MaterialConstantC10, -5e5}})),
                ElementsAre("initial-modulus-negative 26"));
}

TEST(ModelDoubts, AreAboutTheLimitOfChainsInsideTheRange)
{
    const auto rubber = [](double limit) {
        return materialOf(
            {{Id::ArrudaBoyce, 1.0}, {Id::InitialShearModulusMu, 1e6}, {Id::LimitingNetworkStretch, limit}});
    };
    // Compression to 0.4 has I1 = 0.4^2 + 2/0.4 = 5.16, which a chain of the stretch (5.16/3)^0.5 = 1.31 reaches.
    EXPECT_THAT(doubtsAbout(*rubber(1.3)), testing::Contains("locking-inside-range 127"));
    EXPECT_THAT(doubtsAbout(*rubber(1.0)), ElementsAre("limiting-stretch-too-low 127"));
    EXPECT_THAT(doubtsAbout(*rubber(5.0)), IsEmpty());
}

TEST(ModelDoubts, AreAboutHardeningThatFalls)
{
    auto metal = materialOf({{Id::Plasticity, 1.0},
                             {Id::YoungsModulus, 2e11},
                             {Id::PoissonsRatio, 0.3},
                             {Id::PlasticInitialYieldStress, 2.5e8},
                             {Id::PlasticHardeningFactor, -1e9}});
    setWord(*metal, Id::PlasticYieldType, "Mises");
    EXPECT_THAT(doubtsAbout(*metal), ElementsAre("hardening-falls 36"));
    setWord(*metal, Id::PlasticHardeningType, "Multilinear");
    setWord(*metal, Id::PlasticStrain, "0, 0.1, 0.2");
    setWord(*metal, Id::PlasticYieldStress, "2e8, 3e8, 2.5e8");
    EXPECT_THAT(doubtsAbout(*metal), ElementsAre("hardening-falls 38"));
    setWord(*metal, Id::PlasticHardeningType, "Swift");
    EXPECT_THAT(doubtsAbout(*metal), ElementsAre("hardening-without-data 37"));
}

TEST(ModelDoubts, TakeCurvesFromTheirSource)
{
    const auto rubber = materialOf({{Id::NeoHooke, 1.0}, {Id::MaterialConstantC10, 5e5}});
    std::vector<Mode> asked;
    doubtsAboutModels(*rubber, [&asked](const Model& model, const CurveRequest& request) {
        asked.push_back(request.mode);
        return std::make_shared<const Curve>(model.curve(request));
    });
    EXPECT_THAT(asked,
                ElementsAre(Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar, Mode::SimpleShear, Mode::Volumetric));
}

} // namespace
