#pragma once

#include "Kelta/DocumentTag.h"
#include "Obj/ObjExport.h"
#include "Obj/Project.h"
#include "Obj/Removal.h"
#include "Obj/Signal.h"
#include "Obj/UniqueNames.h"

#include <json/value.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace Obj {

/// Registers the classes of this library. Must be called before other functions of it. Safe to call more than once.
OBJ_EXPORT void initObj();

/// Owns all open projects. One of them is the current project, to which the commands of the user apply.
///
/// The application makes and closes projects without undo. Requests of the user are sent to the message proxy.
class OBJ_EXPORT Application
{
public:
    static Application& instance();

    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// Returns the open projects in the order in which they were first opened.
    static std::vector<Project*> get_projects();
    static std::vector<Project*> get_projects(Kelta::eDocumentTag tag);
    static std::vector<Project*> get_projects(std::uint32_t tag);
    /// Returns the current project; null if no project is open.
    static Project* get_current_project();
    /// Returns a name from `stem` that no project has or has had. Each call returns a different name.
    static std::string get_unique_project_name(std::string_view stem);

    /// Returns null if no open project has the name or the id.
    Project* get_project(std::string_view name) const;
    Project* get_project(std::uint32_t projectId) const;

    /// Makes a project of a registered class and makes it current. If a project has the name, derives a unique name
    /// from it. Returns null, with the reason in the message log, if the class is not registered, is not a Project or
    /// cannot be created; and null if a listener has closed the project at once. Exceptions of the constructor of the
    /// project pass through.
    Project* createProject(const char* className, std::string_view name);
    /// Adds an existing project in the same way. It must not be null, nor have been in the application before.
    Project* addProject(OwnedProject project, std::string_view name);
    /// Gives an open project another name. Returns false if the name is empty, or if another open project has it.
    bool renameProject(Project& project, std::string_view name);
    /// Makes an open project the current one.
    void setCurrentProject(Project& project);

    /// Closes a project and returns it, for undo or destruction; null if it is not open. If it was the current
    /// project, the last remaining project becomes current.
    [[nodiscard]] OwnedProject takeProject(const Project& project);
    /// Reopens a project that takeProject returned, at its place and under its name, and makes it current. If
    /// another project has its name meanwhile, it gets a unique name, which is reported. Returns null if `project` is
    /// null, or if a listener has closed the project at once.
    Project* restoreProject(OwnedProject project);
    /// Destroys a project; returns false if it is not open.
    bool closeProject(const Project& project);
    /// Destroys all projects, the last one first. Must be called before the program ends: objects of modules must not
    /// outlive their libraries.
    void closeAllProjects();

    /// Returns the project database: "projects", an array with a record of each, in order.
    Json::Value save_jsonDB() const;

    /// A project is open when it is added. When it has been removed, it is complete but not open. Listeners may change
    /// everything, and may close the same project; later listeners are still called.
    Signal<void(Project&)> projectAdded;
    Signal<void(Project&)> projectRemoved;
    Signal<void(Project*)> currentProjectChanged;

private:
    Application() = default;
    ~Application() = default;
    void giveFreeName(Project& project);
    void insert(OwnedProject project);
    void makeCurrent(Project* project);

    std::vector<std::unique_ptr<Project>> m_projects; ///< by id; a linear search suffices for the few projects
    Project* m_current = nullptr;
    std::uint32_t m_nextProjectId = 1;
    std::unordered_set<std::string> m_goneNames; ///< of projects that may be reopened
    UniqueNames m_names;
};

} // namespace Obj
