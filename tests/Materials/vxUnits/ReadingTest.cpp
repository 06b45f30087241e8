#include "vxUnits/Reading.h"

#include "CommaLocale.h"

#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace {

using Id = vxMat::PropertyId;
using testing::ElementsAre;
using vxUnits::ReadingContext;
using vxUnits::readNumber;
using vxUnits::readQuantity;
using vxUnits::readQuantityList;
using vxUnits::Unit;
using vxUnits::UnitSystem;

TEST(Reading, ShowsWhatItBecomes)
{
    EXPECT_EQ(readQuantity(Id::YoungsModulus, "210 GPa")->understood, "210 GPa = 2.1e+11 Pa");
    EXPECT_EQ(readQuantity(Id::Density, "7.85 g/cm³")->understood, "7.85 g/cm^3 = 7850 kg/m^3");
    EXPECT_EQ(readQuantity(Id::PoissonsRatio, "30 %")->understood, "30 % = 0.3");
    EXPECT_EQ(readQuantity(Id::Density, "7850")->understood, "7850 kg/m^3");
    EXPECT_EQ(readQuantity(Id::Density, "7850 kg/m3")->understood, "7850 kg/m^3");
    EXPECT_EQ(readQuantity(Id::PoissonsRatio, "0.3")->understood, "0.3");
    EXPECT_EQ(readQuantity(Id::ThermalConductivity, "1 cal/(s cm K)")->note.text(),
              "cal is the International Table calorie, 4.1868 J; cal_th is 4.184 J.");
}

TEST(Reading, APlainNumberIsInTheUnitOfTheCatalogue)
{
    EXPECT_EQ(readQuantity(Id::YoungsModulus, "2.1e11")->value, 2.1e11);
    EXPECT_EQ(readQuantity(Id::PlasticFAI, "30")->value, 30.0);
    EXPECT_EQ(readQuantity(Id::LimitingNetworkStretch, "5.15")->value, 5.15);
    EXPECT_EQ(readQuantity(Id::ElectricalConductivity, "5.8e7")->value, 5.8e7);
}

TEST(Reading, APlainNumberMayBeInAnotherSystem)
{
    const UnitSystem mm = *UnitSystem::parse("mm-t-s");
    const ReadingContext context{&mm, {}};
    EXPECT_EQ(readQuantity(Id::Density, "7.85e-9", context)->value, 7850.0);
    EXPECT_EQ(readQuantity(Id::Density, "7.85e-9", context)->understood, "7.85e-09 t/mm^3 = 7850 kg/m^3");
    EXPECT_EQ(readQuantity(Id::Density, "7850 kg/m^3", context)->value, 7850.0);
    EXPECT_THAT(readQuantityList(Id::PlasticYieldStress, "250, 300", context)->values, ElementsAre(250e6, 300e6));
}

TEST(Reading, TheUnitOfCreepFollowsFromTheExponents)
{
    ReadingContext context;
    context.creep = vxUnits::CreepExponents{5.0, 0.0};
    EXPECT_EQ(readQuantity(Id::CreepModulusA, "3.6e-17 MPa^-5 h^-1", context)->value, 1e-50);
    EXPECT_EQ(readQuantity(Id::CreepModulusA, "1e-50", context)->understood, "1e-50 1/(Pa^5 s)");
    EXPECT_EQ(readQuantity(Id::CreepModulusA, "1e-50")->value, 1e-50);
    EXPECT_FALSE(readQuantity(Id::CreepModulusA, "1e-20 MPa^-4 h^-1", context));
    const UnitSystem mm = *UnitSystem::parse("mm-t-s");
    EXPECT_FALSE(readQuantity(Id::CreepModulusA, "1e-10", {&mm, {}})) << "cannot be converted without the exponents";
    EXPECT_EQ(readQuantity(Id::CreepModulusA, "1e-10", {&mm, vxUnits::CreepExponents{5.0, 0.0}})->value, 1e-40);
}

TEST(Reading, ATypedValueIsComparedWithAStoredOne)
{
    const double stored = 2.1e11;
    EXPECT_TRUE(stored > readQuantity(Id::YoungsModulus, "100 GPa")->value);
    EXPECT_TRUE(stored == readQuantity(Id::YoungsModulus, "210 GPa")->value);
    EXPECT_TRUE(stored == readQuantity(Id::YoungsModulus, "0.21 TPa")->value);
    EXPECT_TRUE(7850.0 < readQuantity(Id::Density, "8 g/cm^3")->value);
}

TEST(Reading, WithinAUnitThatIsNotCoherent)
{
    EXPECT_EQ(readNumber("1 in", *Unit::parse("mm"))->value, 25.4);
    EXPECT_EQ(readNumber("14.7 psi", *Unit::parse("ksi"))->value, 0.0147);
    EXPECT_EQ(readNumber("3", *Unit::parse("ksi"))->understood, "3 ksi");
}

TEST(ReadingLists, TakeOneUnitForAllOrOneForEach)
{
    EXPECT_THAT(readQuantityList(Id::PlasticYieldStress, "250, 300 MPa")->values, ElementsAre(250e6, 300e6));
    EXPECT_THAT(readQuantityList(Id::PlasticYieldStress, "250 MPa, 0.3 GPa")->values, ElementsAre(250e6, 300e6));
    EXPECT_THAT(readQuantityList(Id::PlasticYieldStress, "450,608,679")->values, ElementsAre(450, 608, 679));
    EXPECT_THAT(readQuantityList(Id::PlasticStrain, "0, 5, 10 %")->values, ElementsAre(0.0, 0.05, 0.1));
    EXPECT_THAT(readQuantityList(Id::PlasticStrain, "0; 0.05; 0.1")->values, ElementsAre(0.0, 0.05, 0.1));
    EXPECT_THAT(readQuantityList(Id::PlasticYieldStress, "250\n300\n350 MPa\n")->values,
                ElementsAre(250e6, 300e6, 350e6));
    EXPECT_THAT(readQuantityList(Id::PlasticYieldStress, "250\t300")->values, ElementsAre(250, 300));
    EXPECT_THAT(readQuantityList(Id::PlasticYieldStress, "２５０，３００ MPa")->values, ElementsAre(250e6, 300e6));
    EXPECT_THAT(readQuantityList(Id::PlasticYieldStress, "250 MPa")->values, ElementsAre(250e6));
    EXPECT_THAT(readQuantityList(Id::PlasticYieldStress, "250, 300,")->values, ElementsAre(250, 300));
    EXPECT_THAT(readQuantityList(Id::PlasticYieldStress, "250.5,300.25")->values, ElementsAre(250.5, 300.25));
    EXPECT_THAT(readQuantityList(Id::PlasticStrain, "0.0,0.1")->values, ElementsAre(0.0, 0.1));
    EXPECT_THAT(readQuantityList(Id::PlasticYieldStress, "250 MPa,300 MPa")->values, ElementsAre(250e6, 300e6));
}

TEST(ReadingLists, ShowWhatTheyBecome)
{
    EXPECT_EQ(readQuantityList(Id::PlasticYieldStress, "250, 300 MPa")->understood, "250, 300 MPa = 2.5e+08, 3e+08 Pa");
    EXPECT_EQ(readQuantityList(Id::PlasticYieldStress, "250 MPa; 0.3 GPa")->understood,
              "250 MPa, 0.3 GPa = 2.5e+08, 3e+08 Pa");
    EXPECT_EQ(readQuantityList(Id::PlasticStrain, "0, 5 %")->understood, "0, 5 % = 0, 0.05");
    EXPECT_EQ(readQuantityList(Id::PlasticYieldStress, "450,608,679")->understood, "450, 608, 679 Pa");
}

TEST(Reading, DoesNotDependOnTheLocale)
{
    const vxtest::CommaLocale german;
    EXPECT_EQ(readQuantity(Id::YoungsModulus, "2.1e5 MPa")->understood, "210000 MPa = 2.1e+11 Pa");
    EXPECT_FALSE(readQuantity(Id::YoungsModulus, "2,1 GPa"));
    EXPECT_THAT(readQuantityList(Id::PlasticStrain, "0, 0.5 %")->values, ElementsAre(0.0, 0.005));
}

TEST(Reading, ReadsTheDatabaseOfUnitsUnderALocaleWithDecimalCommas)
{
    const vxtest::CommaLocale german;
    const auto chain = readNumber("2.5 furlong", *Unit::parse("km"));
    ASSERT_TRUE(chain) << chain.failure().text();
    EXPECT_NEAR(chain->value, 2.5 * 0.66 * 1200.0 / 3937.0, 1e-12);
}

TEST(Reading, IsSafeInSeveralThreadsWhileTheDatabaseIsRead)
{
    std::vector<std::thread> threads;
    std::vector<double> values(8);
    for (double& value : values) {
        threads.emplace_back([&value] {
            for (int i = 0; i < 50; ++i) {
                const auto reading = readNumber("8 furlong", *Unit::parse("m"));
                value = reading ? reading->value : 0.0;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (const double value : values)
        EXPECT_NEAR(value, 5280.0 * 1200.0 / 3937.0, 1e-9);
}

} // namespace
