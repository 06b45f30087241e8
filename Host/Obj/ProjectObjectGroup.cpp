#include "Obj/ProjectObjectGroup.h"

#include "Kelta/MessageLog.h"
#include "Obj/PropertyType.h"

#include <QCoreApplication>

namespace Obj {

OBJ_REGISTER_CLASS(Obj::ProjectObjectGroup, Obj::ProjectObject)

ProjectObjectGroup::ProjectObjectGroup()
{
    classLabel.setValue("Group");
    register_property(propertyData, id, "ID", "Info", PropertyType::ReadOnly, "Identity of the tree object");
    register_property(propertyData, classLabel, "ClassLabel", "Info", PropertyType::ReadOnly, "class name");
}

ProjectObjectGroup::~ProjectObjectGroup() = default;

bool ProjectObjectGroup::add_member(ProjectObject& object)
{
    const RemovalGuard guard;
    if (isInside(object)) {
        Kelta::MessageLog::error(
            QCoreApplication::translate("Obj::ProjectObjectGroup",
                                        R"("%1" cannot be put into "%2", which is a part of it.)")
                .arg(QString::fromStdString(object.label.getValue()), QString::fromStdString(label.getValue())));
        return false;
    }
    ProjectObjectGroup* const former = object.get_parent_group();
    if (former == this)
        return true;
    if (!link_to(object))
        return false;
    if (former != nullptr)
        former->unlink_from(object);
    object.notifyChange();
    return true;
}

void ProjectObjectGroup::remove_member(ProjectObject& object)
{
    if (object.get_parent_group() != this)
        return;
    const RemovalGuard guard;
    unlink_from(object);
    object.notifyChange();
}

std::vector<ProjectObject*> ProjectObjectGroup::get_members() const
{
    std::vector<ProjectObject*> members;
    for (ProjectObject* const object : get_links())
        if (object->get_parent_group() == this)
            members.push_back(object);
    return members;
}

/// Whether this group is `object` or one of its members, at any depth.
bool ProjectObjectGroup::isInside(const ProjectObject& object) const
{
    const ProjectObject* around = this;
    while (around != nullptr && around != &object)
        around = around->get_parent_group();
    return around != nullptr;
}

} // namespace Obj
