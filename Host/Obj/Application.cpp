#include "Obj/Application.h"

#include "Kelta/MessageLog.h"
#include "Obj/ProjectObjectGroup.h"

#include <QString>

#include <algorithm>
#include <utility>

namespace Obj {

namespace {

/// A new project of a registered class; null, with the reason in the message log, when there is none.
std::unique_ptr<Project> createProject(const char* className)
{
    const Kelta::TypeInfo type = Kelta::TypeInfo::find(className);
    QString reason;
    if (!type.names_a_type())
        reason = QStringLiteral("this class is not known");
    else if (!type.is_inherited_from(Project::getClassTypeId()))
        reason = QStringLiteral("this class is not one of projects");
    else if (void* const created = type.create())
        return std::unique_ptr<Project>(static_cast<Project*>(static_cast<Kelta::RootClass*>(created)));
    else
        reason = QStringLiteral("the class made none");
    Kelta::MessageLog::error(QStringLiteral("No project of class \"%1\" was made: %2.")
                                 .arg(QString::fromUtf8(className != nullptr ? className : ""), reason));
    return nullptr;
}

} // namespace

void initObj()
{
    Kelta::DataPersistence::init();
    PropertyDS::init();
    ProjectObject::init();
    ProjectObjectGroup::init();
    Project::init();
}

Application& Application::instance()
{
    static Application application;
    return application;
}

std::vector<Project*> Application::get_projects()
{
    std::vector<Project*> projects;
    for (const auto& project : instance().m_projects)
        projects.push_back(project.get());
    return projects;
}

std::vector<Project*> Application::get_projects(Kelta::eDocumentTag tag)
{
    std::vector<Project*> projects;
    for (const auto& project : instance().m_projects)
        if (project->documentTag == tag)
            projects.push_back(project.get());
    return projects;
}

std::vector<Project*> Application::get_projects(std::uint32_t tag)
{
    return get_projects(static_cast<Kelta::eDocumentTag>(tag));
}

Project* Application::get_current_project()
{
    return instance().m_current;
}

std::string Application::get_unique_project_name(std::string_view stem)
{
    Application& application = instance();
    return application.m_names.make(
        stem, [&application](const std::string& name) { return application.get_project(name) != nullptr; });
}

Project* Application::get_project(std::string_view name) const
{
    const auto found = std::find_if(m_projects.begin(), m_projects.end(),
                                    [name](const auto& project) { return project->m_name == name; });
    return found != m_projects.end() ? found->get() : nullptr;
}

Project* Application::get_project(std::uint32_t projectId) const
{
    const auto found = std::find_if(m_projects.begin(), m_projects.end(),
                                    [projectId](const auto& project) { return project->m_projectId == projectId; });
    return found != m_projects.end() ? found->get() : nullptr;
}

Project* Application::create_project(const char* className, std::string_view name)
{
    std::unique_ptr<Project> project = createProject(className);
    if (project == nullptr)
        return nullptr;
    const bool free = !name.empty() && get_project(name) == nullptr;
    project->m_name = free ? std::string(name) : get_unique_project_name(name.empty() ? "Project" : name);
    project->m_projectId = m_nextProjectId++;
    project->id.setValue(project->m_projectId);
    return restore_project(std::move(project));
}

void Application::set_current_project(Project& project)
{
    if (get_project(project.m_projectId) == &project)
        makeCurrent(&project);
}

std::unique_ptr<Project> Application::take_project(const Project& project)
{
    const auto found = std::find_if(m_projects.begin(), m_projects.end(),
                                    [&project](const auto& candidate) { return candidate.get() == &project; });
    if (found == m_projects.end())
        return nullptr;
    std::unique_ptr<Project> taken = std::move(*found);
    m_projects.erase(found);
    if (m_current == taken.get())
        makeCurrent(m_projects.empty() ? nullptr : m_projects.back().get());
    projectRemoved(*taken);
    return taken;
}

Project* Application::restore_project(std::unique_ptr<Project> project)
{
    Project* const restored = project.get();
    if (restored == nullptr)
        return nullptr;
    if (get_project(restored->m_name) != nullptr) {
        const std::string name = get_unique_project_name(restored->m_name);
        Kelta::MessageLog::warning(QStringLiteral("The project \"%1\" came back as \"%2\": another one has its name.")
                                       .arg(QString::fromStdString(restored->m_name), QString::fromStdString(name)));
        restored->m_name = name;
    }
    const std::uint32_t projectId = restored->m_projectId;
    const auto place = std::find_if(m_projects.begin(), m_projects.end(), [restored](const auto& other) {
        return other->m_projectId > restored->m_projectId;
    });
    m_projects.insert(place, std::move(project));
    projectAdded(*restored);
    // Who was told may have closed it.
    if (get_project(projectId) != restored)
        return nullptr;
    makeCurrent(restored);
    return restored;
}

bool Application::close_project(const Project& project)
{
    return take_project(project) != nullptr;
}

void Application::close_all_projects()
{
    while (!m_projects.empty())
        close_project(*m_projects.back());
}

Json::Value Application::save_jsonDB() const
{
    Json::Value database;
    Json::Value& records = database["projects"] = Json::Value(Json::arrayValue);
    for (const auto& project : m_projects)
        project->save_jsonDB(records.append(Json::Value()));
    return database;
}

void Application::makeCurrent(Project* project)
{
    if (m_current == project)
        return;
    m_current = project;
    currentProjectChanged(project);
}

} // namespace Obj
