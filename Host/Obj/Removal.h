#pragma once

#include "Obj/ObjExport.h"

#include <memory>

namespace Kelta {
class RootClass;
} // namespace Kelta

namespace Obj {

class Project;
class ProjectObject;

/// While a guard lives, objects and projects that their owners release stay in memory. They are destroyed when the last
/// guard ends.
///
/// Every signal of the host holds one while it calls its listeners, and every operation of projects and requests while it
/// runs: a listener may remove or close what it is told of, and the listeners after it are told all the same.
class OBJ_EXPORT RemovalGuard
{
public:
    RemovalGuard() noexcept;
    RemovalGuard(const RemovalGuard&) = delete;
    RemovalGuard& operator=(const RemovalGuard&) = delete;
    ~RemovalGuard();

    /// Whether `thing` waits for its destruction.
    static bool isDoomed(const Kelta::RootClass& thing);
};

/// Destroys an object or a project, as soon as no RemovalGuard lives.
struct OBJ_EXPORT GuardedDelete
{
    GuardedDelete() = default;
    /// A plain owner may hand over to a guarded one.
    template <typename Thing>
    GuardedDelete(std::default_delete<Thing> /*plain*/) // NOLINT(google-explicit-constructor): converts owners
    {}
    void operator()(Kelta::RootClass* thing) const noexcept;
};

/// Owners of what is outside its project or the application.
using OwnedObject = std::unique_ptr<ProjectObject, GuardedDelete>;
using OwnedProject = std::unique_ptr<Project, GuardedDelete>;

} // namespace Obj
