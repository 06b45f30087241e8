#pragma once

#include "Obj/ObjExport.h"
#include "Obj/ProjectObject.h"

#include <vector>

namespace Obj {

/// An object that gathers others of its project under one node. It does not own them: its members stay in the project if
/// it is deleted. An object is a member of at most one group.
class OBJ_EXPORT ProjectObjectGroup : public ProjectObject
{
    OBJ_CLASS;

public:
    ProjectObjectGroup();
    ~ProjectObjectGroup() override;

    /// Puts `object` into the group, and takes it out of another one. The listeners of the project are told that the
    /// object has changed. False, with a report, if `object` belongs to another project, or is this group or a group
    /// around it.
    bool addMember(ProjectObject& object);
    /// Takes `object` out of the group, and tells the listeners; nothing if it is not a member.
    void removeMember(ProjectObject& object);
    /// Returns the members that are in the project, in the order in which they came.
    std::vector<ProjectObject*> getMembers() const;

private:
    bool isInside(const ProjectObject& object) const;
};

} // namespace Obj
