#include "UndoCommands.h"

#include <utility>

namespace vxMsg {

const void* OwnDoing::current = nullptr;
int Undoing::depth = 0;

ProjectCommand::ProjectCommand(const QString& text, const Obj::Project& project)
    : PresenceCommand(text, Presence::Here), m_projectId(project.getProjectId())
{}

ProjectCommand::ProjectCommand(const QString& text, std::unique_ptr<Obj::Project> closed)
    : PresenceCommand(text, Presence::Gone), m_projectId(closed->getProjectId())
{
    keep(std::move(closed));
}

std::unique_ptr<Obj::Project> ProjectCommand::take()
{
    Obj::Application& application = Obj::Application::instance();
    const Obj::Project* const project = application.get_project(m_projectId);
    const OwnDoing doing(project);
    return project != nullptr ? application.take_project(*project) : nullptr;
}

void ProjectCommand::restore(std::unique_ptr<Obj::Project> project)
{
    Obj::Application::instance().restore_project(std::move(project));
}

ObjectCommand::ObjectCommand(const QString& text, const Obj::ProjectObject& object)
    : PresenceCommand(text, Presence::Here),
      m_projectId(object.get_project()->getProjectId()),
      m_objectId(object.getObjectId())
{}

ObjectCommand::ObjectCommand(const QString& text, const Obj::Project& project,
                             std::unique_ptr<Obj::ProjectObject> deleted)
    : PresenceCommand(text, Presence::Gone), m_projectId(project.getProjectId()), m_objectId(deleted->getObjectId())
{
    keep(std::move(deleted));
}

std::unique_ptr<Obj::ProjectObject> ObjectCommand::take()
{
    Obj::Project* const project = Obj::Application::instance().get_project(m_projectId);
    if (project == nullptr)
        return nullptr;
    const OwnDoing doing(project->get_object(m_objectId));
    return project->take_object(m_objectId);
}

void ObjectCommand::restore(std::unique_ptr<Obj::ProjectObject> object)
{
    if (Obj::Project* const project = Obj::Application::instance().get_project(m_projectId))
        project->restore_object(std::move(object));
}

} // namespace vxMsg
