#include "vxUnits/DerivedValues.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/MaterialValues.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

namespace {

using Id = vxMat::PropertyId;
using vxUnits::derivedValues;
using vxUnits::initialModuli;
using vxUnits::MaterialValues;

std::map<std::string, double> valuesOf(const MaterialValues& material)
{
    std::map<std::string, double> values;
    for (const vxUnits::DerivedValue& one : derivedValues(material))
        values[one.id] = one.value;
    return values;
}

TEST(DerivedValues, OfSteelAreThoseOfTheHandbooks)
{
    const auto steel =
        valuesOf(MaterialValues(vxMat::StructuralSteel())); // E 200 GPa, nu 0.3, 7850 kg/m3, 490 J/(kg K), 54 W/(m K)
    EXPECT_NEAR(steel.at("shear-modulus"), 76.923076923e9, 1e0);
    EXPECT_NEAR(steel.at("bulk-modulus"), 166.666666667e9, 1e0);
    EXPECT_NEAR(steel.at("lame-constant"), 115.384615385e9, 1e0);
    EXPECT_NEAR(steel.at("constrained-modulus"), 269.230769231e9, 1e0);
    EXPECT_NEAR(steel.at("bar-wave-speed"), 5047.545, 1e-3);
    EXPECT_NEAR(steel.at("longitudinal-wave-speed"), 5856.357, 1e-3);
    EXPECT_NEAR(steel.at("shear-wave-speed"), 3130.354, 1e-3);
    EXPECT_NEAR(steel.at("thermal-diffusivity"), 1.40387365e-5, 1e-12);
    EXPECT_NEAR(steel.at("electrical-resistivity"), 2.48015873e-7, 1e-14);
    EXPECT_EQ(steel.count("initial-shear-modulus"), 0U);
    EXPECT_EQ(steel.count("prandtl-number"), 0U);
}

TEST(DerivedValues, OfWaterAndAirAreThoseOfTheHandbooks)
{
    const auto water = valuesOf(MaterialValues(vxMat::Water()));
    EXPECT_NEAR(water.at("acoustic-bulk-modulus"), 2.202256e9, 1.0);
    EXPECT_NEAR(water.at("acoustic-impedance"), 1.484e6, 1e-6);
    EXPECT_NEAR(water.at("prandtl-number"), 6.20627, 1e-5);
    EXPECT_NEAR(water.at("kinematic-viscosity"), 8.9e-7, 1e-20);
    const auto air = valuesOf(MaterialValues(vxMat::Air()));
    EXPECT_EQ(air.count("electrical-resistivity"), 0U) << "an insulator has none that is finite";
}

TEST(DerivedValues, TheBilinearTangentIsSofterThanTheHardeningFactor)
{
    MaterialValues material;
    material.setNumber(Id::YoungsModulus, 2e11);
    material.setNumber(Id::PlasticHardeningFactor, 2e10);
    EXPECT_NEAR(valuesOf(material).at("tangent-modulus"), 2e11 / 11.0, 1.0);
}

TEST(DerivedValues, InitialModuliFollowFromTheModel)
{
    MaterialValues neoHooke;
    neoHooke.setSwitch(Id::NeoHooke);
    neoHooke.setNumber(Id::MaterialConstantC10, 0.5e6);
    neoHooke.setNumber(Id::IncompressibilityParameterD1, 1e-9);
    EXPECT_EQ(initialModuli(neoHooke)->shear, 1e6);
    EXPECT_NEAR(*initialModuli(neoHooke)->bulk, 2e9, 1e-6);
    EXPECT_NEAR(valuesOf(neoHooke).at("initial-youngs-modulus"), 2.99950008e6, 1.0);
    EXPECT_NEAR(valuesOf(neoHooke).at("initial-poissons-ratio"), 0.49975004, 1e-8);

    MaterialValues mooney;
    mooney.setSwitch(Id::MooneyRivlin);
    mooney.setNumber(Id::MaterialConstantC10, 0.4e6);
    mooney.setNumber(Id::MaterialConstantC01, 0.1e6);
    EXPECT_EQ(initialModuli(mooney)->shear, 1e6);
    EXPECT_FALSE(initialModuli(mooney)->bulk);
    EXPECT_EQ(initialModuli(mooney)->youngs(), 3e6);

    MaterialValues chains;
    chains.setSwitch(Id::ArrudaBoyce);
    chains.setNumber(Id::InitialShearModulusMu, 1.0);
    for (const auto& [stretch, ratio] : std::map<double, double>{{5.15, 1.0235}, {2.5, 1.113}, {1.7029, 1.307}}) {
        chains.setNumber(Id::LimitingNetworkStretch, stretch);
        EXPECT_NEAR(initialModuli(chains)->shear, ratio, 6e-4) << stretch;
    }
    EXPECT_FALSE(initialModuli(MaterialValues(vxMat::StructuralSteel())));
}

TEST(DerivedValues, WhatIsNotFiniteIsLeftOut)
{
    MaterialValues material;
    material.setNumber(Id::YoungsModulus, 1e6);
    material.setNumber(Id::PoissonsRatio, 0.5);
    material.setNumber(Id::Density, 0.0);
    const auto values = valuesOf(material);
    EXPECT_EQ(values.count("bulk-modulus"), 0U);
    EXPECT_EQ(values.count("bar-wave-speed"), 0U);
    EXPECT_EQ(values.count("shear-modulus"), 1U);
    EXPECT_TRUE(derivedValues(MaterialValues()).empty());
}

TEST(MaterialValuesTest, TheKeyDecidesWhatAValueIs)
{
    const MaterialValues acoustic{vxMat::AcousticMaterial1()}; // keeps the speed of sound as a second density
    EXPECT_EQ(*acoustic.number(Id::SpeedOfSound), 1000.0);
    EXPECT_EQ(*acoustic.number(Id::Density), 1000.0);
    EXPECT_FALSE(acoustic.number(Id::YoungsModulus));
}

TEST(MaterialConversion, MultipliesEveryNumberAndNothingElse)
{
    vxMat::CMaterial material;
    material.copyFrom(vxMat::PlasticMaterial1());
    vxUnits::convertMaterial(material, *vxUnits::UnitSystem::parse("mm-t-s"), vxUnits::UnitSystem::si());
    EXPECT_EQ(material.findProperty(Id::YoungsModulus)->value, 2.069e11);
    EXPECT_EQ(material.getPropertyValues(Id::PlasticYieldStress).front(), 4.5e8);
    EXPECT_EQ(material.getPropertyValues(Id::PlasticStrain)[1], 0.05);
    EXPECT_EQ(material.findProperty(Id::PoissonsRatio)->value, 0.29);
    EXPECT_EQ(material.getPropertyText(Id::PlasticYieldType), "Mises");
    EXPECT_EQ(material.findProperty(Id::IsotropicElasticity)->value, 1.7976931348623157e308);
    EXPECT_EQ(material.findProperty(Id::Density)->value, 7850e12);
}

TEST(MaterialConversion, TakesTheCreepFactorWithItsExponents)
{
    vxMat::CMaterial material;
    material.copyFrom(vxMat::CreepMaterial1()); // A 1e-10, n 5, m 0
    vxUnits::convertMaterial(material, *vxUnits::UnitSystem::parse("mm-t-s"), vxUnits::UnitSystem::si());
    EXPECT_EQ(material.findProperty(Id::CreepModulusA)->value, 1e-40);
    material.removeProperty(material.findProperty(Id::CreepModulusM));
    vxUnits::convertMaterial(material, vxUnits::UnitSystem::si(), *vxUnits::UnitSystem::parse("mm-t-s"));
    EXPECT_EQ(material.findProperty(Id::CreepModulusA)->value, 1e-40) << "its unit is not known any more";
}

} // namespace
