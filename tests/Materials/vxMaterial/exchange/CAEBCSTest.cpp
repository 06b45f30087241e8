#include "vxMaterial/exchange/CAEBCS.h"

#include "ExchangeTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using vxCAE::CAEBC;
using vxCAE::CAEBCS;
using vxCAE::StepValue;
using vxtest::json;
using vxtest::written;

std::unique_ptr<StepValue> makeStep(std::vector<double> values, std::vector<bool> imposed, int type)
{
    auto step = std::make_unique<StepValue>();
    step->count = static_cast<std::uint32_t>(values.size());
    step->values = std::move(values);
    step->imposed = std::move(imposed);
    step->valType = type;
    return step;
}

TEST(CAEBC, StartsWithItsDefaults)
{
    const CAEBC condition;
    EXPECT_EQ(condition.obj_id, 0U);
    EXPECT_EQ(condition.type, 0);
    EXPECT_EQ(condition.name, "Unknown");
    EXPECT_EQ(condition.componentCount, 3U);
    EXPECT_THAT(condition.steps, IsEmpty());
    const CAEBC given(7, "Fixed", 2, 6);
    EXPECT_EQ(given.obj_id, 7U);
    EXPECT_EQ(given.name, "Fixed");
    EXPECT_EQ(given.type, 2);
    EXPECT_EQ(given.componentCount, 6U);
}

TEST(CAEBC, WritesNoStepsWhenItHasNone)
{
    EXPECT_EQ(written(CAEBC(7, "Fixed", 2, 6)).getMemberNames(), (Json::Value::Members{"name", "obj_id", "type"}));
}

TEST(CAEBC, WritesItsStepsInAscendingSetId)
{
    CAEBC condition(7, "Fixed", 2, 2);
    condition.addStep(5, makeStep({3.0}, {true}, 0));
    condition.addStep(1, makeStep({0.5, 2.0}, {true, false}, 4));
    const Json::Value document = written(condition);
    EXPECT_EQ(document["obj_id"].type(), Json::uintValue);
    EXPECT_EQ(document["type"].type(), Json::intValue);
    ASSERT_EQ(document["steps"].size(), 2U);
    EXPECT_EQ(document["steps"][0],
              json(R"({"set_id": 1, "imposed": [true, false], "value": [0.5, 2.0], "valType": 4})"));
    EXPECT_EQ(document["steps"][1]["set_id"], 5);
}

TEST(CAEBC, WritesOnlyIdAndTypeOfAStepWithAWrongCount)
{
    CAEBC condition;
    auto step = makeStep({0.5, 2.0}, {true, false}, 4);
    step->count = 3;
    condition.addStep(1, std::move(step));
    const Json::Value document = written(condition);
    EXPECT_EQ(document["steps"][0], json(R"({"set_id": 1, "valType": 4})"));
}

TEST(CAEBC, AssertsAFlagForEachValue)
{
    CAEBC condition;
    condition.addStep(2, makeStep({0.5, 2.0}, {true}, 6));
#ifdef NDEBUG
    EXPECT_THROW(written(condition), std::out_of_range);
#else
    EXPECT_DEATH(written(condition), "imposed");
#endif
}

TEST(CAEBC, WritesAFlagForEachValueAndNoneBeyond)
{
    CAEBC condition;
    condition.addStep(1, makeStep({0.5}, {true, false}, 4));
    EXPECT_EQ(written(condition)["steps"][0],
              json(R"({"set_id": 1, "imposed": [true], "value": [0.5], "valType": 4})"));
}

TEST(CAEBC, SkipsAStepWhoseArraysDifferInLength)
{
    CAEBC condition;
    condition.readJson(json(R"({"obj_id": 3, "steps": [
        {"set_id": 1, "imposed": [true], "value": [1.0, 2.0], "valType": 1},
        {"set_id": 3, "imposed": [true, true], "value": [1.0], "valType": 1},
        {"set_id": 2, "imposed": [true, false], "value": [1.5, 2.5], "valType": 7}]})"));
    ASSERT_THAT(condition.steps, SizeIs(1));
    const StepValue& step = *condition.steps.at(2);
    EXPECT_THAT(step.values, ElementsAre(1.5, 2.5));
    EXPECT_THAT(step.imposed, ElementsAre(true, false));
    EXPECT_EQ(step.count, 2U);
    EXPECT_EQ(step.valType, 7);
}

TEST(CAEBC, ReadsAStepWithoutArraysAsOneWithoutValues)
{
    CAEBC condition;
    condition.readJson(json(R"({"steps": [{"set_id": 4}]})"));
    ASSERT_THAT(condition.steps, SizeIs(1));
    EXPECT_EQ(condition.steps.at(4)->count, 0U);
    EXPECT_EQ(written(condition)["steps"][0], json(R"({"set_id": 4, "valType": 0})"));
}

TEST(CAEBC, AddsTheStepsThatItReadsToThoseHeld)
{
    CAEBC condition;
    condition.addStep(1, makeStep({1.0}, {true}, 0));
    condition.readJson(json(R"({"steps": [{"set_id": 2}]})"));
    EXPECT_THAT(condition.steps, SizeIs(2));
}

TEST(CAEBC, ReplacesAStepThatHasTheSameSetId)
{
    CAEBC condition;
    condition.addStep(1, makeStep({1.0}, {true}, 0));
    condition.addStep(1, makeStep({2.0}, {true}, 0));
    ASSERT_THAT(condition.steps, SizeIs(1));
    EXPECT_THAT(condition.steps.at(1)->values, ElementsAre(2.0));
}

TEST(CAEBCS, WritesNullWithoutConditions)
{
    const Json::Value document = written(CAEBCS());
    ASSERT_TRUE(document.isMember("boundarycondition"));
    EXPECT_TRUE(document["boundarycondition"].isNull());
}

TEST(CAEBCS, WritesConditionsInAscendingObjectId)
{
    CAEBCS section;
    section.addCondition(std::make_unique<CAEBC>(9, "b", 1, 3));
    section.addCondition(std::make_unique<CAEBC>(3, "a", 1, 3));
    const Json::Value document = written(section);
    ASSERT_EQ(document["boundarycondition"].getMemberNames(), Json::Value::Members{"BCs"});
    EXPECT_EQ(document["boundarycondition"]["BCs"][0]["name"], "a");
    EXPECT_EQ(document["boundarycondition"]["BCs"][1]["name"], "b");
}

TEST(CAEBCS, ReadsBackWhatItWrote)
{
    CAEBCS section;
    auto condition = std::make_unique<CAEBC>(9, "Load", 4, 2);
    condition->addStep(1, makeStep({1e300, -0.25}, {false, true}, 2));
    section.addCondition(std::move(condition));
    CAEBCS read;
    read.readJson(written(section));
    EXPECT_EQ(written(read), written(section));
}

TEST(CAEBCS, KeepsTheLaterOfTwoConditionsWithOneId)
{
    CAEBCS section;
    section.readJson(json(R"({"boundarycondition": {"BCs": [{"obj_id": 1, "name": "first"},
                                                             {"obj_id": 1, "name": "second"}]}})"));
    ASSERT_THAT(section.conditions, SizeIs(1));
    EXPECT_EQ(section.conditions.at(1)->name, "second");
}

TEST(CAEBCS, KeepsTheConditionsBeforeTheOneThatCannotBeRead)
{
    CAEBCS section;
    const Json::Value document = json(R"({"boundarycondition": {"BCs": [
        {"obj_id": 1, "name": "good"}, {"obj_id": 2, "steps": [{"set_id": 1, "imposed": [true], "value": ["x"]}]},
        {"obj_id": 3}]}})");
    EXPECT_THROW(section.readJson(document), Json::LogicError);
    ASSERT_THAT(section.conditions, SizeIs(1));
    EXPECT_EQ(section.conditions.at(1)->name, "good");
}

TEST(CAEBCS, ReadsNullAsNoConditions)
{
    CAEBCS section;
    section.readJson(json(R"({"boundarycondition": null})"));
    EXPECT_THAT(section.conditions, IsEmpty());
}

TEST(CAEBCS, RefusesElementsThatAreNoObjects)
{
    CAEBCS section;
    for (const char* const document :
         {R"({"boundarycondition": {"BCs": [[1]]}})", R"({"boundarycondition": {"BCs": ["text"]}})",
          R"({"boundarycondition": {"BCs": {"a": 1}}})", R"({"boundarycondition": "text"})"})
        EXPECT_THROW(section.readJson(json(document)), Json::LogicError) << document;
}

} // namespace
