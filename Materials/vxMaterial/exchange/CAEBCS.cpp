#include "vxMaterial/exchange/CAEBCS.h"

#include "SectionMembers.h"

#include <cassert>
#include <utility>

namespace vxCAE {

namespace {

bool isComplete(const StepValue& step)
{
    return step.values.size() == step.count;
}

/// Returns the flags of a complete step. Throws std::out_of_range if flags are missing and asserts are off.
Json::Value flagsOf(const StepValue& step)
{
    assert(step.imposed.size() >= step.count);
    Json::Value flags;
    for (std::uint32_t i = 0; i < step.count; ++i)
        flags.append(Json::Value(static_cast<bool>(step.imposed.at(i))));
    return flags;
}

Json::Value toJson(std::int32_t setId, const StepValue& step)
{
    Json::Value json(Json::objectValue);
    json["set_id"] = setId;
    if (isComplete(step) && step.count > 0) {
        json["imposed"] = flagsOf(step);
        json["value"] = detail::toArray(step.values);
    }
    json["valType"] = step.valType;
    return json;
}

/// Returns the step in `json`; null if its arrays differ in length.
std::unique_ptr<StepValue> toStep(const Json::Value& json)
{
    const Json::Value& imposed = json["imposed"];
    const Json::Value& values = json["value"];
    auto step = std::make_unique<StepValue>();
    step->valType = detail::readValue<std::int32_t>(json["valType"], detail::Conversion::Count);
    if (imposed.size() != values.size())
        return nullptr;

    step->count = values.size();
    step->imposed.reserve(step->count);
    detail::forEachElement(imposed, [&step](const Json::Value& flag) { step->imposed.push_back(flag.asBool()); });
    step->values.reserve(step->count);
    detail::forEachElement(values, [&step](const Json::Value& value) { step->values.push_back(value.asDouble()); });
    return step;
}

} // namespace

CAEBC::CAEBC(std::uint32_t objectId, std::string conditionName, std::int32_t conditionType, std::uint32_t components)
    : obj_id(objectId), type(conditionType), name(std::move(conditionName)), componentCount(components)
{}

CAEBC::~CAEBC() = default;

void CAEBC::writeJson(Json::Value& json) const
{
    detail::writeMembers(*this, detail::boundaryConditionMembers, json);
    Json::Value list;
    for (const auto& [setId, step] : steps)
        list.append(toJson(setId, *step));
    if (!list.empty())
        json["steps"] = std::move(list);
}

void CAEBC::readJson(const Json::Value& json)
{
    detail::readMembers(*this, detail::boundaryConditionMembers, json);
    detail::forEachElement(json["steps"], [this](const Json::Value& element) {
        const auto setId = detail::readValue<std::int32_t>(element["set_id"], detail::Conversion::Count);
        if (auto step = toStep(element))
            addStep(setId, std::move(step));
    });
}

void CAEBC::addStep(std::int32_t setId, std::unique_ptr<StepValue> step)
{
    assert(step != nullptr);
    steps.insert_or_assign(steps.end(), setId, std::move(step));
}

const char* CAEBCS::typeName() const
{
    return "CAEBCS";
}

void CAEBCS::writeJson(Json::Value& document) const
{
    Json::Value section;
    for (const auto& [id, condition] : conditions) {
        Json::Value json(Json::objectValue);
        condition->writeJson(json);
        section["BCs"].append(std::move(json));
    }
    document["boundarycondition"] = std::move(section);
}

void CAEBCS::readJson(const Json::Value& document)
{
    detail::forEachElement(document["boundarycondition"]["BCs"], [this](const Json::Value& element) {
        auto condition = std::make_unique<CAEBC>();
        condition->readJson(element);
        addCondition(std::move(condition));
    });
}

void CAEBCS::addCondition(std::unique_ptr<CAEBC> condition)
{
    assert(condition != nullptr);
    const std::uint32_t id = condition->obj_id;
    conditions.insert_or_assign(conditions.end(), id, std::move(condition));
}

} // namespace vxCAE
