#include "vxUnits/Plausibility.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using Id = vxMat::PropertyId;
using vxUnits::checkPlausibility;
using vxUnits::Doubt;
using vxUnits::MaterialValues;
using vxUnits::Severity;

/// A material to begin with: structural steel with linear hardening.
MaterialValues steel()
{
    return MaterialValues(vxMat::StructuralSteelNL());
}

MaterialValues rubber()
{
    MaterialValues values;
    values.setNumber(Id::Density, 1100);
    values.setSwitch(Id::NeoHooke);
    values.setNumber(Id::MaterialConstantC10, 0.4e6);
    values.setNumber(Id::IncompressibilityParameterD1, 1e-9);
    return values;
}

std::vector<std::string> idsOf(const MaterialValues& values)
{
    std::vector<std::string> ids;
    for (const Doubt& doubt : checkPlausibility(values))
        ids.emplace_back(doubt.message.id);
    return ids;
}

bool doubted(const MaterialValues& values, const std::string& id)
{
    const auto ids = idsOf(values);
    return std::find(ids.begin(), ids.end(), "plausibility." + id) != ids.end();
}

/// The one doubt about the values.
Doubt theDoubt(const MaterialValues& values)
{
    const auto doubts = checkPlausibility(values);
    EXPECT_EQ(doubts.size(), 1U);
    return doubts.empty() ? Doubt() : doubts.front();
}

TEST(Doubts, SayWhatIsDoubtedWhatIsKnownAndWhatHelps)
{
    MaterialValues values;
    values.setNumber(Id::Density, 7850);
    values.setNumber(Id::YoungsModulus, 206900);
    values.setNumber(Id::PoissonsRatio, 0.3);
    const Doubt doubt = theDoubt(values);
    EXPECT_EQ(doubt.id, Id::YoungsModulus);
    EXPECT_EQ(doubt.value, 206900.0);
    EXPECT_EQ(doubt.severity, Severity::Unlikely);
    EXPECT_EQ(doubt.lowest, "60 m/s");
    EXPECT_EQ(doubt.highest, "20500 m/s");
    EXPECT_EQ(doubt.message.text(),
              "Young's modulus = 206900 Pa with Density = 7850 kg/m^3 gives a wave speed of 5.13388 m/s; "
              "known solids of such a density have 60 m/s to 20500 m/s.");
    ASSERT_TRUE(doubt.remedy);
    EXPECT_EQ(doubt.remedy->message.text(), "206900 MPa is usual for steel: multiply by 1e6");
    ASSERT_EQ(doubt.remedy->changes.size(), 1U);
    EXPECT_EQ(doubt.remedy->changes.front().unit, "MPa");
    EXPECT_EQ(doubt.remedy->changes.front().factor, 1e6);
    EXPECT_EQ(doubt.remedy->changes.front().apply(206900), 2.069e11);
    EXPECT_EQ(doubt.remedy->system, "");
}

TEST(Doubts, AnotherSystemIsNamedIfAllNumbersFitIt)
{
    MaterialValues values;
    values.setNumber(Id::Density, 7.85e-9);
    values.setNumber(Id::YoungsModulus, 206900);
    values.setNumber(Id::PoissonsRatio, 0.3);
    values.setNumber(Id::SpecificHeat, 4.9e8);
    values.setNumber(Id::ThermalConductivity, 54);
    const auto doubts = checkPlausibility(values);
    ASSERT_FALSE(doubts.empty());
    for (const Doubt& doubt : doubts) {
        ASSERT_TRUE(doubt.remedy) << doubt.message.text();
        EXPECT_EQ(doubt.remedy->system, "mm-t-s");
        EXPECT_EQ(doubt.remedy->message.text(), "The values look like mm-t-s: convert the material");
    }
    applyRemedy(*doubts.front().remedy, values);
    EXPECT_EQ(*values.number(Id::Density), 7850.0);
    EXPECT_EQ(*values.number(Id::SpecificHeat), 490.0);
    EXPECT_TRUE(checkPlausibility(values).empty());
}

TEST(Doubts, ShowTheirNumbersInAnotherUnitSystem)
{
    MaterialValues values;
    values.setNumber(Id::Density, 7850);
    values.setNumber(Id::YoungsModulus, 206900);
    values.setNumber(Id::PoissonsRatio, 0.3);
    const auto doubts = checkPlausibility(values, *vxUnits::UnitSystem::parse("mm-t-s"));
    ASSERT_EQ(doubts.size(), 1U);
    EXPECT_EQ(doubts[0].message.text(),
              "Young's modulus = 0.2069 MPa with Density = 7.85e-09 t/mm^3 gives a wave speed of 5133.88 mm/s; "
              "known solids of such a density have 60000 mm/s to 20500000 mm/s.");
    EXPECT_EQ(doubts[0].lowest, "60000 mm/s");
    EXPECT_EQ(doubts[0].value, 206900.0) << "remedies change the number of the catalogue";
    EXPECT_EQ(doubts[0].remedy->message.text(), "206900 MPa is usual for steel: multiply by 1e6");
}

TEST(Doubts, TellNumbersOfAnotherSystemFromTheSystemInWhichTheyAreShown)
{
    MaterialValues values;
    values.setNumber(Id::Density, 7.85e-9);
    values.setNumber(Id::YoungsModulus, 206900);
    values.setNumber(Id::PoissonsRatio, 0.3);
    const auto doubts = checkPlausibility(values, *vxUnits::UnitSystem::parse("mm-t-s"));
    ASSERT_FALSE(doubts.empty());
    EXPECT_THAT(doubts[0].message.text(), testing::HasSubstr("Density = 7.85e-21 t/mm^3"));
    EXPECT_EQ(doubts[0].remedy->message.text(), "The numbers look like mm-t-s, but are in SI: convert the material");
}

TEST(Doubts, RoundNumbersWithManyDigits)
{
    MaterialValues values;
    values.setNumber(Id::Density, 0.000734544492961071); // a steel of in-lbf-s, converted as if it were SI
    values.setNumber(Id::YoungsModulus, 206843);
    const auto doubts = checkPlausibility(values);
    ASSERT_FALSE(doubts.empty());
    EXPECT_THAT(doubts[0].message.text(), testing::HasSubstr("Density = 0.000734544 kg/m^3"));
}

TEST(Doubts, ThereAreNoneAboutSensibleOrMissingValues)
{
    EXPECT_EQ(idsOf(steel()), std::vector<std::string>());
    EXPECT_EQ(idsOf(rubber()), std::vector<std::string>());
    EXPECT_EQ(idsOf(MaterialValues()), std::vector<std::string>());
    MaterialValues one;
    one.setNumber(Id::YoungsModulus, 210);
    EXPECT_EQ(idsOf(one), std::vector<std::string>()) << "a gel may be so soft";
}

TEST(Doubts, TwoSlipsHaveTwoRemedies)
{
    MaterialValues values{vxMat::StructuralSteel()};
    values.setNumber(Id::SpecificHeat, 0.49);
    values.setNumber(Id::PoissonsRatio, 30);
    const auto doubts = checkPlausibility(values);
    ASSERT_EQ(doubts.size(), 2U);
    EXPECT_EQ(doubts[0].remedy->message.text(), "30 % is usual for steel: multiply by 0.01");
    EXPECT_EQ(doubts[1].remedy->message.text(), "0.49 kJ/(kg K) is usual for steel: multiply by 1000");
    applyRemedy(*doubts[0].remedy, values);
    applyRemedy(*doubts[1].remedy, values);
    EXPECT_TRUE(checkPlausibility(values).empty());
}

TEST(Doubts, OfThreeSlipsFromOneDataSheetTheRemediesLeadToTheMaterial)
{
    MaterialValues values;
    values.setNumber(Id::YoungsModulus, 206900); // MPa
    values.setNumber(Id::PoissonsRatio, 0.3);
    values.setNumber(Id::Density, 7.85);      // g/cm^3
    values.setNumber(Id::SpecificHeat, 0.48); // J/(g K)
    for (int step = 0; step < 3; ++step) {
        const auto doubts = checkPlausibility(values);
        const auto remedied = std::find_if(doubts.begin(), doubts.end(), [](const Doubt& one) { return !!one.remedy; });
        if (remedied == doubts.end())
            break;
        applyRemedy(*remedied->remedy, values);
    }
    EXPECT_NEAR(*values.number(Id::YoungsModulus), 2.069e11, 1.0);
    EXPECT_NEAR(*values.number(Id::Density), 7850.0, 1e-9);
    EXPECT_NEAR(*values.number(Id::SpecificHeat), 480.0, 1e-9);
    EXPECT_TRUE(checkPlausibility(values).empty());
}

TEST(Doubts, AResistivityIsRecognised)
{
    MaterialValues values{vxMat::StructuralSteel()};
    values.setNumber(Id::ElectricalConductivity, 2.5e-7);
    const Doubt doubt = theDoubt(values);
    EXPECT_EQ(doubt.message.text(), "Electrical conductivity = 2.5e-07 S/m does not fit the other values.");
    ASSERT_TRUE(doubt.remedy);
    EXPECT_EQ(doubt.remedy->message.text(), "2.5e-07 Ohm m is usual for the resistivity of steel: take the reciprocal");
    EXPECT_NEAR(doubt.remedy->changes.front().apply(2.5e-7), 4e6, 1e-8);
}

// --- Each number alone ---

TEST(DoubtsAboutNumbers, WhatIsNoNumberIsImpossible)
{
    for (const double number : {std::nan(""), std::numeric_limits<double>::infinity()}) {
        MaterialValues values = steel();
        values.setNumber(Id::YoungsModulus, number);
        const Doubt doubt = theDoubt(values);
        EXPECT_STREQ(doubt.message.id, "plausibility.not-finite");
        EXPECT_EQ(doubt.severity, Severity::Impossible);
    }
}

TEST(DoubtsAboutNumbers, AListWithANumberThatIsNotFiniteIsDoubtedOnlyForIt)
{
    MaterialValues values;
    values.setList(Id::PlasticYieldStress, {1.0, std::nan(""), 2.0});
    EXPECT_STREQ(theDoubt(values).message.id, "plausibility.not-finite");
}

TEST(DoubtsAboutNumbers, MostMustBeAboveZero)
{
    MaterialValues values = steel();
    values.setNumber(Id::Density, 0);
    EXPECT_TRUE(doubted(values, "not-positive"));
    values.setNumber(Id::Density, -7850);
    EXPECT_TRUE(doubted(values, "negative"));
    values = steel();
    values.setNumber(Id::ElectricalConductivity, 0);
    EXPECT_EQ(idsOf(values), std::vector<std::string>()) << "an insulator";
    values.setNumber(Id::PlasticHardeningFactor, 0);
    EXPECT_EQ(idsOf(values), std::vector<std::string>()) << "ideal plasticity";
}

TEST(DoubtsAboutNumbers, RangesDependOnTheState)
{
    MaterialValues fluid;
    fluid.setNumber(Id::DynamicViscosity, 1e-3);
    fluid.setNumber(Id::Density, 19000);
    EXPECT_EQ(idsOf(fluid), std::vector<std::string>()) << "within the margin above mercury";
    fluid.setNumber(Id::Density, 22000);
    EXPECT_TRUE(doubted(fluid, "above-range"));
    MaterialValues solid;
    solid.setNumber(Id::YoungsModulus, 500e9);
    solid.setNumber(Id::Density, 22000);
    EXPECT_EQ(idsOf(solid), std::vector<std::string>());
}

TEST(DoubtsAboutNumbers, ARangeNamesItsLandmarks)
{
    MaterialValues values;
    values.setNumber(Id::Density, 7.85e-9);
    EXPECT_EQ(theDoubt(values).message.text(),
              "Density = 7.85e-09 kg/m^3 is below what known materials have, 0.08 kg/m^3 "
              "(hydrogen) to 22590 kg/m^3 (osmium).");
}

TEST(DoubtsAboutNumbers, PoissonsRatioHasLimits)
{
    MaterialValues values = steel();
    values.setNumber(Id::PoissonsRatio, 0.6);
    EXPECT_TRUE(doubted(values, "ratio-outside"));
    values.setNumber(Id::PoissonsRatio, -1.1);
    EXPECT_TRUE(doubted(values, "ratio-outside"));
    values.setNumber(Id::PoissonsRatio, 0.49);
    EXPECT_TRUE(doubted(values, "ratio-of-stiff"));
    MaterialValues soft;
    soft.setNumber(Id::YoungsModulus, 3e6);
    soft.setNumber(Id::PoissonsRatio, 0.49);
    EXPECT_EQ(idsOf(soft), std::vector<std::string>());
    soft.setNumber(Id::PoissonsRatio, 0.4999);
    EXPECT_TRUE(doubted(soft, "ratio-near-half"));
    soft.setNumber(Id::PoissonsRatio, 0.5);
    EXPECT_TRUE(doubted(soft, "ratio-near-half"));
}

TEST(DoubtsAboutNumbers, ARatioAboveOneAndAStretchBelowOneAreImpossible)
{
    MaterialValues values = steel();
    values.setNumber(Id::ShearRelaxationModulus, 50);
    const Doubt percent = theDoubt(values);
    EXPECT_EQ(percent.severity, Severity::Impossible);
    EXPECT_EQ(percent.remedy->changes.front().unit, "%");
    MaterialValues chains;
    chains.setNumber(Id::InitialShearModulusMu, 3e5);
    chains.setNumber(Id::LimitingNetworkStretch, 0.9);
    EXPECT_TRUE(doubted(chains, "below-range"));
}

TEST(DoubtsAboutNumbers, AnAngleInRadiansIsRecognised)
{
    MaterialValues values;
    values.setNumber(Id::PlasticFAI, 0.5);
    const Doubt doubt = theDoubt(values);
    EXPECT_EQ(doubt.remedy->message.text(), "0.5 rad would not be doubted: multiply by 57.2958");
    EXPECT_NEAR(doubt.remedy->changes.front().apply(0.5), 28.6478897565, 1e-9);
}

// --- Relations ---

TEST(DoubtsAboutRelations, WaveSpeedOfModulusAndDensity)
{
    MaterialValues values;
    values.setNumber(Id::YoungsModulus, 210e9);
    values.setNumber(Id::Density, 7.85);
    EXPECT_EQ(checkPlausibility(values).front().remedy->changes.front().unit, "g/cm^3");
    EXPECT_EQ(checkPlausibility(values).front().id, Id::Density);
    values.setNumber(Id::Density, 30);
    values.setNumber(Id::YoungsModulus, 5e9);
    EXPECT_TRUE(doubted(values, "light-and-stiff"));
}

TEST(DoubtsAboutRelations, HeatCapacityAndDiffusivity)
{
    MaterialValues values = steel();
    values.setNumber(Id::SpecificHeat, 4000);
    EXPECT_TRUE(doubted(values, "heat-per-volume"));
    values.setNumber(Id::SpecificHeat, 0.49);
    EXPECT_TRUE(doubted(values, "below-range"));
    EXPECT_EQ(theDoubt(values).remedy->changes.front().unit, "kJ/(kg K)");
    MaterialValues conductor;
    conductor.setNumber(Id::Density, 1000);
    conductor.setNumber(Id::SpecificHeat, 1000);
    conductor.setNumber(Id::ThermalConductivity, 3000);
    EXPECT_TRUE(doubted(conductor, "diffusivity"));
}

TEST(DoubtsAboutRelations, MetalsConductHeatByTheElectronsThatConductCurrent)
{
    MaterialValues values;
    values.setNumber(Id::ElectricalConductivity, 5.8e7);
    values.setNumber(Id::ThermalConductivity, 0.39);
    EXPECT_TRUE(doubted(values, "lorenz-number"));
    values.setNumber(Id::ThermalConductivity, 390);
    EXPECT_EQ(idsOf(values), std::vector<std::string>());
}

TEST(DoubtsAboutRelations, SpeedOfSoundAgainstModuli)
{
    MaterialValues values = steel();
    values.setNumber(Id::SpeedOfSound, 5900);
    EXPECT_EQ(idsOf(values), std::vector<std::string>());
    values.setNumber(Id::SpeedOfSound, 340);
    EXPECT_TRUE(doubted(values, "sound-in-solid"));
    MaterialValues soft = rubber();
    soft.setNumber(Id::SpeedOfSound, 1500);
    EXPECT_EQ(idsOf(soft), std::vector<std::string>()) << "of the bulk modulus 2 / D1";
    soft.setNumber(Id::SpeedOfSound, 6000);
    EXPECT_TRUE(doubted(soft, "sound-in-solid"));
    MaterialValues liquid;
    liquid.setNumber(Id::Density, 1000);
    liquid.setNumber(Id::SpeedOfSound, 100);
    EXPECT_TRUE(doubted(liquid, "acoustic-modulus"));
    liquid.setNumber(Id::SpeedOfSound, 1.484);
    EXPECT_EQ(theDoubt(liquid).remedy->changes.front().unit, "km/s");
}

TEST(DoubtsAboutRelations, WaterIsNoHoney)
{
    MaterialValues water{vxMat::Water()};
    water.setNumber(Id::DynamicViscosity, 0.89);
    const Doubt doubt = theDoubt(water);
    EXPECT_STREQ(doubt.message.id, "plausibility.water-viscosity");
    EXPECT_EQ(doubt.remedy->changes.front().unit, "mPa s");
}

TEST(DoubtsAboutRelations, YieldAndHardeningAgainstModulus)
{
    MaterialValues values = steel();
    values.setNumber(Id::PlasticInitialYieldStress, 250);
    EXPECT_TRUE(doubted(values, "yield-ratio"));
    EXPECT_EQ(checkPlausibility(values).front().remedy->changes.front().unit, "MPa");
    values = steel();
    values.setNumber(Id::PlasticInitialYieldStress, 150e9);
    EXPECT_TRUE(doubted(values, "yield-ratio"));
    values = steel();
    values.setNumber(Id::PlasticHardeningFactor, 1450);
    EXPECT_TRUE(doubted(values, "hardening-ratio"));
    values.setNumber(Id::PlasticHardeningFactor, 300e9);
    EXPECT_TRUE(doubted(values, "hardening-ratio"));
    values.setNumber(Id::PlasticHardeningFactor, -1e9);
    EXPECT_TRUE(doubted(values, "hardening-falls"));
}

TEST(DoubtsAboutRelations, AHardeningTableIsInOrder)
{
    MaterialValues values = steel();
    values.setList(Id::PlasticYieldStress, {250e6, 300e6, 350e6});
    values.setList(Id::PlasticStrain, {0, 0.1, 0.2});
    EXPECT_EQ(idsOf(values), std::vector<std::string>());
    values.setList(Id::PlasticStrain, {0.01, 0.1, 0.2});
    EXPECT_TRUE(doubted(values, "strain-start"));
    values.setList(Id::PlasticStrain, {0, 0.1, 0.1});
    EXPECT_TRUE(doubted(values, "strain-order"));
    values.setList(Id::PlasticStrain, {0, 0.1});
    EXPECT_EQ(
        theDoubt(values).message.text(),
        "Plastic strain has 2 numbers and Yield stress = 2.5e+08, 3e+08, 3.5e+08 Pa; each strain needs one stress.");
    values.setList(Id::PlasticStrain, {0, 0.1, 0.2});
    values.setList(Id::PlasticYieldStress, {250e6, 300e6, 290e6});
    EXPECT_EQ(theDoubt(values).message.text(),
              "Yield stress falls below 3e+08 Pa to 2.9e+08 Pa; hardening does not fall.");
    EXPECT_EQ(theDoubt(values).value, 290e6);
    values.setList(Id::PlasticYieldStress, {250e6, 300e6, 300e6});
    EXPECT_EQ(idsOf(values), std::vector<std::string>()) << "a plateau";
    values.setList(Id::PlasticYieldStress, {});
    EXPECT_TRUE(doubted(values, "list-lengths"));
}

TEST(DoubtsAboutRelations, RubberHardlyChangesItsVolume)
{
    MaterialValues values = rubber();
    values.setNumber(Id::IncompressibilityParameterD1, 2.5e-6); // bulk modulus 0.8 MPa, as the shear modulus
    EXPECT_TRUE(doubted(values, "bulk-over-shear"));
    values.setNumber(Id::IncompressibilityParameterD1, 0);
    EXPECT_EQ(idsOf(values), std::vector<std::string>()) << "exactly incompressible";
    values.setNumber(Id::MaterialConstantC10, -1e5);
    EXPECT_TRUE(doubted(values, "initial-shear"));
}

TEST(DoubtsAboutRelations, TheHyperelasticModulusAgainstYoungsModulus)
{
    MaterialValues values = rubber();
    values.setNumber(Id::YoungsModulus, 2.4e6);
    EXPECT_EQ(idsOf(values), std::vector<std::string>());
    values.setNumber(Id::YoungsModulus, 24e6);
    EXPECT_TRUE(doubted(values, "initial-modulus"));
}

TEST(DoubtsAboutRelations, CreepIsWithinReach)
{
    MaterialValues values{vxMat::StructuralSteel()};
    values.setNumber(Id::CreepModulusN, 5);
    values.setNumber(Id::CreepModulusM, 0);
    values.setNumber(Id::CreepModulusA, 1.8e-50); // 2.8e-11 1/s at 69 MPa
    EXPECT_EQ(idsOf(values), std::vector<std::string>());
    values.setNumber(Id::CreepModulusA, 1.8e-20); // in MPa^-5 1/s
    const Doubt doubt = theDoubt(values);
    EXPECT_STREQ(doubt.message.id, "plausibility.creep-rate");
    EXPECT_EQ(doubt.remedy->changes.front().unit, "1/(MPa^5 s)");
    EXPECT_EQ(doubt.remedy->changes.front().apply(1.8e-20), 1.8e-50);
}

// --- The value that is wrong ---

MaterialValues withDensity(double density, MaterialValues values)
{
    values.setNumber(Id::Density, density);
    return values;
}

TEST(Blame, IsOnTheDensityBesideTheConstantsOfARubber)
{
    MaterialValues chains;
    chains.setSwitch(Id::ArrudaBoyce);
    chains.setNumber(Id::InitialShearModulusMu, 0.4e6);
    chains.setNumber(Id::LimitingNetworkStretch, 5);
    MaterialValues incompressible;
    incompressible.setNumber(Id::MaterialConstantC10, 0.4e6);
    MaterialValues elastic;
    elastic.setNumber(Id::YoungsModulus, 3e6);
    elastic.setNumber(Id::PoissonsRatio, 0.49);
    for (const MaterialValues& values : {rubber(), chains, incompressible, elastic}) {
        const Doubt doubt = theDoubt(withDensity(7850, values));
        EXPECT_EQ(doubt.id, Id::Density);
        EXPECT_FALSE(doubt.remedy) << doubt.text();
        EXPECT_THAT(doubt.message.text(), testing::StartsWith("Density = 7850 kg/m^3 with "));
        EXPECT_THAT(doubt.message.text(),
                    testing::EndsWith("to 20500 m/s. The other values are those of rubber, which has 820 kg/m^3 to "
                                      "2150 kg/m^3."));
    }
    EXPECT_EQ(theDoubt(withDensity(0.5, rubber())).id, Id::Density) << "too light";
}

TEST(Blame, IsOnTheHeatBesideTheOtherValuesOfCopper)
{
    MaterialValues copper;
    copper.setNumber(Id::Density, 8300);
    copper.setNumber(Id::YoungsModulus, 110e9);
    copper.setNumber(Id::PoissonsRatio, 0.34);
    copper.setNumber(Id::ThermalConductivity, 401);
    copper.setNumber(Id::SpecificHeat, 875); // of aluminium
    const Doubt doubt = theDoubt(copper);
    EXPECT_EQ(doubt.id, Id::SpecificHeat);
    EXPECT_THAT(doubt.text(), testing::EndsWith("The other values are those of copper alloy, which has 360 J/(kg K) to "
                                                "450 J/(kg K)."));
}

TEST(Blame, IsOpenIfTheOtherValuesDoNotTell)
{
    MaterialValues values; // steel in another unit, or rubber with the density of another material
    values.setNumber(Id::Density, 7850);
    values.setNumber(Id::YoungsModulus, 3e6);
    const Doubt doubt = theDoubt(values);
    EXPECT_FALSE(doubt.remedy) << doubt.text();
    EXPECT_THAT(doubt.text(), testing::EndsWith("to 20500 m/s. Any of these values may be wrong."));
}

// --- Remedies that compete ---

MaterialValues metal(double density, double modulus, double ratio)
{
    MaterialValues values;
    values.setNumber(Id::Density, density);
    values.setNumber(Id::YoungsModulus, modulus);
    values.setNumber(Id::PoissonsRatio, ratio);
    return values;
}

std::string remedyOf(const MaterialValues& values)
{
    const auto remedy = theDoubt(values).remedy;
    return remedy ? remedy->message.text() : "";
}

TEST(Remedies, AreNamedWithoutReserveForUnitsOfDataSheets)
{
    EXPECT_EQ(remedyOf(metal(7850, 210e3, 0.3)), "210000 MPa is usual for steel: multiply by 1e6");
    EXPECT_EQ(remedyOf(metal(7850, 210, 0.3)), "210 GPa is usual for steel: multiply by 1e9");
    EXPECT_EQ(remedyOf(metal(7850, 30e6, 0.3)), "3e+07 psi is usual for steel: multiply by 6894.76");
    EXPECT_EQ(remedyOf(metal(7850, 30000, 0.3)), "30000 ksi is usual for steel: multiply by 6.89476e6");
    EXPECT_EQ(remedyOf(metal(2.7, 70e9, 0.33)), "2.7 g/cm^3 is usual for aluminium alloy: multiply by 1000");
    EXPECT_EQ(remedyOf(metal(0.284, 210e9, 0.3)), "0.284 lb/in^3 is usual for steel: multiply by 27679.9");
    EXPECT_EQ(remedyOf(metal(0.284, 30e6, 0.3)),
              "The stresses look like psi, and the density like lb/in^3: convert them");
}

TEST(Remedies, AreOnePossibilityIfAnotherIsAboutAsLikely)
{
    // titanium of 270 lb/ft3, or aluminium of 2700 kg/m3 with a digit too few
    EXPECT_EQ(remedyOf(metal(270, 70e9, 0.33)),
              "One possibility: 270 lb/ft^3 is usual for titanium alloy; then multiply by 16.0185");
    // steel of 2.1e6 kgf/cm2, or a foam with the density of steel
    EXPECT_EQ(remedyOf(metal(7850, 2.1e6, 0.3)),
              "One possibility: 2100000 kgf/cm^2 is usual for steel; then multiply by 98066.5");
    // 1 Msi would be an alkali metal, which the density contradicts
    MaterialValues values = metal(7850, 1, 0.3);
    values.setNumber(Id::SpecificHeat, 460.5);
    values.setNumber(Id::ThermalConductivity, 51.9);
    values.setNumber(Id::ElectricalConductivity, 5.8e7);
    EXPECT_THAT(remedyOf(values), testing::Not(testing::HasSubstr("metal: multiply")));
}

TEST(Remedies, AreNotNamedIfAnErrorOfTypingIsMoreLikely)
{
    // 27 slug/ft3 would be gold; 2700 kg/m3 is aluminium
    EXPECT_EQ(remedyOf(metal(27, 70e9, 0.33)), "");
    // 2100 ksi would be lead; nothing tells what is wrong
    EXPECT_EQ(remedyOf(metal(7850, 2100, 0.3)), "");
    MaterialValues values = metal(7850, 210e9, 0.3);
    values.setNumber(Id::ThermalConductivity, 6000); // 6 W/(m K) would be a magnet; 60 is steel
    EXPECT_THAT(remedyOf(values), testing::Not(testing::HasSubstr("permanent magnet: multiply")));
}

TEST(Relations, HaveBoundsUnitsAndSources)
{
    EXPECT_GE(vxUnits::relations().size(), 12U);
    for (const vxUnits::Relation& one : vxUnits::relations()) {
        EXPECT_LT(one.lowest, one.highest) << one.name;
        EXPECT_TRUE(vxUnits::Unit::parse(one.unit)) << one.unit;
        EXPECT_STRNE(one.source, "") << one.name;
    }
}

TEST(Messages, HaveIdsOfTheirOwn)
{
    std::vector<std::string> ids;
    for (const vxUnits::MessageText& text : vxUnits::messageTexts())
        ids.emplace_back(text.id);
    std::sort(ids.begin(), ids.end());
    EXPECT_EQ(std::adjacent_find(ids.begin(), ids.end()), ids.end());
    EXPECT_GT(ids.size(), 70U);
}

TEST(Messages, WordsOfArgumentsAreListedForTranslators)
{
    const auto& words = vxUnits::wordTexts();
    EXPECT_NE(std::find(words.begin(), words.end(), "pressure or stress"), words.end());
    EXPECT_NE(std::find(words.begin(), words.end(), "stainless steel"), words.end());
    EXPECT_NE(std::find(words.begin(), words.end(), "osmium"), words.end());
}

// --- The unit system that a material fits ---

TEST(FittingSystem, IsTheOneInWhichAllNumbersOfAMaterialAreUsual)
{
    for (const char* const name : {"mm-t-s", "mm-kg-ms", "cm-g-s", "in-lbf-s"}) {
        vxMat::StructuralSteel material;
        EXPECT_EQ(vxUnits::fittingSystem(material), "") << "in SI";
        vxUnits::convertMaterial(material, vxUnits::UnitSystem::si(), *vxUnits::UnitSystem::parse(name));
        EXPECT_EQ(vxUnits::fittingSystem(material), name);
    }
}

TEST(FittingSystem, IsNoneIfOnlyOneNumberIsUnusual)
{
    vxMat::StructuralSteel material;
    material.properties.at(Id::Density)->value = 7.85e-9;
    EXPECT_EQ(vxUnits::fittingSystem(material), "");
}

TEST(SlotsWithoutUnit, AreThoseOfUnknownQuantitiesAndOfACreepFactorWithoutExponents)
{
    vxMat::StructuralSteel material;
    EXPECT_TRUE(vxUnits::slotsWithoutUnit(material).empty());
    for (const std::int32_t id : std::vector<std::int32_t>{Id::CreepModulusA, 999}) {
        auto property = std::make_unique<vxMat::MaterialProperty>();
        property->id = id;
        material.setProperty(id, std::move(property));
    }
    EXPECT_EQ(vxUnits::slotsWithoutUnit(material), (std::vector<std::int32_t>{Id::CreepModulusA, 999}));
}

} // namespace
