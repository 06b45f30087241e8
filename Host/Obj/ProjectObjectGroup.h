#pragma once

#include "Obj/ObjExport.h"
#include "Obj/ProjectObject.h"

#include <vector>

namespace Obj {

/// An object that gathers others of its project under one node. It does not own its members: they stay in the project
/// if it is deleted. An object is a member of at most one group. Groups are nested at most deepestNesting levels deep.
class OBJ_EXPORT ProjectObjectGroup : public ProjectObject
{
    OBJ_CLASS;

public:
    /// The maximum number of groups around an object. Bounds the recursion of everything that visits members.
    static constexpr int deepestNesting = 100;

    ProjectObjectGroup();
    ~ProjectObjectGroup() override;

    /// Adds `object` to the group, and removes it from another group. Notifies the listeners of the project of the
    /// change of `object`. Returns false, with a report, if `object` belongs to another project, is this group or a
    /// group that contains it, or if it or its members would be nested too deeply.
    bool addMember(ProjectObject& object);
    /// Adds `other` as addMember() does: the links of a group are its members.
    bool linkTo(ProjectObject& other) override;
    /// Removes `object` from the group, and notifies the listeners. Does nothing if it is not a member.
    void removeMember(ProjectObject& object);
    /// Returns the members that are in the project, in the order of their addition.
    std::vector<ProjectObject*> getMembers() const;

private:
    bool isInside(const ProjectObject& object) const;
    int countLevelsAround() const;
};

} // namespace Obj
