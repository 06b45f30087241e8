#pragma once

#include "Obj/ObjExport.h"
#include "Obj/ProjectObject.h"

#include <vector>

namespace Obj {

/// An object that gathers others of its project under one node. It owns none of them.
class OBJ_EXPORT ProjectObjectGroup : public ProjectObject
{
public:
    ProjectObjectGroup();
    ~ProjectObjectGroup() override;

    static void* create();
    static Kelta::TypeInfo getClassTypeId();
    Kelta::TypeInfo getTypeId() const override;
    static void init();

    /// Puts `object` into the group; one that is in it stays once.
    void add_member(ProjectObject& object);
    void remove_member(ProjectObject& object);
    /// The members that are in the project, in the order in which they came.
    std::vector<ProjectObject*> get_members() const { return get_needed_objects(); }

protected:
    const PropertyCoreData& get_property_data() const override;
    static const PropertyCoreData* get_property_data_ref();

private:
    static Kelta::TypeInfo classTypeId;
    static PropertyCoreData propertyData;
};

} // namespace Obj
