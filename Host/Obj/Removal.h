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
/// Every signal of the host holds a guard while it calls its listeners, and every operation of projects and requests
/// while it runs: a listener may remove or close the signal's argument, and later listeners are still called.
class OBJ_EXPORT RemovalGuard
{
public:
    RemovalGuard() noexcept;
    RemovalGuard(const RemovalGuard&) = delete;
    RemovalGuard& operator=(const RemovalGuard&) = delete;
    ~RemovalGuard();

    /// Returns whether `thing` waits for its destruction.
    static bool isDoomed(const Kelta::RootClass& thing);
};

/// Destroys an object or a project, as soon as no RemovalGuard lives.
struct OBJ_EXPORT GuardedDelete
{
    GuardedDelete() = default;
    /// A plain owner may transfer its object to a guarded owner.
    template <typename Thing>
    GuardedDelete(std::default_delete<Thing> /*plain*/) // NOLINT(google-explicit-constructor): converts owners
    {}
    void operator()(Kelta::RootClass* thing) const noexcept;
};

/// Owners of objects outside their project, and of projects outside the application.
using OwnedObject = std::unique_ptr<ProjectObject, GuardedDelete>;
using OwnedProject = std::unique_ptr<Project, GuardedDelete>;

} // namespace Obj
