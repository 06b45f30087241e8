#include "Obj/PropertyReference.h"

#include "Obj/Project.h"

#include <utility>

namespace Obj {

ProjectObject* PropertyReference::getValue() const
{
    const Project* const project = m_objectId != 0 ? findProject() : nullptr;
    return project != nullptr ? project->get_object(m_objectId) : nullptr;
}

bool PropertyReference::setValue(ProjectObject* object)
{
    const RemovalGuard guard;
    const Project* const project = findProject();
    if (object != nullptr && (project == nullptr || object->get_project() != project))
        return false;
    auto* const owner = dynamic_cast<ProjectObject*>(getOwner());
    notifyBefore();
    if (owner != nullptr && object != nullptr)
        owner->addReference(*object);
    const std::uint32_t before = std::exchange(m_objectId, object != nullptr ? object->getObjectId() : 0);
    if (owner != nullptr && before != 0)
        owner->removeReference(before);
    notifyAfter();
    return true;
}

std::string PropertyReference::toText() const
{
    const ProjectObject* const object = getValue();
    return object != nullptr ? object->get_name_in_project() : "";
}

bool PropertyReference::fromText(std::string_view text)
{
    const Project* const project = findProject();
    ProjectObject* const object = project != nullptr ? project->get_object(text) : nullptr;
    return (object != nullptr || text.empty()) && setValue(object);
}

Json::Value PropertyReference::toJson() const
{
    const ProjectObject* const object = getValue();
    return object != nullptr ? Json::Value(object->getObjectId()) : Json::Value();
}

bool PropertyReference::fromJson(const Json::Value& json)
{
    const Project* const project = findProject();
    ProjectObject* const object = project != nullptr && json.isUInt() ? project->get_object(json.asUInt()) : nullptr;
    return (object != nullptr || json.isNull()) && setValue(object);
}

const Project* PropertyReference::findProject() const
{
    if (const auto* const object = dynamic_cast<const ProjectObject*>(getOwner()))
        return object->get_project();
    return dynamic_cast<const Project*>(getOwner());
}

} // namespace Obj
