#include "UndoCommands.h"

#include "Obj/Property.h"

namespace vxMsg {

const void* OwnDoing::current = nullptr;

ProjectCommand::ProjectCommand(const QString& text, const Obj::Project& project)
    : PresenceCommand(text, Presence::Here), m_projectId(project.getProjectId())
{}

ProjectCommand::ProjectCommand(const QString& text, Obj::OwnedProject closed)
    : PresenceCommand(text, Presence::Gone), m_projectId(closed->getProjectId())
{
    keep(std::move(closed));
}

Obj::OwnedProject ProjectCommand::take()
{
    Obj::Application& application = Obj::Application::instance();
    const Obj::Project* const project = application.get_project(m_projectId);
    const OwnDoing doing(project);
    return project != nullptr ? application.takeProject(*project) : nullptr;
}

void ProjectCommand::putBack(Obj::OwnedProject project)
{
    Obj::Application::instance().restoreProject(std::move(project));
}

ObjectCommand::ObjectCommand(const QString& text, const Obj::ProjectObject& object)
    : PresenceCommand(text, Presence::Here),
      m_projectId(object.get_project()->getProjectId()),
      m_objectId(object.getObjectId())
{}

ObjectCommand::ObjectCommand(const QString& text, const Obj::Project& project, Obj::OwnedObject deleted)
    : PresenceCommand(text, Presence::Gone), m_projectId(project.getProjectId()), m_objectId(deleted->getObjectId())
{
    keep(std::move(deleted));
}

Obj::OwnedObject ObjectCommand::take()
{
    Obj::Project* const project = Obj::Application::instance().get_project(m_projectId);
    if (project == nullptr)
        return nullptr;
    const OwnDoing doing(project->get_object(m_objectId));
    return project->takeObject(m_objectId);
}

void ObjectCommand::putBack(Obj::OwnedObject object)
{
    if (Obj::Project* const project = Obj::Application::instance().get_project(m_projectId))
        project->restoreObject(std::move(object));
}

PropertyCommand::PropertyCommand(const QString& text, PropertyPlace place, std::string name, Json::Value before,
                                 Json::Value after)
    : DoneCommand(text),
      m_place(std::move(place)),
      m_name(std::move(name)),
      m_before(std::move(before)),
      m_after(std::move(after))
{}

void PropertyCommand::set(const Json::Value& value) const
{
    const Obj::PropertyDS* const owner = m_place.find();
    Obj::Property* const property = owner != nullptr ? owner->get_property_by_name(m_name.c_str()) : nullptr;
    // Every stored value was a value of the property.
    if (property != nullptr)
        static_cast<void>(property->fromJson(value));
}

RenameCommand::RenameCommand(const QString& text, std::uint32_t projectId, std::string before, std::string after)
    : DoneCommand(text), m_projectId(projectId), m_before(std::move(before)), m_after(std::move(after))
{}

void RenameCommand::set(const std::string& name) const
{
    Obj::Application& application = Obj::Application::instance();
    if (Obj::Project* const project = application.get_project(m_projectId))
        static_cast<void>(application.renameProject(*project, name));
}

SettingCommand::SettingCommand(const QString& text, PropertyPlace place, std::string name, std::string before,
                               std::string after)
    : DoneCommand(text),
      m_place(std::move(place)),
      m_name(std::move(name)),
      m_before(std::move(before)),
      m_after(std::move(after))
{}

void SettingCommand::set(const std::string& text) const
{
    Obj::PropertyDS* const owner = m_place.find();
    if (auto* const object = dynamic_cast<Obj::ProjectObject*>(owner))
        object->setSetting(m_name, text);
    else if (auto* const project = dynamic_cast<Obj::Project*>(owner))
        project->setSetting(m_name, text);
}

SuppressionCommand::SuppressionCommand(const QString& text, PropertyPlace place, bool suppressed)
    : DoneCommand(text), m_place(std::move(place)), m_suppressed(suppressed)
{}

void SuppressionCommand::set(bool suppressed) const
{
    if (Obj::ProjectObject* const object = m_place.findObject())
        object->setSuppressed(suppressed);
}

} // namespace vxMsg
