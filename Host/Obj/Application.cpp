#include "Obj/Application.h"

#include "Kelta/MessageLog.h"
#include "Obj/Placeholder.h"
#include "Obj/ProjectObjectGroup.h"

#include <QCoreApplication>

#include <algorithm>
#include <cassert>
#include <utility>

namespace Obj {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Obj::Application", text);
}

/// Returns a new project of a registered class; null, with the reason in the message log, if it cannot be made.
OwnedProject makeProject(const char* className)
{
    const Kelta::TypeInfo type = Kelta::TypeInfo::find(className);
    QString reason;
    if (!type.namesAType())
        reason = tr("this class is not known");
    else if (!type.is_inherited_from(Project::getClassTypeId()))
        reason = tr("this is not a class of projects");
    else if (void* const created = type.create())
        return OwnedProject(static_cast<Project*>(static_cast<Kelta::RootClass*>(created)));
    else
        reason = tr("the class cannot create objects");
    Kelta::MessageLog::error(tr("No project of class \"%1\" was made: %2.")
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
    PlaceholderObject::init();
    Project::init();
    PlaceholderProject::init();
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
        if (project->getDocumentTag() == tag)
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
    return application.m_names.make(stem, [&application](const std::string& name) {
        return application.get_project(name) != nullptr || application.m_goneNames.count(name) != 0;
    });
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

Project* Application::createProject(const char* className, std::string_view name)
{
    OwnedProject project = makeProject(className);
    return project != nullptr ? addProject(std::move(project), name) : nullptr;
}

Project* Application::addProject(OwnedProject project, std::string_view name)
{
    assert(project->m_projectId == 0);
    const bool isFree = !name.empty() && get_project(name) == nullptr;
    project->m_name = isFree ? std::string(name) : get_unique_project_name(name.empty() ? "Project" : name);
    project->m_projectId = m_nextProjectId++;
    project->id.setValue(project->m_projectId);
    return restoreProject(std::move(project));
}

bool Application::renameProject(Project& project, std::string_view name)
{
    const Project* const holder = get_project(name);
    if (name.empty() || (holder != nullptr && holder != &project))
        return false;
    project.m_name = name;
    project.changed(nullptr);
    return true;
}

void Application::setCurrentProject(Project& project)
{
    if (get_project(project.m_projectId) == &project)
        makeCurrent(&project);
}

OwnedProject Application::takeProject(const Project& project)
{
    const RemovalGuard guard;
    const auto found = std::find_if(m_projects.begin(), m_projects.end(),
                                    [&project](const auto& candidate) { return candidate.get() == &project; });
    if (found == m_projects.end())
        return nullptr;
    m_goneNames.insert(project.m_name);
    OwnedProject taken(found->release());
    m_projects.erase(found);
    if (m_current == taken.get())
        makeCurrent(m_projects.empty() ? nullptr : m_projects.back().get());
    projectRemoved(*taken);
    return taken;
}

Project* Application::restoreProject(OwnedProject project)
{
    if (project == nullptr)
        return nullptr;
    const RemovalGuard guard;
    Project& restored = *project;
    giveFreeName(restored);
    insert(std::move(project));
    m_goneNames.erase(restored.m_name);
    projectAdded(restored);
    setCurrentProject(restored);
    // A listener may have closed it.
    return get_project(restored.m_projectId);
}

void Application::giveFreeName(Project& project)
{
    if (get_project(project.m_name) == nullptr)
        return;
    std::string name = get_unique_project_name(project.m_name);
    Kelta::MessageLog::warning(tr(R"(The project "%1" was restored as "%2", because another project has its name.)")
                                   .arg(QString::fromStdString(project.m_name), QString::fromStdString(name)));
    project.m_name = std::move(name);
}

void Application::insert(OwnedProject project)
{
    const auto place = std::find_if(m_projects.begin(), m_projects.end(), [&project](const auto& other) {
        return other->m_projectId > project->m_projectId;
    });
    // Reserves the place first, because that may exhaust memory, and then moves the project.
    m_projects.insert(place, nullptr)->reset(project.release());
}

bool Application::closeProject(const Project& project)
{
    return takeProject(project) != nullptr;
}

void Application::closeAllProjects()
{
    while (!m_projects.empty())
        closeProject(*m_projects.back());
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
