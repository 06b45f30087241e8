#pragma once

#include "Obj/ClassRegistration.h"
#include "Obj/ObjExport.h"
#include "Obj/ProjectObject.h"

#include <vector>

namespace Obj {

/// An object that gathers others of its project under one node. It owns none of them.
class OBJ_EXPORT ProjectObjectGroup : public ProjectObject
{
    OBJ_CLASS;

public:
    ProjectObjectGroup();
    ~ProjectObjectGroup() override;

    /// Puts `object` into the group; one that is in it stays once.
    void add_member(ProjectObject& object);
    void remove_member(ProjectObject& object);
    /// The members that are in the project, in the order in which they came.
    std::vector<ProjectObject*> get_members() const { return get_needed_objects(); }

private:
};

} // namespace Obj
