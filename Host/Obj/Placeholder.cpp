#include "Obj/Placeholder.h"

#include "Obj/PropertyType.h"

#include <json/writer.h>

#include <utility>

namespace Obj {

namespace {

std::string toText(const Json::Value& json)
{
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    return json.isString() ? json.asString() : Json::writeString(builder, json);
}

/// The bytes that a record takes, an estimate: its text is about as long.
std::size_t sizeOf(const Json::Value& json)
{
    return toText(json).size();
}

} // namespace

Placeholder::Placeholder(std::string className, Json::Value record)
    : m_className(std::move(className)), m_record(std::move(record))
{
    const Json::Value properties = m_record.isObject() ? m_record["properties"] : Json::Value();
    if (!properties.isObject())
        return;
    for (const std::string& name : properties.getMemberNames()) {
        m_shown.push_back(std::make_unique<ShownProperty>());
        m_shown.back()->name = name;
        m_shown.back()->value.setValue(toText(properties[name]));
    }
}

Placeholder::~Placeholder() = default;

OBJ_REGISTER_ABSTRACT_CLASS(Obj::PlaceholderObject, Obj::ProjectObject)

PlaceholderObject::PlaceholderObject(std::string className, Json::Value record)
    : Placeholder(std::move(className), std::move(record))
{
    classLabel.setValue(getOriginalClass());
    registerProperty(propertyData, label, "Label", "Info", PropertyType::readOnly, "Name shown in the project tree");
    registerProperty(propertyData, id, "ID", "Info", PropertyType::readOnly, "Identity of the tree object");
    registerProperty(propertyData, classLabel, "ClassLabel", "Info", PropertyType::readOnly,
                     "class of a module that is missing");
    for (const auto& shown : shownProperties())
        if (get_property_by_name(shown->name.c_str()) == nullptr)
            registerProperty(m_ownData, shown->value, shown->name.c_str(), "Content", PropertyType::readOnly, "");
}

PlaceholderObject::~PlaceholderObject() = default;

std::size_t PlaceholderObject::get_memory_usage() const
{
    return ProjectObject::get_memory_usage() + sizeOf(getRecord());
}

void PlaceholderObject::save_jsonDB(Json::Value& record)
{
    ProjectObject::save_jsonDB(record);
    record["class"] = getOriginalClass();
}

OBJ_REGISTER_ABSTRACT_CLASS(Obj::PlaceholderProject, Obj::Project)

PlaceholderProject::PlaceholderProject(std::string className, Json::Value record)
    : Placeholder(std::move(className), std::move(record))
{
    classLabel.setValue(getOriginalClass());
    registerProperty(propertyData, id, "ID", "Info", PropertyType::readOnly, "Identity of the tree object");
    registerProperty(propertyData, classLabel, "ClassLabel", "Info", PropertyType::readOnly,
                     "class of a module that is missing");
    for (const auto& shown : shownProperties())
        if (get_property_by_name(shown->name.c_str()) == nullptr)
            registerProperty(m_ownData, shown->value, shown->name.c_str(), "Content", PropertyType::readOnly, "");
}

PlaceholderProject::~PlaceholderProject() = default;

std::size_t PlaceholderProject::get_memory_usage() const
{
    return Project::get_memory_usage() + sizeOf(getRecord());
}

} // namespace Obj
