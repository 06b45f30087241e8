#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Plausibility.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using Id = vxMat::PropertyId;
using vxMat::eMaterialType;
using vxUnits::checkPlausibility;
using vxUnits::Doubt;

/// A doubt that a library material deserves: the quantity, what is doubted, and the remedy, "" if no unit explains it.
struct Deserved
{
    std::int32_t id;
    std::string doubt;
    std::string remedy;
};

bool operator==(const Deserved& one, const Deserved& other)
{
    return one.id == other.id && one.doubt == other.doubt && one.remedy == other.remedy;
}

std::ostream& operator<<(std::ostream& stream, const Deserved& one)
{
    return stream << one.id << ' ' << one.doubt << " => " << one.remedy;
}

const std::string megapascals = "206900 MPa is usual for steel: multiply by 1e6";
const std::string allMegapascals = "The stresses look like MPa: convert them";

/// The reasons, in the order of the library. All other materials are sensible.
const std::map<eMaterialType, std::vector<Deserved>> deserved = {
    // 8300 kg/m3 with the specific heat of aluminium: copper has 385 J/(kg K), no solid stores 7.5 MJ/(m3 K) when cold.
    {eMaterialType::CopperAlloy, {{Id::SpecificHeat, "plausibility.heat-per-volume", ""}}},
    {eMaterialType::CopperAlloyNL, {{Id::SpecificHeat, "plausibility.heat-per-volume", ""}}},
    // E = 206900 Pa beside the density of steel: moduli in MPa; so are the yield stresses and the creep factor.
    {eMaterialType::PlasticMaterial1, {{Id::YoungsModulus, "plausibility.wave-speed", allMegapascals}}},
    {eMaterialType::PlasticMaterial2, {{Id::YoungsModulus, "plausibility.wave-speed", megapascals}}},
    {eMaterialType::ViscoElasticMaterial1, {{Id::YoungsModulus, "plausibility.wave-speed", megapascals}}},
    {eMaterialType::CreepMaterial1, {{Id::YoungsModulus, "plausibility.wave-speed", allMegapascals}}},
    // D1 makes the bulk modulus equal to the shear modulus, which is a compressible foam and no rubber; and rubber so soft
    // does not weigh as much as steel.
    {eMaterialType::Elastomer1,
     {{Id::Density, "plausibility.wave-speed", ""},
      {Id::IncompressibilityParameterD1, "plausibility.bulk-over-shear",
       "0.001 1/MPa would not be doubted: multiply by 1e-6"}}},
    // Constants below 1 Pa: they are in MPa, and 1/MPa. The density is that of steel, which no unit explains.
    {eMaterialType::Elastomer2,
     {{Id::Density, "plausibility.wave-speed", ""},
      {Id::IncompressibilityParameterD1, "plausibility.above-range", allMegapascals},
      {Id::MaterialConstantC10, "plausibility.below-range", allMegapascals}}},
    {eMaterialType::Elastomer3,
     {{Id::Density, "plausibility.wave-speed", ""},
      {Id::InitialShearModulusMu, "plausibility.below-range", allMegapascals},
      {Id::IncompressibilityParameterD1, "plausibility.above-range", allMegapascals}}},
    // Rubber of 54 kPa with the density of steel; chloroprene rubber has 1230 kg/m3.
    {eMaterialType::NeopreneRubber, {{Id::Density, "plausibility.wave-speed", ""}}},
    // A static permittivity below that of vacuum.
    {eMaterialType::EMMaterial2, {{Id::RelativePermittivity, "plausibility.below-range", ""}}},
};

TEST(LibraryDoubts, AreThoseThatTheMaterialsDeserve)
{
    for (const vxMat::LibraryEntry& entry : vxMat::libraryEntries()) {
        const auto material = entry.create();
        std::vector<Deserved> found;
        for (const Doubt& doubt : checkPlausibility(*material))
            found.push_back({doubt.id, doubt.message.id, doubt.remedy ? doubt.remedy->message.text() : ""});
        const auto expected = deserved.find(entry.type);
        EXPECT_EQ(found, expected == deserved.end() ? std::vector<Deserved>() : expected->second) << material->name;
    }
}

TEST(LibraryDoubts, ARemedyTakesThemAway)
{
    for (const auto type : {eMaterialType::PlasticMaterial1, eMaterialType::PlasticMaterial2,
                            eMaterialType::ViscoElasticMaterial1, eMaterialType::CreepMaterial1})
    {
        const auto material = vxMat::createLibraryMaterial(type);
        const auto doubts = checkPlausibility(*material);
        ASSERT_FALSE(doubts.empty());
        applyRemedy(*doubts.front().remedy, *material);
        EXPECT_EQ(material->findProperty(Id::YoungsModulus)->value, 2.069e11);
        EXPECT_TRUE(checkPlausibility(*material).empty()) << material->name;
    }
}

TEST(LibraryDoubts, ARemedyForStressesChangesAllOfThem)
{
    const auto plastic = vxMat::createLibraryMaterial(eMaterialType::PlasticMaterial1);
    applyRemedy(*checkPlausibility(*plastic).front().remedy, *plastic);
    EXPECT_EQ(plastic->getPropertyValues(Id::PlasticYieldStress),
              (std::vector<double>{450e6, 608e6, 679e6, 732e6, 752e6, 766e6, 780e6}));
    EXPECT_EQ(plastic->getPropertyValues(Id::PlasticStrain).back(), 0.5);
    EXPECT_EQ(plastic->findProperty(Id::Density)->value, 7850.0);
    const auto creep = vxMat::createLibraryMaterial(eMaterialType::CreepMaterial1);
    applyRemedy(*checkPlausibility(*creep).front().remedy, *creep);
    EXPECT_EQ(creep->findProperty(Id::CreepModulusA)->value, 1e-40);
}

} // namespace
