#include "vxMaterial/exchange/ExportCheck.h"

#include "ExchangeTesting.h"

#include "vxMaterial/exchange/DocumentCheck.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using vxCAE::ExportFault;
using vxMat::MaterialProperty;
using vxtest::written;

std::vector<std::pair<int, ExportFault>> obstaclesOf(const vxMat::MaterialBase& material)
{
    std::vector<std::pair<int, ExportFault>> all;
    for (const vxCAE::ExportObstacle& obstacle : vxCAE::findExportObstacles(material)) {
        EXPECT_EQ(obstacle.held.property, material.findProperty(obstacle.held.slot));
        all.emplace_back(obstacle.held.slot, obstacle.fault);
    }
    return all;
}

std::vector<int> lostSlotsOf(const vxMat::MaterialBase& material)
{
    std::vector<int> slots;
    for (const auto& [slot, property] : vxCAE::findLostValues(material)) {
        EXPECT_EQ(property, material.findProperty(slot));
        slots.push_back(slot);
    }
    return slots;
}

/// Adds a density of 1 in a slot and returns it.
MaterialProperty& addDensity(vxMat::MaterialBase& material, int slot)
{
    auto density = vxMat::findPropertyRecord(4)->create();
    MaterialProperty& added = *density;
    material.setProperty(slot, std::move(density));
    return added;
}

TEST(ExportObstacles, AreNoneInASoundMaterial)
{
    vxMat::CMaterial material;
    addDensity(material, 4);
    addDensity(material, 0);
    addDensity(material, std::numeric_limits<std::int32_t>::max());
    EXPECT_THAT(obstaclesOf(material), IsEmpty());
}

TEST(ExportObstacles, AreNumbersThatAreNotFinite)
{
    using Limits = std::numeric_limits<double>;
    vxMat::CMaterial material;
    addDensity(material, 5).value = Limits::quiet_NaN();
    addDensity(material, 4).value = -Limits::infinity();
    addDensity(material, 6).value = Limits::max();
    addDensity(material, 1000).value = Limits::infinity();
    EXPECT_THAT(obstaclesOf(material),
                ElementsAre(Pair(4, ExportFault::NumberNotFinite), Pair(5, ExportFault::NumberNotFinite),
                            Pair(1000, ExportFault::NumberNotFinite)));
}

TEST(ExportObstacles, AreSlotsBelowZero)
{
    vxMat::CMaterial material;
    addDensity(material, -1).value = std::numeric_limits<double>::infinity();
    addDensity(material, -3);
    addDensity(material, 4);
    EXPECT_THAT(obstaclesOf(material),
                ElementsAre(Pair(-3, ExportFault::NegativeSlot), Pair(-1, ExportFault::NumberNotFinite),
                            Pair(-1, ExportFault::NegativeSlot)));
}

// The id of a property is not written.
TEST(ExportObstacles, AreNotIdsBelowZero)
{
    vxMat::CMaterial material;
    addDensity(material, 4).id = -3;
    EXPECT_THAT(obstaclesOf(material), IsEmpty());
}

TEST(ExportObstacles, AreWhatTheCheckOfTheDocumentFinds)
{
    auto entry = std::make_unique<vxCAE::MaterialEntry>();
    addDensity(*entry->material, -3);
    ASSERT_EQ(obstaclesOf(*entry->material).size(), 1U);
    vxCAE::CAEMaterials section;
    section.addMaterial(1, std::move(entry));
    const Json::Value document = written(section);
    bool refused = false;
    for (const vxCAE::Finding& finding : vxCAE::checkDocument(document).findings)
        refused = refused || finding.path == "$.material[0].Props[0].prop_type";
    EXPECT_TRUE(refused);
}

TEST(LostValues, AreWordsAndLists)
{
    vxMat::CMaterial material;
    for (const int id : {39, 38, 37, 33, 32, 31, 4})
        material.setProperty(id, vxMat::findPropertyRecord(id)->create());
    std::vector<int> expected;
    for (const vxMat::PropertyRecord& record : vxMat::propertyRecords())
        if (material.hasProperty(record.id) &&
            (record.kind == vxMat::ValueKind::Word || record.kind == vxMat::ValueKind::NumberList))
            expected.push_back(record.id);
    ASSERT_EQ(expected.size(), 4U);
    EXPECT_EQ(lostSlotsOf(material), expected);
}

TEST(LostValues, AreWordsAndListsBesideANumber)
{
    vxMat::CMaterial material;
    addDensity(material, 4).text = "heavy";
    addDensity(material, 5).values = {1.0};
    addDensity(material, 6);
    EXPECT_THAT(lostSlotsOf(material), ElementsAre(4, 5));
}

// The acoustic materials of the library hold a density in the slot of the speed of sound.
TEST(LostValues, DependOnTheIdOfThePropertyAndNotOnItsSlot)
{
    vxMat::CMaterial material;
    addDensity(material, 38);
    material.setProperty(4, vxMat::findPropertyRecord(38)->create());
    EXPECT_THAT(lostSlotsOf(material), ElementsAre(4));
}

TEST(LostValues, AreNotUnitsAndDescriptions)
{
    vxMat::CMaterial material;
    MaterialProperty& density = addDensity(material, 4);
    density.unit = "t/mm3";
    density.description = "measured";
    EXPECT_THAT(lostSlotsOf(material), IsEmpty());
}

} // namespace
