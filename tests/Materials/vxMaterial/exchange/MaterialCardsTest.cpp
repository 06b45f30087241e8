#include "CommaLocale.h"
#include "ExchangeTesting.h"

#include "vxMaterial/exchange/CAEMaterials.h"
#include "vxMaterial/model/MaterialLibrary.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using vxCAE::MaterialEntry;
using vxtest::makeEntry;

std::unique_ptr<MaterialEntry> plastic(const char* yield, const char* hardening,
                                       std::initializer_list<std::pair<int, double>> numbers = {})
{
    auto entry = makeEntry(numbers);
    entry->material->setProperty(32, std::make_unique<vxMat::Plasticity>());
    entry->material->setProperty(33, std::make_unique<vxMat::PlasticYieldType>(yield));
    entry->material->setProperty(37, std::make_unique<vxMat::PlasticHardeningType>(hardening));
    entry->classifyKind();
    return entry;
}

void setCurve(MaterialEntry& entry, const std::vector<double>& stresses, const std::vector<double>& strains)
{
    entry.material->setProperty(38, std::make_unique<vxMat::PlasticYieldStress>(stresses));
    entry.material->setProperty(39, std::make_unique<vxMat::PlasticStrain>(strains));
}

std::unique_ptr<MaterialEntry> fromLibrary(const vxMat::MaterialBase& material)
{
    auto entry = std::make_unique<MaterialEntry>();
    entry->material->copyFrom(material);
    entry->classifyKind();
    return entry;
}

TEST(PlasticityCard, IsEmptyForAnEntryThatIsNotClassified)
{
    auto entry = plastic("Mises", "Bilinear", {{41, 250.0}, {36, 2.0}});
    entry->kind = 0;
    EXPECT_EQ(entry->getPlasticityCard(), "");
}

TEST(PlasticityCard, WritesMisesBilinear)
{
    EXPECT_EQ(plastic("Mises", "Bilinear", {{41, 2.5e8}, {36, 1.45e9}})->getPlasticityCard(),
              "!PLASTIC, YIELD=MISES, HARDEN=BILINEAR\n 2.5e+08, 1.45e+09\n");
}

TEST(PlasticityCard, TakesWordsInLowerCase)
{
    EXPECT_EQ(plastic("mises", "bilinear", {{41, 250.0}, {36, 2.0}})->getPlasticityCard(),
              "!PLASTIC, YIELD=MISES, HARDEN=BILINEAR\n 250, 2\n");
}

TEST(PlasticityCard, TakesAnEmptyHardeningForBilinear)
{
    EXPECT_EQ(plastic("MISES", "", {{41, 250.0}, {36, 2.0}})->getPlasticityCard(),
              "!PLASTIC, YIELD=MISES, HARDEN=BILINEAR\n 250, 2\n");
}

TEST(PlasticityCard, SaysThatBilinearMisesLacksAValue)
{
    const std::string expected = "!PLASTIC, YIELD=MISES, HARDEN=BILINEAR\n Invalid dIniYStress and dHFactor\n";
    EXPECT_EQ(plastic("Mises", "Bilinear", {{41, 250.0}})->getPlasticityCard(), expected);
    EXPECT_EQ(plastic("Mises", "Bilinear", {{36, 2.0}})->getPlasticityCard(), expected);
}

TEST(PlasticityCard, WritesALineForEachPairOfMisesMultilinear)
{
    auto entry = plastic("Mises", "Multilinear");
    setCurve(*entry, {250.0, 300.0}, {0.0, 0.1});
    EXPECT_EQ(entry->getPlasticityCard(), "!PLASTIC, YIELD=MISES, HARDEN=MULTILINEAR\n 250, 0\n 300, 0.1\n");
}

TEST(PlasticityCard, IgnoresStrainsBeyondTheYieldStresses)
{
    auto entry = plastic("Mises", "Multilinear");
    setCurve(*entry, {250.0}, {0.0, 0.1});
    EXPECT_EQ(entry->getPlasticityCard(), "!PLASTIC, YIELD=MISES, HARDEN=MULTILINEAR\n 250, 0\n");
}

TEST(PlasticityCard, LeavesOutYieldStressesThatHaveNoStrain)
{
    auto entry = plastic("Mises", "Multilinear");
    setCurve(*entry, {250.0, 300.0, 350.0}, {0.0});
    EXPECT_EQ(entry->getPlasticityCard(), "!PLASTIC, YIELD=MISES, HARDEN=MULTILINEAR\n 250, 0\n");
}

TEST(PlasticityCard, IsAHeaderAloneWithoutLists)
{
    EXPECT_EQ(plastic("Mises", "Multilinear")->getPlasticityCard(), "!PLASTIC, YIELD=MISES, HARDEN=MULTILINEAR\n");
}

TEST(PlasticityCard, IsEmptyForAHardeningThatTheSolverDoesNotKnow)
{
    for (const char* const hardening : {"Swift", "SWIFT", "Kinematic", "Combined", "Ramberg-Osgood", "no such"}) {
        EXPECT_EQ(plastic("MISES", hardening)->getPlasticityCard(), "") << hardening;
        EXPECT_EQ(plastic("Drucker-Prager", hardening)->getPlasticityCard(), "") << hardening;
    }
}

TEST(PlasticityCard, WritesDruckerPragerBilinear)
{
    EXPECT_EQ(plastic("Drucker-Prager", "Bilinear", {{34, 0.0}, {35, 30.0}, {36, 2.0}})->getPlasticityCard(),
              "!PLASTIC, YIELD=DRUCKER-PRAGER, HARDEN=BILINEAR\n 0, 30, 2\n");
}

TEST(PlasticityCard, WritesMohrCoulombBilinearUnderItsOwnName)
{
    EXPECT_EQ(plastic("Mohr-Coulomb", "", {{34, 500.0}, {35, 20.0}, {36, 0.0}})->getPlasticityCard(),
              "!PLASTIC, YIELD=MOHR-COULOMB, HARDEN=BILINEAR\n 500, 20, 0\n");
}

TEST(PlasticityCard, SaysThatBilinearDruckerPragerLacksAValue)
{
    const std::string expected =
        "!PLASTIC, YIELD=DRUCKER-PRAGER, HARDEN=BILINEAR\n Invalid dViscosity, dFAI, and dHFactor.\n";
    EXPECT_EQ(plastic("Drucker-Prager", "Bilinear", {{34, 0.0}, {36, 2.0}})->getPlasticityCard(), expected);
    EXPECT_EQ(plastic("Drucker-Prager", "Bilinear", {{35, 0.0}, {36, 2.0}})->getPlasticityCard(), expected);
    EXPECT_EQ(plastic("Drucker-Prager", "Bilinear", {{34, 0.0}, {35, 2.0}})->getPlasticityCard(), expected);
}

TEST(PlasticityCard, WritesTheAngleBeforeTheStrainsOfDruckerPragerMultilinear)
{
    for (const char* const yield : {"Drucker-Prager", "Mohr-Coulomb"}) {
        auto entry = plastic(yield, "Multilinear", {{34, 500.0}, {35, 20.0}});
        setCurve(*entry, {}, {0.0, 0.1});
        EXPECT_EQ(entry->getPlasticityCard(), "!PLASTIC, YIELD=MISES, HARDEN=MULTILINEAR\n 20 0, 500\n 0.1, 500\n");
    }
}

TEST(PlasticityCard, SaysThatMultilinearDruckerPragerLacksAValue)
{
    for (const int present : {34, 35}) {
        auto entry = plastic("Drucker-Prager", "Multilinear", {{present, 500.0}});
        setCurve(*entry, {}, {0.0, 0.1});
        EXPECT_EQ(entry->getPlasticityCard(),
                  "!PLASTIC, YIELD=MISES, HARDEN=MULTILINEAR\nInvalid dFAI and dViscosity.\n");
    }
}

TEST(PlasticityCard, EndsWithTheAngleWhenDruckerPragerMultilinearHasNoStrains)
{
    EXPECT_EQ(plastic("Drucker-Prager", "Multilinear", {{34, 500.0}, {35, 20.0}})->getPlasticityCard(),
              "!PLASTIC, YIELD=MISES, HARDEN=MULTILINEAR\n 20");
}

TEST(PlasticityCard, IsEmptyForAYieldTypeThatTheSolverDoesNotKnow)
{
    for (const char* const yield : {"", "Tresca", "Mises "})
        EXPECT_EQ(plastic(yield, "Bilinear")->getPlasticityCard(), "") << yield;
}

TEST(ViscoElasticCard, WritesModulusAndTime)
{
    EXPECT_EQ(makeEntry({{42, 1.0}, {43, 0.5}, {44, 1.0}})->getViscoElasticCard(), "!VISCOELASTIC\n 0.5, 1\n");
}

TEST(ViscoElasticCard, SaysThatAValueIsMissing)
{
    const std::string expected = "!VISCOELASTIC\nInvalid dShearRelaxation or dRelaxationTime.\n";
    EXPECT_EQ(makeEntry({{42, 1.0}, {43, 0.5}})->getViscoElasticCard(), expected);
    EXPECT_EQ(makeEntry({{42, 1.0}, {44, 0.5}})->getViscoElasticCard(), expected);
}

TEST(ViscoElasticCard, IsEmptyForAnotherKind)
{
    EXPECT_EQ(makeEntry({{43, 0.5}, {44, 1.0}})->getViscoElasticCard(), "");
    EXPECT_EQ(makeEntry({{42, 1.0}, {43, 0.5}, {44, 1.0}, {32, 1.0}})->getViscoElasticCard(), "");
}

TEST(CreepCard, WritesNortonsConstants)
{
    EXPECT_EQ(makeEntry({{45, 1.0}, {46, 1e-10}, {47, 5.0}, {48, 0.0}})->getCreepCard(),
              "!CREEP, TYPE=NORTON\n 1e-10, 5, 0\n");
}

TEST(CreepCard, EndsWithAMessageWhenMIsMissing)
{
    EXPECT_EQ(makeEntry({{45, 1.0}, {46, 1.0}, {47, 5.0}})->getCreepCard(),
              "!CREEP, TYPE=NORTON\nInvalid dModulusA, dModulusN, or dModulusM.\n");
}

TEST(CreepCard, IsEmptyForAnotherKind)
{
    EXPECT_EQ(makeEntry({{46, 1.0}, {47, 5.0}, {48, 0.0}})->getCreepCard(), "");
}

TEST(DensityTable, GivesTwoPointsOverTemperature)
{
    EXPECT_EQ(makeEntry({{4, 7850.0}})->getDensityTable(), " 7850, 0\n 7850, 1e+06\n");
}

TEST(DensityTable, WritesAMissingDensityAsZero)
{
    EXPECT_EQ(makeEntry({})->getDensityTable(), " 0, 0\n 0, 1e+06\n");
}

TEST(ThermalTables, GiveTwoPointsOrAMessage)
{
    EXPECT_EQ(makeEntry({{202, 490.0}})->getSpecificHeatTable(), " 490, 0\n 490, 1e+06\n");
    EXPECT_EQ(makeEntry({})->getSpecificHeatTable(), "Invalid dSpecificHeat.\n");
    EXPECT_EQ(makeEntry({{203, 44.5}})->getThermalConductivityTable(), " 44.5, 0\n 44.5, 1e+06\n");
    EXPECT_EQ(makeEntry({})->getThermalConductivityTable(), "Invalid dThermalConduct.\n");
}

TEST(MaterialCards, AreThoseOfTheLibraryExamples)
{
    EXPECT_EQ(fromLibrary(vxMat::PlasticMaterial1())->getPlasticityCard(),
              "!PLASTIC, YIELD=MISES, HARDEN=MULTILINEAR\n 450, 0\n 608, 0.05\n 679, 0.1\n 732, 0.2\n 752, "
              "0.3\n 766, "
              "0.4\n 780, 0.5\n");
    EXPECT_EQ(fromLibrary(vxMat::PlasticMaterial2())->getPlasticityCard(),
              "!PLASTIC, YIELD=DRUCKER-PRAGER, HARDEN=BILINEAR\n 500, 20, 0\n");
    EXPECT_EQ(fromLibrary(vxMat::CreepMaterial1())->getCreepCard(), "!CREEP, TYPE=NORTON\n 1e-10, 5, 0\n");
    EXPECT_EQ(fromLibrary(vxMat::ViscoElasticMaterial1())->getViscoElasticCard(), "!VISCOELASTIC\n 0.5, 1\n");
}

TEST(MaterialCards, KeepThePointUnderACommaLocale)
{
    const vxtest::CommaLocale comma;
    EXPECT_EQ(fromLibrary(vxMat::ViscoElasticMaterial1())->getViscoElasticCard(), "!VISCOELASTIC\n 0.5, 1\n");
    EXPECT_EQ(makeEntry({{4, 1.225}})->getDensityTable(), " 1.225, 0\n 1.225, 1e+06\n");
    EXPECT_EQ(plastic("Mises", "Bilinear", {{41, 0.5}, {36, 1234567.0}})->getPlasticityCard(),
              "!PLASTIC, YIELD=MISES, HARDEN=BILINEAR\n 0.5, 1.23457e+06\n");
}

} // namespace
