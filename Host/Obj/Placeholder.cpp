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

/// Returns the bytes that a record takes, an estimate: its text has about the same length.
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

template <class Owner, class Register>
void Placeholder::registerShown(Owner& owner, PropertyCoreData& classData, const Register& registerProperty)
{
    constexpr short readOnly = PropertyType::readOnly;
    owner.classLabel.setValue(m_className);
    registerProperty(classData, owner.id, "ID", "Info", readOnly, "Identity of the tree object");
    registerProperty(classData, owner.classLabel, "ClassLabel", "Info", readOnly, "class of a module that is missing");
    for (const auto& shown : m_shown)
        if (owner.get_property_by_name(shown->name.c_str()) == nullptr)
            registerProperty(m_ownData, shown->value, shown->name.c_str(), "Content", readOnly, "");
}

OBJ_REGISTER_ABSTRACT_CLASS(Obj::PlaceholderObject, Obj::ProjectObject)

PlaceholderObject::PlaceholderObject(std::string className, Json::Value record)
    : Placeholder(std::move(className), std::move(record))
{
    registerProperty(propertyData, label, "Label", "Info", PropertyType::readOnly, "Name shown in the project tree");
    registerShown(*this, propertyData, [this](auto&&... arguments) { registerProperty(arguments...); });
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
    registerShown(*this, propertyData, [this](auto&&... arguments) { registerProperty(arguments...); });
}

PlaceholderProject::~PlaceholderProject() = default;

std::size_t PlaceholderProject::get_memory_usage() const
{
    return Project::get_memory_usage() + sizeOf(getRecord());
}

} // namespace Obj
