#include "vxMaterial/exchange/CAEMaterials.h"

#include "MemberTable.h"

#include "vxMaterial/model/CataloguedMaterial.h"

#include <cassert>
#include <utility>

namespace vxCAE {

namespace {

Json::Value toJson(std::int32_t slot, const vxMat::MaterialProperty& property)
{
    Json::Value json(Json::objectValue);
    json[Json::StaticString("prop_type")] = slot;
    json[Json::StaticString("prop_key")] = property.key;
    json[Json::StaticString("prop_name")] = property.name;
    json[Json::StaticString("prop_value")] = property.value;
    return json;
}

Json::Value toJson(std::uint32_t number, const vxMat::CMaterial& material)
{
    Json::Value properties;
    for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(material))
        properties.append(toJson(slot, *property));

    Json::Value json(Json::objectValue);
    json[Json::StaticString("mat_id")] = number;
    json[Json::StaticString("mat_name")] = material.name;
    if (!properties.empty())
        json[Json::StaticString("Props")] = std::move(properties);
    return json;
}

void readProperty(vxMat::CMaterial& material, const Json::Value& json)
{
    const auto type = static_cast<std::int32_t>(json["prop_type"].asUInt());
    material.setProperty(type, std::make_unique<vxMat::MaterialProperty>(type, json["prop_name"].asString(),
                                                                         json["prop_key"].asString(),
                                                                         json["prop_value"].asDouble()));
}

} // namespace

const char* CAEMaterials::typeName() const
{
    return "CAEMaterials";
}

void CAEMaterials::writeJson(Json::Value& document) const
{
    if (entries.empty())
        return;
    Json::Value& list = document["material"];
    for (const auto& [number, entry] : entries)
        list.append(toJson(number, *entry->material));
}

void CAEMaterials::readJson(const Json::Value& document)
{
    detail::forEachElement(document["material"], [this](const Json::Value& element) {
        const std::uint32_t number = element["mat_id"].asUInt();
        auto entry = std::make_unique<MaterialEntry>();
        entry->setId(static_cast<std::int32_t>(number));
        entry->material->name = element["mat_name"].asString();
        detail::forEachElement(element["Props"],
                               [&entry](const Json::Value& json) { readProperty(*entry->material, json); });
        addMaterial(number, std::move(entry));
    });
}

void CAEMaterials::addMaterial(std::uint32_t number, std::unique_ptr<MaterialEntry> entry)
{
    assert(entry != nullptr);
    // The hint makes an insertion in ascending order, as in documents, take constant time.
    entries.insert_or_assign(entries.end(), number, std::move(entry));
}

MaterialEntry* CAEMaterials::getMaterial(std::uint32_t number) const
{
    const auto found = entries.find(number);
    return found != entries.end() ? found->second.get() : nullptr;
}

} // namespace vxCAE
