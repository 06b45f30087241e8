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

/// The load on a cube, and the results of the steps.
struct Expected
{
    const vxMat::MaterialBase& material;
    std::vector<double> loads;
    std::vector<double> results;
};

const vxMat::MaterialBase& builtIn(Type type)
{
    return vxtest::libraryMaterial(type);
}

/// Runs materials in both unit systems and compares the results with each other and with the expected ones.
void check(Physics physics, const std::vector<Expected>& all)
{
    vxtest::TwinRequest request;
    request.physics = physics;
    if (physics == Physics::Creep)
        request.times = {11.0};
    for (const Expected& one : all)
        request.twins.push_back({&one.material, one.loads});
    const TwinRun run = runTwins(request);
    ASSERT_TRUE(run.succeeded) << run.log;
    for (std::size_t i = 0; i < all.size(); ++i) {
        SCOPED_TRACE(all[i].material.name);
        ASSERT_EQ(run.states[i].size(), all[i].results.size()) << run.log;
        for (std::size_t step = 0; step < all[i].results.size(); ++step) {
            EXPECT_LT(run.states[i][step].difference, 1e-9) << "step " << step;
            // Seven digits are printed.
            EXPECT_NEAR(run.states[i][step].value / all[i].results[step], 1.0, 2e-6) << "step " << step;
        }
    }
}

TEST(CalculixRun, StretchesLinearMaterialsByForceOverModulus)
{
    // load / E
    check(Physics::SmallStrain, {{builtIn(Type::StructuralSteel), {2e8}, {1e-3}},
                                 {builtIn(Type::AluminumAlloy), {7.1e7}, {1e-3}},
                                 {builtIn(Type::StainlessSteel), {1.94e8}, {1e-3}},
                                 {builtIn(Type::Concrete), {3e7}, {1e-3}},
                                 {builtIn(Type::CopperAlloy), {1.1e8}, {1e-3}},
                                 {builtIn(Type::CastIron), {1.1e8}, {1e-3}},
                                 {builtIn(Type::TitaniumBeta21S), {9.7e7}, {1e-3}},
                                 {builtIn(Type::PlasticMaterial2), {206.9}, {1e-3}},
                                 {builtIn(Type::ViscoElasticMaterial1), {206.9}, {1e-3}}});
}

TEST(CalculixRun, HardensBilinearMaterialsByThePlasticModulus)
{
    // s / E + (s - s0) / H at a stress 2 % above s0
    check(Physics::SmallStrain, {{builtIn(Type::StructuralSteelNL), {2.55e8}, {2.55e8 / 2e11 + 5e6 / 1.45e9}},
                                 {builtIn(Type::StainlessSteelNL), {2.244e8}, {2.244e8 / 1.93e11 + 4.4e6 / 1.8e9}},
                                 {builtIn(Type::AluminumAlloyNL), {2.856e8}, {2.856e8 / 7.1e10 + 5.6e6 / 5e8}},
                                 {builtIn(Type::CopperAlloyNL), {2.856e8}, {2.856e8 / 1.1e11 + 5.6e6 / 1.15e9}},
                                 {builtIn(Type::TitaniumAlloyNL), {9.486e8}, {9.486e8 / 9.6e10 + 1.86e7 / 2.15e9}}});
}

TEST(CalculixRun, HardensAlongTheCurveOfAMultilinearMaterial)
{
    // 500 Pa is 50/158 of the way from 450 Pa at 0 to 608 Pa at 0.05.
    check(Physics::SmallStrain, {{builtIn(Type::PlasticMaterial1), {500.0}, {500.0 / 206900.0 + 0.05 * 50.0 / 158.0}}});
}

TEST(CalculixRun, StretchesElastomersByTheirEnergy)
{
    // Minima of the energy of a bar under a dead load, computed with 30 digits; the energy of volume is (J - 1)^2 / D1, for
    // the eight-chain model ((J^2 - 1) / 2 - ln J) / D1.
    check(Physics::LargeStrain, {{builtIn(Type::Elastomer1), {500.0}, {0.123982594}},
                                 {builtIn(Type::Elastomer2), {0.2}, {0.0590892196}},
                                 {builtIn(Type::Elastomer3), {0.2}, {0.0790337349}},
                                 {builtIn(Type::NeopreneRubber), {1e4}, {0.0657529664}}});
}

TEST(CalculixRun, StretchesARubberWithC11ByItsEnergy)
{
    vxtest::MaterialMaker rubber;
    rubber.on(Id::MooneyRivlin).number(Id::MaterialConstantC10, 0.1486).number(Id::MaterialConstantC01, 0.4849);
    rubber.number(Id::MaterialConstantC11, 0.05).number(Id::IncompressibilityParameterD1, 0.0789);
    check(Physics::LargeStrain, {{rubber.get(), {0.2}, {0.0589910792}}});
}

TEST(CalculixRun, CreepsByTheRateOfTheLaw)
{
    // 10 Pa / 206900 Pa, and after 10 s also 1e-10 10^5 10 s
    check(Physics::Creep, {{builtIn(Type::CreepMaterial1), {10.0}, {10.0 / 206900.0, 10.0 / 206900.0 + 1e-4}}});
}

TEST(CalculixRun, HeatsAndConductsAsDensityHeatAndConductivitySay)
{
    std::vector<Expected> all;
    for (const vxMat::MaterialBase* const material : vxtest::libraryMaterials()) {
        double density = 0.0;
        double heat = 0.0;
        double conductivity = 0.0;
        if (!material->getPropertyValue(Id::Density, density) || !material->getPropertyValue(Id::SpecificHeat, heat) ||
            !material->getPropertyValue(Id::ThermalConductivity, conductivity))
            continue;
        all.push_back({*material, {1e3, 1e3}, {2e3 / (density * heat), 1e3 / conductivity}});
    }
    EXPECT_EQ(all.size(), 14U) << "seven linear metals and concrete, five with plasticity, air and water";
    check(Physics::Heat, all);
}

TEST(CalculixRun, ReadsTheDecksOfMaterialsThatItCannotCompute)
{
    const TwinRun run =
        vxtest::readDeck({&builtIn(Type::EMMaterial1), &builtIn(Type::EMMaterial2), &builtIn(Type::AcousticMaterial1),
                          &builtIn(Type::AcousticMaterial2), &builtIn(Type::Air), &builtIn(Type::Water)});
    EXPECT_TRUE(run.succeeded) << run.log;
    EXPECT_EQ(run.log.find("parameter not recognized"), std::string::npos) << run.log;
    EXPECT_EQ(run.log.find("card image cannot be interpreted"), std::string::npos) << run.log;
}

} // namespace
