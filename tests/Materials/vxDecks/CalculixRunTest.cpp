#include "DecksTesting.h"
#include "TwinModel.h"

#include "vxMaterial/model/PropertyId.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using Id = vxMat::PropertyId;
using Type = vxMat::eMaterialType;
using vxtest::Physics;
using vxtest::runTwins;
using vxtest::TwinRun;

/// The load on a cube of 1 m, and the results of the steps.
struct Expected
{
    Type type;
    double load;
    std::vector<double> results;
};

/// Runs a material in both unit systems and compares the results with each other and with the expected ones.
void check(const vxMat::MaterialBase& material, Physics physics, double load, const std::vector<double>& results)
{
    SCOPED_TRACE(material.name);
    const TwinRun run = runTwins(material, physics, load);
    ASSERT_TRUE(run.succeeded) << run.log;
    ASSERT_EQ(run.steps.size(), results.size()) << run.log;
    for (std::size_t i = 0; i < results.size(); ++i) {
        EXPECT_LT(run.steps[i].difference, 1e-9) << "step " << i;
        EXPECT_NEAR(run.steps[i].value / results[i], 1.0, 2e-6) << "step " << i; // seven digits are printed
    }
}

TEST(CalculixRun, StretchesLinearMaterialsByForceOverModulus)
{
    // load / E
    const std::vector<Expected> all{
        {Type::StructuralSteel, 2e8, {1e-3}},         {Type::AluminumAlloy, 7.1e7, {1e-3}},
        {Type::StainlessSteel, 1.94e8, {1e-3}},       {Type::Concrete, 3e7, {1e-3}},
        {Type::CopperAlloy, 1.1e8, {1e-3}},           {Type::CastIron, 1.1e8, {1e-3}},
        {Type::TitaniumBeta21S, 9.7e7, {1e-3}},       {Type::PlasticMaterial2, 206.9, {1e-3}},
        {Type::ViscoElasticMaterial1, 206.9, {1e-3}},
    };
    for (const Expected& one : all)
        check(vxtest::libraryMaterial(one.type), Physics::Static, one.load, one.results);
}

TEST(CalculixRun, HardensBilinearMaterialsByThePlasticModulus)
{
    // s / E + (s - s0) / H at a stress 2 % above s0
    const std::vector<Expected> all{
        {Type::StructuralSteelNL, 2.55e8, {2.55e8 / 2e11 + 5e6 / 1.45e9}},
        {Type::StainlessSteelNL, 2.244e8, {2.244e8 / 1.93e11 + 4.4e6 / 1.8e9}},
        {Type::AluminumAlloyNL, 2.856e8, {2.856e8 / 7.1e10 + 5.6e6 / 5e8}},
        {Type::CopperAlloyNL, 2.856e8, {2.856e8 / 1.1e11 + 5.6e6 / 1.15e9}},
        {Type::TitaniumAlloyNL, 9.486e8, {9.486e8 / 9.6e10 + 1.86e7 / 2.15e9}},
    };
    for (const Expected& one : all)
        check(vxtest::libraryMaterial(one.type), Physics::Static, one.load, one.results);
}

TEST(CalculixRun, HardensAlongTheCurveOfAMultilinearMaterial)
{
    // 500 Pa is 50/158 of the way from 450 Pa at 0 to 608 Pa at 0.05.
    check(vxtest::libraryMaterial(Type::PlasticMaterial1), Physics::Static, 500.0,
          {500.0 / 206900.0 + 0.05 * 50.0 / 158.0});
}

TEST(CalculixRun, StretchesElastomersByTheirEnergy)
{
    // Minima of the energy of a bar under a dead load, computed with 30 digits; the energy of volume is (J - 1)^2 / D1, for
    // the eight-chain model ((J^2 - 1) / 2 - ln J) / D1.
    const std::vector<Expected> all{
        {Type::Elastomer1, 500.0, {0.123982594}},
        {Type::Elastomer2, 0.2, {0.0590892196}},
        {Type::Elastomer3, 0.2, {0.0790337349}},
        {Type::NeopreneRubber, 1e4, {0.0657529664}},
    };
    for (const Expected& one : all)
        check(vxtest::libraryMaterial(one.type), Physics::Static, one.load, one.results);
}

TEST(CalculixRun, StretchesARubberWithC11ByItsEnergy)
{
    vxtest::MaterialMaker rubber;
    rubber.on(Id::MooneyRivlin).number(Id::MaterialConstantC10, 0.1486).number(Id::MaterialConstantC01, 0.4849);
    rubber.number(Id::MaterialConstantC11, 0.05).number(Id::IncompressibilityParameterD1, 0.0789);
    check(rubber.get(), Physics::Static, 0.2, {0.0589910792});
}

TEST(CalculixRun, CreepsByTheRateOfTheLaw)
{
    // 10 Pa / 206900 Pa, and after 10 s also 1e-10 10^5 10 s
    check(vxtest::libraryMaterial(Type::CreepMaterial1), Physics::Creep, 10.0,
          {10.0 / 206900.0, 10.0 / 206900.0 + 1e-4});
}

TEST(CalculixRun, HeatsAndConductsAsDensityHeatAndConductivitySay)
{
    int count = 0;
    for (const vxMat::MaterialBase* const material : vxtest::libraryMaterials()) {
        double density = 0.0;
        double heat = 0.0;
        double conductivity = 0.0;
        if (!material->getPropertyValue(Id::Density, density) || !material->getPropertyValue(Id::SpecificHeat, heat) ||
            !material->getPropertyValue(Id::ThermalConductivity, conductivity))
            continue;
        check(*material, Physics::Transient, 1e3, {2e3 / (density * heat), 1e3 / conductivity});
        ++count;
    }
    EXPECT_EQ(count, 14) << "seven linear metals and concrete, five with plasticity, air and water";
}

TEST(CalculixRun, ReadsTheDecksOfMaterialsThatItCannotCompute)
{
    for (const Type type : {Type::EMMaterial1, Type::EMMaterial2, Type::AcousticMaterial1, Type::AcousticMaterial2,
                            Type::Air, Type::Water})
    {
        const TwinRun run = vxtest::readDeck(vxtest::libraryMaterial(type));
        EXPECT_TRUE(run.succeeded) << run.log;
        EXPECT_EQ(run.log.find("parameter not recognized"), std::string::npos) << run.log;
        EXPECT_EQ(run.log.find("card image cannot be interpreted"), std::string::npos) << run.log;
    }
}

} // namespace
