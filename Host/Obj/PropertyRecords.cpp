#include "Obj/PropertyRecords.h"

#include "Obj/Project.h"
#include "Obj/PropertyReference.h"

#include <QCoreApplication>

#include <stdexcept>

namespace Obj {

namespace {

[[noreturn]] void refuse(const char* text)
{
    throw std::runtime_error(QCoreApplication::translate("Obj::PropertyRecords", text).toStdString());
}

Json::Value renumbered(const Json::Value& reference, const Renumbering& newId)
{
    const std::uint32_t objectId = reference.isUInt() ? newId(reference.asUInt()) : 0;
    return objectId != 0 ? Json::Value(objectId) : Json::Value();
}

bool readProperty(PropertyDS& set, const std::string& name, const Json::Value& value, const Renumbering& newId)
{
    Property* const property = set.get_property_by_name(name.c_str());
    if (property == nullptr || set.is_read_only(property))
        return false;
    const bool isReference = dynamic_cast<PropertyReference*>(property) != nullptr;
    return property->fromJson(isReference && value.isUInt() ? renumbered(value, newId) : value);
}

bool readLink(ProjectObject& object, const Json::Value& value, const Renumbering& newId)
{
    const Json::Value objectId = renumbered(value, newId);
    const Project* const project = object.get_project();
    ProjectObject* const other =
        project != nullptr && objectId.isUInt() ? project->get_object(objectId.asUInt()) : nullptr;
    return other != nullptr && object.linkTo(*other);
}

} // namespace

std::uint32_t sameId(std::uint32_t id)
{
    return id;
}

Json::Value writeProperties(const PropertyDS& set)
{
    std::vector<Property*> properties;
    set.get_property_array(properties);
    Json::Value record;
    for (const Property* const property : properties)
        if (!set.is_read_only(property))
            record[set.get_property_name(property)] = property->toJson();
    return record;
}

std::vector<std::string> readProperties(PropertyDS& set, const Json::Value& record, const Renumbering& newId)
{
    if (!record.isNull() && !record.isObject())
        refuse(QT_TRANSLATE_NOOP("Obj::PropertyRecords", "the properties are not an object"));
    std::vector<std::string> refused;
    for (const std::string& name : record.getMemberNames())
        if (!readProperty(set, name, record[name], newId))
            refused.push_back(name);
    return refused;
}

Json::Value writeLinks(const ProjectObject& object)
{
    Json::Value record;
    for (const ProjectObject* const other : object.getLinks())
        record.append(other->getObjectId());
    return record;
}

std::size_t readLinks(ProjectObject& object, const Json::Value& record, const Renumbering& newId)
{
    if (!record.isNull() && !record.isArray())
        refuse(QT_TRANSLATE_NOOP("Obj::PropertyRecords", "the links are not an array"));
    std::size_t refused = 0;
    for (const Json::Value& value : record)
        if (!readLink(object, value, newId))
            ++refused;
    return refused;
}

} // namespace Obj
