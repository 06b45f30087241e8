#pragma once

#include "Kelta/DocumentTag.h"
#include "Obj/ObjExport.h"
#include "Obj/Project.h"
#include "Obj/Signal.h"
#include "Obj/UniqueNames.h"

#include <json/value.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Obj {

/// Registers the classes of this library. Called once, before anything else of it; again changes nothing.
OBJ_EXPORT void initObj();

/// All projects that are open, which it owns. One of them is the current one, to which what the user does applies.
///
/// Projects are made and closed here without undo; what the user asks for goes through the message proxy.
class OBJ_EXPORT Application
{
public:
    static Application& instance();

    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// In the order in which they were first opened.
    static std::vector<Project*> get_projects();
    static std::vector<Project*> get_projects(Kelta::eDocumentTag tag);
    static std::vector<Project*> get_projects(std::uint32_t tag);
    /// Null when no project is open.
    static Project* get_current_project();
    /// A name that no project has, and that was not answered before.
    static std::string get_unique_project_name(std::string_view stem);

    Project* get_project(std::string_view name) const;
    Project* get_project(std::uint32_t projectId) const;

    /// Makes a project of a registered class and makes it the current one. When a project has the name, a unique one is
    /// made from it. Null, with the reason in the message log, when the class is not registered, is no Project or makes
    /// none. What the project's constructor throws passes through.
    Project* create_project(const char* className, std::string_view name);
    /// Makes a project that is open the current one.
    void set_current_project(Project& project);

    /// Closes a project, and answers it to be kept for undo or destroyed; null when it is not open. The last of those
    /// that stay becomes the current one if it was.
    [[nodiscard]] std::unique_ptr<Project> take_project(const Project& project);
    /// Opens again what take_project answered, at its place and under its name, and makes it the current one. When
    /// another project has got its name meanwhile, it comes back under a unique one, and the message log says so. Null
    /// when there is nothing to open, or when somebody who was told has closed it at once.
    Project* restore_project(std::unique_ptr<Project> project);
    /// Destroys a project; false when it is not open.
    bool close_project(const Project& project);
    /// Destroys all projects, the last first. To be called before the program ends: objects of plug-ins must not outlive
    /// them.
    void close_all_projects();

    /// The project database: "projects", an array with a record of each, in order.
    Json::Value save_jsonDB() const;

    /// A project is there when it is opened and still there when it has been closed.
    Signal<void(Project&)> projectAdded;
    Signal<void(Project&)> projectRemoved;
    Signal<void(Project*)> currentProjectChanged;

private:
    Application() = default;
    ~Application() = default;
    void makeCurrent(Project* project);

    std::vector<std::unique_ptr<Project>> m_projects; ///< by id
    Project* m_current = nullptr;
    std::uint32_t m_nextProjectId = 1;
    UniqueNames m_names;
};

} // namespace Obj
