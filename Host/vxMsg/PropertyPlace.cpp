#include "vxMsg/PropertyPlace.h"

#include "Obj/Application.h"

#include <utility>

namespace vxMsg {

PropertyPlace::PropertyPlace(const Obj::Project& project, NodeFinder findNode)
    : m_projectId(project.getProjectId()), m_findNode(std::move(findNode))
{}

PropertyPlace::PropertyPlace(const Obj::ProjectObject& object, NodeFinder findNode)
    : m_projectId(object.get_project()->getProjectId()),
      m_objectId(object.getObjectId()),
      m_findNode(std::move(findNode))
{}

Obj::PropertyDS* PropertyPlace::find() const
{
    Obj::Project* const project = Obj::Application::instance().get_project(m_projectId);
    Obj::ProjectObject* const object = findObject();
    if (project == nullptr || (m_objectId != 0 && object == nullptr))
        return nullptr;
    if (m_findNode)
        return m_findNode(*project, object);
    return m_objectId != 0 ? static_cast<Obj::PropertyDS*>(object) : project;
}

Obj::ProjectObject* PropertyPlace::findObject() const
{
    const Obj::Project* const project = Obj::Application::instance().get_project(m_projectId);
    return project != nullptr ? project->get_object(m_objectId) : nullptr;
}

} // namespace vxMsg
