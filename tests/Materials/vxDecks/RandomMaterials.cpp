#include "RandomMaterials.h"

#include "vxMaterial/model/PropertyId.h"

#include <cmath>
#include <vector>

namespace vxtest {

using Id = vxMat::PropertyId;

namespace {

double addElasticity(MaterialMaker& maker, Numbers& numbers, double lowest, double highest)
{
    const double youngs = numbers.ofSize(lowest, highest);
    maker.on(Id::IsotropicElasticity).number(Id::YoungsModulus, youngs);
    maker.number(Id::PoissonsRatio, numbers.between(0.0, 0.45)).number(Id::Density, numbers.ofSize(1, 2e4));
    return youngs;
}

/// The largest initial yield stress and plastic modulus, relative to Young's modulus.
struct HardeningRange
{
    double yieldStress;
    double modulus;
};

MadeMaterial makeHardening(Numbers& numbers, const char* type, const HardeningRange& range)
{
    auto maker = std::make_unique<MaterialMaker>();
    const double youngs = addElasticity(*maker, numbers, 1e6, 1e12);
    maker->on(Id::Plasticity).word(Id::PlasticYieldType, "Mises").word(Id::PlasticHardeningType, type);
    maker->number(Id::PlasticInitialYieldStress, youngs * numbers.ofSize(1e-4, range.yieldStress));
    maker->number(Id::PlasticHardeningFactor, youngs * numbers.ofSize(1e-3, range.modulus));
    return maker;
}

/// Adds D1 by the bulk modulus.
void addCompressibility(MaterialMaker& maker, Numbers& numbers, double shear)
{
    maker.number(Id::IncompressibilityParameterD1, 2.0 / (shear * numbers.between(2.0, 100.0)));
}

/// The factor gives a creep strain of about 1e-4 at a thousandth of Young's modulus after ten seconds.
MadeMaterial makeCreeping(Numbers& numbers, double lowest, double highest, double largestExponent)
{
    auto maker = std::make_unique<MaterialMaker>();
    const double stress = 1e-3 * addElasticity(*maker, numbers, lowest, highest);
    const double n = numbers.between(1.0, largestExponent);
    const double m = numbers.once(3) ? 0.0 : numbers.between(-0.5, 0.0);
    const double creepStrain = numbers.between(5e-5, 2e-4);
    const double factor = creepStrain * (m + 1.0) / (std::pow(stress, n) * std::pow(10.0, m + 1.0));
    maker->on(Id::Creep).number(Id::CreepModulusA, factor).number(Id::CreepModulusN, n);
    maker->number(Id::CreepModulusM, m);
    return maker;
}

} // namespace

double Numbers::between(double low, double high)
{
    return low + (high - low) * (static_cast<double>(m_engine()) / 4294967295.0);
}

double Numbers::ofSize(double low, double high)
{
    return std::exp(between(std::log(low), std::log(high)));
}

MadeMaterial makeElastic(Numbers& numbers)
{
    auto maker = std::make_unique<MaterialMaker>();
    addElasticity(*maker, numbers, 1e3, 1e12);
    return maker;
}

MadeMaterial makeBilinear(Numbers& numbers)
{
    return makeHardening(numbers, "Bilinear", {1e-2, 0.5});
}

MadeMaterial makeKinematic(Numbers& numbers)
{
    return makeHardening(numbers, "Kinematic", {3e-4, 0.02});
}

MadeMaterial makeMultilinear(Numbers& numbers)
{
    auto maker = std::make_unique<MaterialMaker>();
    const double youngs = addElasticity(*maker, numbers, 1e6, 1e12);
    std::vector<double> stresses{youngs * numbers.ofSize(1e-4, 1e-2)};
    std::vector<double> strains{0.0};
    double stressStep = stresses.front() * numbers.between(0.1, 0.4);
    double strainStep = numbers.between(0.003, 0.01);
    for (int i = 0; i < 4; ++i) {
        strains.push_back(strains.back() + strainStep);
        stresses.push_back(stresses.back() + stressStep);
        strainStep *= numbers.between(1.0, 1.5);
        stressStep *= numbers.between(0.5, 1.0);
    }
    // Without hardening behind the load, the solver diverges in iterations that pass the end of the curve.
    strains.push_back(strains.back() + 1.0);
    stresses.push_back(1.5 * stresses.back());
    maker->on(Id::Plasticity).word(Id::PlasticYieldType, "Mises").word(Id::PlasticHardeningType, "Multilinear");
    maker->list(Id::PlasticYieldStress, stresses).list(Id::PlasticStrain, strains);
    return maker;
}

MadeMaterial makeNeoHooke(Numbers& numbers)
{
    auto maker = std::make_unique<MaterialMaker>();
    const double c10 = numbers.ofSize(1e3, 1e7);
    maker->on(Id::NeoHooke).number(Id::MaterialConstantC10, c10);
    addCompressibility(*maker, numbers, 2.0 * c10);
    return maker;
}

MadeMaterial makeMooneyRivlin(Numbers& numbers)
{
    auto maker = std::make_unique<MaterialMaker>();
    const double c10 = numbers.ofSize(1e3, 1e7);
    const double c01 = c10 * numbers.between(0.05, 1.0);
    maker->on(Id::MooneyRivlin).number(Id::MaterialConstantC10, c10).number(Id::MaterialConstantC01, c01);
    if (numbers.once(2))
        maker->number(Id::MaterialConstantC11, c10 * numbers.between(0.01, 0.2));
    addCompressibility(*maker, numbers, 2.0 * (c10 + c01));
    return maker;
}

MadeMaterial makeArrudaBoyce(Numbers& numbers)
{
    auto maker = std::make_unique<MaterialMaker>();
    const double mu = numbers.ofSize(1e3, 1e7);
    maker->on(Id::ArrudaBoyce).number(Id::InitialShearModulusMu, mu);
    maker->number(Id::LimitingNetworkStretch, numbers.between(1.5, 8.0));
    addCompressibility(*maker, numbers, mu);
    return maker;
}

MadeMaterial makeIncompressible(Numbers& numbers)
{
    MadeMaterial (*const makers[])(Numbers&) = {makeNeoHooke, makeMooneyRivlin, makeArrudaBoyce};
    auto maker = makers[numbers.once(2) ? 0 : numbers.once(2) ? 1 : 2](numbers);
    maker->number(Id::IncompressibilityParameterD1, 0.0);
    return maker;
}

MadeMaterial makeCreepingSoftly(Numbers& numbers)
{
    return makeCreeping(numbers, 1e3, 1e6, 4.0);
}

MadeMaterial makeCreepingMetal(Numbers& numbers)
{
    return makeCreeping(numbers, 1e10, 4e11, 6.0);
}

MadeMaterial makeConducting(Numbers& numbers)
{
    auto maker = std::make_unique<MaterialMaker>();
    maker->number(Id::Density, numbers.ofSize(1.0, 2e4)).number(Id::SpecificHeat, numbers.ofSize(100.0, 1e4));
    maker->number(Id::ThermalConductivity, numbers.ofSize(0.01, 2e3));
    return maker;
}

} // namespace vxtest
