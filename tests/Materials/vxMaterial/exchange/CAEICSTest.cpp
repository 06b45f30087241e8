#include "vxMaterial/exchange/CAEICS.h"

#include "ExchangeTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::SizeIs;
using vxCAE::CAEIC;
using vxCAE::CAEICS;
using vxtest::json;
using vxtest::written;

TEST(CAEIC, WritesItselfIntoAnObjectOfItsOwn)
{
    const Json::Value document = written(CAEIC());
    EXPECT_EQ(document["obj_id"], 0U);
    EXPECT_EQ(document["obj_id"].type(), Json::uintValue);
    EXPECT_EQ(document["name"], "unnamed");
    EXPECT_EQ(document["type"], "unknown");
    EXPECT_EQ(document["value"], 0.0);
    EXPECT_EQ(document.size(), 4U);
}

TEST(CAEIC, KeepsWhatItHeldWhenAMemberCannotBeConverted)
{
    CAEIC condition;
    EXPECT_THROW(condition.readJson(json(R"({"obj_id": 5, "value": "warm"})")), Json::LogicError);
    EXPECT_EQ(condition.obj_id, 0U);
    EXPECT_EQ(condition.name, "unnamed");
}

TEST(CAEICS, WritesNullWithoutConditions)
{
    const Json::Value document = written(CAEICS());
    ASSERT_TRUE(document.isMember("initialcondition"));
    EXPECT_TRUE(document["initialcondition"].isNull());
}

TEST(CAEICS, ReadsBackWhatItWroteInAscendingObjectId)
{
    CAEICS section;
    for (const unsigned id : {9U, 3U}) {
        auto condition = std::make_unique<CAEIC>();
        condition->obj_id = id;
        condition->name = "warm";
        condition->type = "temperature";
        condition->value = 293.15;
        section.addCondition(std::move(condition));
    }
    const Json::Value document = written(section);
    EXPECT_EQ(document["initialcondition"]["ICs"][0]["obj_id"], 3U);
    CAEICS read;
    read.readJson(document);
    EXPECT_EQ(written(read), document);
}

TEST(CAEICS, KeepsTheLaterOfTwoConditionsWithOneId)
{
    CAEICS section;
    section.readJson(
        json(R"({"initialcondition": {"ICs": [{"obj_id": 1, "value": 1.0}, {"obj_id": 1, "value": 2.0}]}})"));
    ASSERT_THAT(section.conditions, SizeIs(1));
    EXPECT_EQ(section.conditions.at(1)->value, 2.0);
}

TEST(CAEICS, KeepsTheConditionsBeforeTheOneThatCannotBeRead)
{
    CAEICS section;
    EXPECT_THROW(section.readJson(json(R"({"initialcondition": {"ICs": [{"obj_id": 1}, {"obj_id": -1}]}})")),
                 Json::LogicError);
    EXPECT_THAT(section.conditions, SizeIs(1));
}

} // namespace
