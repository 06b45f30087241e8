#pragma once

#include "Obj/ObjExport.h"
#include "Obj/ProjectObject.h"

#include <vector>

namespace Obj {

/// An object that gathers others of its project under one node. It does not own its members: they stay in the project
/// if it is deleted. An object is a member of at most one group.
class OBJ_EXPORT ProjectObjectGroup : public ProjectObject
{
    OBJ_CLASS;

public:
    ProjectObjectGroup();
    ~ProjectObjectGroup() override;

    /// Adds `object` to the group, and removes it from another group. Notifies the listeners of the project of the
    /// change of `object`. Returns false, with a report, if `object` belongs to another project, or is this group or a
    /// group that contains it.
    bool addMember(ProjectObject& object);
    /// Removes `object` from the group, and notifies the listeners. Does nothing if it is not a member.
    void removeMember(ProjectObject& object);
    /// Returns the members that are in the project, in the order of their addition.
    std::vector<ProjectObject*> getMembers() const;

private:
    bool isInside(const ProjectObject& object) const;
};

} // namespace Obj
