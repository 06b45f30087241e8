#include "PlaceholderRecord.h"

#include "Obj/Placeholder.h"
#include "projectfile/MaterialRecord.h"

#include <cstddef>
#include <memory>
#include <utility>

namespace desktop {

namespace {

constexpr const char* colourName = "MaterialColor";

void addMember(Json::Value& record, const char* name, Json::Value value)
{
    if (!value.isNull())
        record[name] = std::move(value);
}

} // namespace

Json::Value nodeWithColour(const projectfile::ObjectRecord& object)
{
    Json::Value node = object.node;
    if (object.colour)
        for (const float part : *object.colour)
            node[colourName].append(part);
    return node;
}

void moveColourFromNode(projectfile::ObjectRecord& object)
{
    Json::Value colour;
    if (!object.node.isObject() || !object.node.removeMember(colourName, &colour))
        return;
    if (object.node.empty())
        object.node = Json::Value();
    auto& parts = object.colour.emplace();
    for (std::size_t part = 0; part < parts.size(); ++part)
        parts[part] = colour[static_cast<Json::ArrayIndex>(part)].asFloat();
}

Json::Value recordOfObject(const projectfile::ObjectRecord& object)
{
    Json::Value record(Json::objectValue);
    addMember(record, "properties", object.properties);
    addMember(record, "node", nodeWithColour(object));
    addMember(record, "content",
              object.material != nullptr ? projectfile::writeMaterial(*object.material) : object.content);
    if (object.material != nullptr)
        record["is_material"] = true;
    return record;
}

void writePlaceholder(const Obj::Placeholder& placeholder, projectfile::ObjectRecord& object)
{
    const Json::Value& record = placeholder.getRecord();
    object.className = placeholder.getOriginalClass();
    object.properties = record["properties"];
    object.node = record["node"];
    if (!record["is_material"].isBool()) {
        object.content = record["content"];
        return;
    }
    object.ownMaterial = std::make_unique<vxMat::MaterialBase>();
    projectfile::readMaterial(*object.ownMaterial, record["content"]);
    object.material = object.ownMaterial.get();
    moveColourFromNode(object);
}

Json::Value recordOfProject(const projectfile::ProjectRecord& project)
{
    Json::Value record(Json::objectValue);
    addMember(record, "properties", project.properties);
    addMember(record, "record", project.record);
    return record;
}

void writePlaceholder(const Obj::Placeholder& placeholder, projectfile::ProjectRecord& project)
{
    project.className = placeholder.getOriginalClass();
    project.properties = placeholder.getRecord()["properties"];
    project.record = placeholder.getRecord()["record"];
}

} // namespace desktop
