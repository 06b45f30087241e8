#include "vxConstitutive/Curve.h"

#include "vxConstitutive/Finding.h"
#include "vxConstitutive/Model.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>

using namespace vxConstitutive;

namespace {

TEST(CurveVocabulary, RecordsAreInTheOrderOfTheirEnumeration)
{
    for (std::size_t i = 0; i < modeRecords().size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(modeRecords()[i].mode), i);
    for (std::size_t i = 0; i < quantityRecords().size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(quantityRecords()[i].quantity), i);
    for (std::size_t i = 0; i < modelRecords().size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(modelRecords()[i].kind), i);
    for (std::size_t i = 0; i < findingRecords().size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(findingRecords()[i].id), i);
}

TEST(CurveVocabulary, KeysAreUniqueAndFindTheirModes)
{
    std::set<std::string> keys;
    for (const ModeRecord& record : modeRecords()) {
        EXPECT_TRUE(keys.insert(record.key).second) << record.key;
        EXPECT_EQ(findMode(record.key), record.mode);
    }
    for (const FindingRecord& record : findingRecords())
        EXPECT_TRUE(keys.insert(record.key).second) << record.key;
    EXPECT_EQ(findMode("simple-shear"), Mode::SimpleShear);
    EXPECT_EQ(findMode("Simple-Shear"), Mode::SimpleShear);
    EXPECT_EQ(findMode("simple shear"), std::nullopt);
    EXPECT_EQ(findMode(""), std::nullopt);
}

TEST(CurveAbscissas, EvenSpacingEndsExactlyAtBothBounds)
{
    EXPECT_EQ(evenlySpaced(1.0, 2.0, 3), (std::vector<double>{1.0, 1.5, 2.0}));
    EXPECT_EQ(evenlySpaced(0.1, 0.7, 7).back(), 0.7);
    EXPECT_EQ(evenlySpaced(3.0, 9.0, 1), (std::vector<double>{3.0}));
    EXPECT_TRUE(evenlySpaced(0.0, 1.0, 0).empty());
    EXPECT_EQ(evenlySpaced(-1.7e308, 1.7e308, 3), (std::vector<double>{-1.7e308, 0.0, 1.7e308}));
}

TEST(CurveAbscissas, EvenSpacingHasAnExactZero)
{
    for (const auto& [from, to, count, zero] : {std::tuple(-0.1, 0.2, 4, 1), std::tuple(-0.2, 0.6, 41, 10),
                                                std::tuple(-0.7, 0.1, 9, 7), std::tuple(-3e8, 1e8, 13, 9)})
        EXPECT_EQ(evenlySpaced(from, to, static_cast<std::size_t>(count))[static_cast<std::size_t>(zero)], 0.0) << from;
    EXPECT_EQ(evenlySpaced(-1e-30, 1.0, 3).front(), -1e-30) << "the bounds are kept";
}

TEST(CurveAbscissas, BetweenTheBoundsAreTheNumbersThatAUserExpects)
{
    EXPECT_EQ(evenlySpaced(0.5, 3.0, 6), (std::vector<double>{0.5, 1.0, 1.5, 2.0, 2.5, 3.0}));
    EXPECT_EQ(evenlySpaced(0.1, 0.7, 7), (std::vector<double>{0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7}));
    EXPECT_EQ(spacedByFactor(1e-3, 1e3, 7), (std::vector<double>{1e-3, 0.01, 0.1, 1.0, 10.0, 100.0, 1e3}));
    EXPECT_EQ(evenlySpaced(1.0 / 3.0, 2.0 / 3.0, 3).front(), 1.0 / 3.0); // the bounds keep their digits
}

TEST(CurveAbscissas, SpacingByFactorsNeedsBoundsOfOneSign)
{
    const std::vector<double> decades = spacedByFactor(1.0, 1000.0, 4);
    ASSERT_EQ(decades.size(), 4U);
    EXPECT_DOUBLE_EQ(decades[1], 10.0);
    EXPECT_DOUBLE_EQ(decades[2], 100.0);
    EXPECT_EQ(decades[3], 1000.0);
    EXPECT_DOUBLE_EQ(spacedByFactor(-1.0, -100.0, 3)[1], -10.0);
    EXPECT_TRUE(spacedByFactor(0.0, 1.0, 5).empty());
    EXPECT_TRUE(spacedByFactor(-1.0, 1.0, 5).empty());
}

TEST(CurveColumns, NamesTellParametersAndWhatValuesAreMultiplesOf)
{
    Column column;
    column.quantity = Quantity::CreepStrain;
    column.parameter = 1e8;
    EXPECT_EQ(columnName(column), "creep strain at 1e+08 Pa");
    column.quantity = Quantity::CreepStrainRate;
    column.parameter = 3600.0;
    EXPECT_EQ(columnName(column), "creep strain rate at 3600 s");
    column = Column();
    column.quantity = Quantity::Pressure;
    column.relative = Relative::ToCohesion;
    EXPECT_EQ(columnName(column), "pressure / cohesion");
    column.quantity = Quantity::CreepCompliance;
    column.relative = Relative::ToShearModulus;
    EXPECT_EQ(columnName(column), "creep compliance x shear modulus");
}

} // namespace
