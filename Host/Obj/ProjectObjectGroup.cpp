#include "Obj/ProjectObjectGroup.h"

#include "Obj/PropertyType.h"

namespace Obj {

OBJ_REGISTER_CLASS(Obj::ProjectObjectGroup, Obj::ProjectObject)

ProjectObjectGroup::ProjectObjectGroup()
{
    classLabel.setValue("Group");
    register_property(propertyData, id, "ID", "Info", PropertyType::ReadOnly, "Identity of the tree object");
    register_property(propertyData, classLabel, "ClassLabel", "Info", PropertyType::ReadOnly, "class name");
}

ProjectObjectGroup::~ProjectObjectGroup() = default;

void ProjectObjectGroup::add_member(ProjectObject& object)
{
    link_to(object);
    notifyChange();
}

void ProjectObjectGroup::remove_member(ProjectObject& object)
{
    unlink_from(object);
    notifyChange();
}

} // namespace Obj
