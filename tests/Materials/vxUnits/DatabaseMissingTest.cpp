#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Reading.h"
#include "vxUnits/Writing.h"

#include <gtest/gtest.h>

#include <cstdlib>

/// What is left without the data file of UDUNITS. A program of its own, since the file is read once.
namespace {

using Id = vxMat::PropertyId;
using vxUnits::DatabaseState;
using vxUnits::databaseState;
using vxUnits::FaultCode;
using vxUnits::readQuantity;
using vxUnits::Unit;
using vxUnits::UnitSystem;

class DatabaseMissing : public testing::Test
{
protected:
    static void SetUpTestSuite() { setenv("UDUNITS2_XML_PATH", "/nowhere/udunits2.xml", 1); }
};

TEST_F(DatabaseMissing, PlainNumbersAndBuiltInUnitsGoOn)
{
    EXPECT_EQ(readQuantity(Id::YoungsModulus, "2.1e11")->value, 2.1e11);
    EXPECT_EQ(readQuantity(Id::YoungsModulus, "30e6 psi")->understood, "3e+07 psi = 206842718795.05084 Pa");
}

TEST_F(DatabaseMissing, ConversionsBetweenTheBuiltInSystemsGoOn)
{
    for (const UnitSystem& system : UnitSystem::builtIn()) {
        const auto written = vxUnits::writeQuantity(Id::Density, 7850.0, system);
        ASSERT_TRUE(written) << system.text();
        const vxUnits::ReadingContext context{&system, {}};
        EXPECT_EQ(readQuantity(Id::Density, written->number, context)->value, 7850.0) << system.text();
    }
}

TEST_F(DatabaseMissing, AUnitThatIsNotBuiltInIsRefusedWithTheReason)
{
    for (int i = 0; i < 2; ++i) {
        const auto reading = vxUnits::readNumber("5 furlong", *Unit::parse("m"));
        ASSERT_FALSE(reading);
        EXPECT_EQ(reading.failure().code, FaultCode::DatabaseUnreadable);
        EXPECT_EQ(
            reading.failure().message.text(),
            "The unit \"furlong\" is not built in, and the database of units cannot be read: /nowhere/udunits2.xml "
            "cannot be opened. Install the data of UDUNITS-2, or have the environment variable UDUNITS2_XML_PATH name "
            "the file udunits2.xml.");
        EXPECT_EQ(databaseState(), DatabaseState::Unreadable);
    }
    EXPECT_EQ(readQuantity(Id::YoungsModulus, "210 GPas").failure().suggestion, "210 GPa")
        << "spellings are still suggested";
}

} // namespace
