#include "DecksTesting.h"
#include "TwinModel.h"

#include "vxMaterial/model/PropertyId.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>
#include <vector>

namespace {

using Id = vxMat::PropertyId;
using vxtest::MaterialMaker;
using vxtest::Physics;
using vxtest::runTwins;
using vxtest::TwinRun;

constexpr int materialsOfEachKind = 12;

/// The largest difference of both unit systems. The solver iterates creep strains less exactly than stresses.
constexpr double tolerance = 1e-9;
constexpr double toleranceOfCreep = 1e-8;

/// Numbers that are the same in every run and on every computer.
class Numbers
{
public:
    double between(double low, double high)
    {
        return low + (high - low) * (static_cast<double>(m_engine()) / 4294967295.0);
    }
    /// Returns a number whose logarithm is evenly distributed.
    double ofSize(double low, double high) { return std::exp(between(std::log(low), std::log(high))); }

private:
    std::mt19937 m_engine{20220315};
};

/// A random material, its load, and the strains that formulas give for it; empty if there is no formula.
struct Case
{
    std::unique_ptr<MaterialMaker> material = std::make_unique<MaterialMaker>();
    double load = 0.0;
    std::vector<double> strains;
};

Case makeElastic(Numbers& numbers, double lowest, double highest)
{
    Case made;
    const double youngs = numbers.ofSize(lowest, highest);
    made.material->on(Id::IsotropicElasticity).number(Id::YoungsModulus, youngs);
    made.material->number(Id::PoissonsRatio, numbers.between(0.0, 0.45)).number(Id::Density, numbers.ofSize(1, 2e4));
    made.load = 1e-3 * youngs;
    made.strains = {1e-3};
    return made;
}

Case makeBilinear(Numbers& numbers)
{
    Case made = makeElastic(numbers, 1e6, 1e12);
    const double youngs = 1e3 * made.load;
    const double yield = youngs * numbers.ofSize(1e-4, 1e-2);
    const double modulus = youngs * numbers.ofSize(1e-3, 0.5);
    made.material->on(Id::Plasticity).word(Id::PlasticYieldType, "Mises").word(Id::PlasticHardeningType, "Bilinear");
    made.material->number(Id::PlasticInitialYieldStress, yield).number(Id::PlasticHardeningFactor, modulus);
    const double excess = modulus * numbers.between(0.001, 0.02);
    made.load = yield + excess;
    made.strains = {made.load / youngs + excess / modulus};
    return made;
}

Case makeMultilinear(Numbers& numbers)
{
    Case made = makeElastic(numbers, 1e6, 1e12);
    const double youngs = 1e3 * made.load;
    std::vector<double> stresses{youngs * numbers.ofSize(1e-4, 1e-2)};
    std::vector<double> strains{0.0};
    for (int i = 0; i < 4; ++i) {
        strains.push_back(strains.back() + numbers.between(0.005, 0.02));
        stresses.push_back(stresses.back() * numbers.between(1.1, 1.4));
    }
    // Without hardening behind the load, the solver diverges in iterations that pass the end of the curve.
    strains.push_back(strains.back() + 1.0);
    stresses.push_back(2.0 * stresses.back());
    made.material->on(Id::Plasticity).word(Id::PlasticHardeningType, "multilinear");
    made.material->list(Id::PlasticYieldStress, stresses).list(Id::PlasticStrain, strains);
    const double share = numbers.between(0.1, 0.9); // of the third interval
    made.load = stresses[2] + share * (stresses[3] - stresses[2]);
    made.strains = {made.load / youngs + strains[2] + share * (strains[3] - strains[2])};
    return made;
}

/// A soft solid, so that the factor is large enough for the solver in SI units.
Case makeCreeping(Numbers& numbers)
{
    Case made = makeElastic(numbers, 1e3, 1e6);
    const double n = numbers.between(1.0, 4.0);
    const double m = numbers.between(-0.5, 0.0);
    const double creepStrain = numbers.between(1e-4, 1e-3); // after ten seconds
    const double factor = creepStrain * (m + 1.0) / (std::pow(made.load, n) * std::pow(10.0, m + 1.0));
    made.material->on(Id::Creep).number(Id::CreepModulusA, factor).number(Id::CreepModulusN, n);
    made.material->number(Id::CreepModulusM, m);
    return made;
}

Case makeRubber(Numbers& numbers)
{
    Case made;
    const double c10 = numbers.ofSize(1e3, 1e7);
    const double c01 = c10 * numbers.between(0.05, 1.0);
    const double shear = 2.0 * (c10 + c01);
    made.material->on(Id::MooneyRivlin).number(Id::MaterialConstantC10, c10).number(Id::MaterialConstantC01, c01);
    made.material->number(Id::IncompressibilityParameterD1, 2.0 / (shear * numbers.between(2.0, 100.0)));
    made.load = shear * numbers.between(0.05, 0.3);
    return made;
}

void check(const Case& one, Physics physics)
{
    const TwinRun run = runTwins(one.material->get(), physics, one.load);
    ASSERT_TRUE(run.succeeded) << run.log;
    ASSERT_FALSE(run.steps.empty()) << run.log;
    for (const vxtest::TwinResult& step : run.steps)
        EXPECT_LT(step.difference, physics == Physics::Creep ? toleranceOfCreep : tolerance);
    for (std::size_t i = 0; i < one.strains.size(); ++i)
        EXPECT_NEAR(run.steps.at(i).value / one.strains[i], 1.0, 2e-6);
}

template <class Make>
void checkAll(Make make, Physics physics)
{
    Numbers numbers;
    for (int i = 0; i < materialsOfEachKind; ++i) {
        SCOPED_TRACE(i);
        check(make(numbers), physics);
    }
}

TEST(CalculixRandomMaterials, StretchByForceOverModulus)
{
    checkAll([](Numbers& numbers) { return makeElastic(numbers, 1e3, 1e12); }, Physics::Static);
}

TEST(CalculixRandomMaterials, HardenByThePlasticModulus)
{
    checkAll(makeBilinear, Physics::Static);
}

TEST(CalculixRandomMaterials, HardenAlongTheirCurves)
{
    checkAll(makeMultilinear, Physics::Static);
}

TEST(CalculixRandomMaterials, CreepAlikeInBothUnitSystems)
{
    checkAll(makeCreeping, Physics::Creep);
}

TEST(CalculixRandomMaterials, StretchAsRubbersAlikeInBothUnitSystems)
{
    checkAll(makeRubber, Physics::Static);
}

} // namespace
