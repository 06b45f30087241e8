#include "Gui/TreeSelectionSingleton.h"

#include "Obj/Application.h"

namespace Gui {

CSelectionType::CSelectionType(const Obj::ProjectObject& object)
    : m_projectName(object.get_project()->get_name()), m_objectName(object.get_name_in_project())
{}

Obj::ProjectObject* CSelectionType::get_object() const
{
    const Obj::Project* const project = Obj::Application::instance().get_project(m_projectName);
    return project != nullptr ? project->get_object(m_objectName) : nullptr;
}

TreeSelectionSingleton& TreeSelectionSingleton::instance()
{
    static TreeSelectionSingleton selection;
    return selection;
}

TreeSelectionSingleton::TreeSelectionSingleton()
{
    m_forgotten.setSingleShot(true);
    connect(&m_forgotten, &QTimer::timeout, this, &TreeSelectionSingleton::selectionChanged);
}

TreeSelectionSingleton::~TreeSelectionSingleton() = default;

std::vector<Obj::Project*> TreeSelectionSingleton::get_projects(std::uint32_t tag) const
{
    std::vector<Obj::Project*> projects;
    for (Obj::Project* const project : Obj::Application::get_projects(tag))
        if (is_selected(project))
            projects.push_back(project);
    return projects;
}

std::vector<Obj::Project*> TreeSelectionSingleton::get_projects() const
{
    std::vector<Obj::Project*> projects;
    for (Obj::Project* const project : Obj::Application::get_projects())
        if (is_selected(project))
            projects.push_back(project);
    return projects;
}

std::vector<Obj::ProjectObject*> TreeSelectionSingleton::get_objects_of_type(Kelta::TypeInfo type,
                                                                             const char* projectName) const
{
    const bool everywhere = projectName == nullptr || *projectName == '\0';
    std::vector<Obj::ProjectObject*> objects;
    if (m_objects.empty())
        return objects;
    for (const Obj::Project* const project : Obj::Application::get_projects()) {
        if (!everywhere && project->get_name() != std::string_view(projectName))
            continue;
        for (Obj::ProjectObject* const object : project->get_objects_of_type(type))
            if (is_selected(object, nullptr))
                objects.push_back(object);
    }
    return objects;
}

std::vector<CSelectionType> TreeSelectionSingleton::get_selection2(const char* projectName, Kelta::TypeInfo type) const
{
    std::vector<CSelectionType> entries;
    for (const Obj::ProjectObject* const object : get_objects_of_type(type, projectName))
        entries.emplace_back(*object);
    return entries;
}

bool TreeSelectionSingleton::is_selected(const Obj::ProjectObject* object, const char* subElement) const
{
    return subElement == nullptr && m_objects.count(object) != 0;
}

void TreeSelectionSingleton::select(const Obj::Project& project)
{
    if (m_projects.insert(&project).second)
        Q_EMIT selectionChanged();
}

void TreeSelectionSingleton::select(const Obj::ProjectObject& object)
{
    if (m_objects.insert(&object).second)
        Q_EMIT selectionChanged();
}

void TreeSelectionSingleton::deselect(const Obj::Project& project)
{
    if (m_projects.erase(&project) != 0)
        Q_EMIT selectionChanged();
}

void TreeSelectionSingleton::deselect(const Obj::ProjectObject& object)
{
    if (m_objects.erase(&object) != 0)
        Q_EMIT selectionChanged();
}

void TreeSelectionSingleton::setSelection(const std::vector<Obj::Project*>& projects,
                                          const std::vector<Obj::ProjectObject*>& objects)
{
    m_projects = {projects.begin(), projects.end()};
    m_objects = {objects.begin(), objects.end()};
    Q_EMIT selectionChanged();
}

void TreeSelectionSingleton::forget(const Obj::Project& project)
{
    if (m_projects.erase(&project) != 0)
        m_forgotten.start(0);
}

void TreeSelectionSingleton::forget(const Obj::ProjectObject& object)
{
    if (m_objects.erase(&object) != 0)
        m_forgotten.start(0);
}

void TreeSelectionSingleton::clear()
{
    if (getCount() != 0)
        setSelection({}, {});
}

} // namespace Gui
