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

/// Finds a set of properties again after deletions and their undo: a project, an object, or the node that shows one of
/// them.
class VXMSG_EXPORT PropertyPlace
{
public:
    /// Finds the node of an object, or of the project if the object is null; null if there is none. The user interface
    /// gives it.
    using NodeFinder = std::function<Obj::PropertyDS*(Obj::Project& project, Obj::ProjectObject* object)>;

    /// The project itself, or its node if there is a finder.
    explicit PropertyPlace(const Obj::Project& project, NodeFinder findNode = {});
    /// The object itself, or its node if there is a finder. The object must be in a project.
    explicit PropertyPlace(const Obj::ProjectObject& object, NodeFinder findNode = {});

    /// Null while the set is not there: the project is closed, the object deleted, or there is no node.
    Obj::PropertyDS* find() const;
    /// The object itself, also if the place is that of its node; null for a project, and while the object is deleted.
    Obj::ProjectObject* findObject() const;

private:
    std::uint32_t m_projectId;
    std::uint32_t m_objectId = 0; ///< 0 for the project
    NodeFinder m_findNode;
};

} // namespace vxMsg
