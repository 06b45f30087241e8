#pragma once

#include "vxMsg/vxMsgExport.h"

#include <cstdint>
#include <functional>

namespace Obj {
class Project;
class ProjectObject;
class PropertyDS;
} // namespace Obj

namespace vxMsg {

/// Finds a set of properties again after deletions and their undo: a project, an object, or the node of a project or
/// object.
class VXMSG_EXPORT PropertyPlace
{
public:
    /// Returns the node of an object, or of the project if the object is null; null if it has none. The user interface
    /// provides it.
    using NodeFinder = std::function<Obj::PropertyDS*(Obj::Project& project, Obj::ProjectObject* object)>;

    /// Refers to the project itself, or to its node if there is a finder.
    explicit PropertyPlace(const Obj::Project& project, NodeFinder findNode = {});
    /// Refers to the object itself, or to its node if there is a finder. The object must be in a project.
    explicit PropertyPlace(const Obj::ProjectObject& object, NodeFinder findNode = {});

    /// Returns null while the set is absent: the project is closed, the object deleted, or there is no node.
    Obj::PropertyDS* find() const;
    /// Returns the object itself, also for the place of its node; null for a project, and while the object is deleted.
    Obj::ProjectObject* findObject() const;

private:
    std::uint32_t m_projectId;
    std::uint32_t m_objectId = 0; ///< 0 for the project
    NodeFinder m_findNode;
};

} // namespace vxMsg
