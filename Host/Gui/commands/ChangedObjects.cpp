#include "commands/ChangedObjects.h"

#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"

namespace Gui {

ChangedObjects::ChangedObjects()
{
    for (Obj::Project* const project : Obj::Application::get_projects())
        watch(*project);
    m_connections.emplace_back(Obj::Application::instance().projectAdded.connect(
        [this](const Obj::Project& project) { m_added.emplace(project.getProjectId(), 0); }));
}

ChangedObjects::~ChangedObjects() = default;

void ChangedObjects::select(TreeSelectionSingleton& selection) const
{
    if (!select(selection, m_added))
        select(selection, m_changed);
}

void ChangedObjects::watch(Obj::Project& project)
{
    const std::uint32_t projectId = project.getProjectId();
    m_connections.emplace_back(project.objectAdded.connect(
        [this, projectId](const Obj::ProjectObject& object) { m_added.emplace(projectId, object.getObjectId()); }));
    m_connections.emplace_back(
        project.objectChanged.connect([this, projectId](const Obj::ProjectObject& object, const Obj::Property*) {
            m_changed.emplace(projectId, object.getObjectId());
        }));
    m_connections.emplace_back(
        project.changed.connect([this, projectId](const Obj::Property*) { m_changed.emplace(projectId, 0); }));
}

bool ChangedObjects::select(TreeSelectionSingleton& selection, const Places& places)
{
    std::vector<Obj::Project*> projects;
    std::vector<Obj::ProjectObject*> objects;
    for (const auto& [projectId, objectId] : places) {
        Obj::Project* const project = Obj::Application::instance().get_project(projectId);
        Obj::ProjectObject* const object = project != nullptr ? project->get_object(objectId) : nullptr;
        if (object != nullptr)
            objects.push_back(object);
        else if (project != nullptr && objectId == 0)
            projects.push_back(project);
    }
    if (projects.empty() && objects.empty())
        return false;
    selection.setSelection(projects, objects);
    return true;
}

} // namespace Gui
