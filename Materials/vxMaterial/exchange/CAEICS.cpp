#include "vxMaterial/exchange/CAEICS.h"

#include "SectionMembers.h"

#include <cassert>
#include <utility>

namespace vxCAE {

const char* CAEIC::typeName() const
{
    return "CAEIC";
}

void CAEIC::writeJson(Json::Value& json) const
{
    detail::writeMembers(*this, detail::initialConditionMembers, json);
}

void CAEIC::readJson(const Json::Value& json)
{
    CAEIC read;
    detail::readMembers(read, detail::initialConditionMembers, json);
    *this = std::move(read);
}

const char* CAEICS::typeName() const
{
    return "CAEICS";
}

void CAEICS::writeJson(Json::Value& document) const
{
    Json::Value section;
    for (const auto& [id, condition] : conditions) {
        Json::Value json(Json::objectValue);
        condition->writeJson(json);
        section["ICs"].append(std::move(json));
    }
    document["initialcondition"] = std::move(section);
}

void CAEICS::readJson(const Json::Value& document)
{
    detail::forEachElement(document["initialcondition"]["ICs"], [this](const Json::Value& element) {
        auto condition = std::make_unique<CAEIC>();
        condition->readJson(element);
        addCondition(std::move(condition));
    });
}

void CAEICS::addCondition(std::unique_ptr<CAEIC> condition)
{
    assert(condition != nullptr);
    const std::uint32_t id = condition->obj_id;
    conditions.insert_or_assign(conditions.end(), id, std::move(condition));
}

} // namespace vxCAE
