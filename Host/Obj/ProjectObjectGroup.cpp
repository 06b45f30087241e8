#include "Obj/ProjectObjectGroup.h"

#include "Obj/PropertyType.h"

#include <new>

namespace Obj {

Kelta::TypeInfo ProjectObjectGroup::classTypeId;
PropertyCoreData ProjectObjectGroup::propertyData;

ProjectObjectGroup::ProjectObjectGroup()
{
    classLabel.setValue("Group");
    register_property(propertyData, id, "ID", "Info", PropertyType::ReadOnly, "Identity of the tree object");
    register_property(propertyData, classLabel, "ClassLabel", "Info", PropertyType::ReadOnly, "class name");
}

ProjectObjectGroup::~ProjectObjectGroup() = default;

void* ProjectObjectGroup::create()
{
    return static_cast<Kelta::RootClass*>(new (std::nothrow) ProjectObjectGroup);
}

Kelta::TypeInfo ProjectObjectGroup::getClassTypeId()
{
    return classTypeId;
}

Kelta::TypeInfo ProjectObjectGroup::getTypeId() const
{
    return classTypeId;
}

void ProjectObjectGroup::init()
{
    initSubclass(classTypeId, "Obj::ProjectObjectGroup", "Obj::ProjectObject", &ProjectObjectGroup::create);
    propertyData.set_parent(ProjectObject::get_property_data_ref());
}

void ProjectObjectGroup::add_member(ProjectObject& object)
{
    link_to(object);
}

void ProjectObjectGroup::remove_member(ProjectObject& object)
{
    unlink_from(object);
}

const PropertyCoreData& ProjectObjectGroup::get_property_data() const
{
    return propertyData;
}

const PropertyCoreData* ProjectObjectGroup::get_property_data_ref()
{
    return &propertyData;
}

} // namespace Obj
