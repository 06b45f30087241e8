#include "Obj/ProjectObjectGroup.h"

#include "Kelta/MessageLog.h"
#include "Obj/PropertyType.h"

#include <QCoreApplication>

namespace Obj {

OBJ_REGISTER_CLASS(Obj::ProjectObjectGroup, Obj::ProjectObject)

ProjectObjectGroup::ProjectObjectGroup()
{
    classLabel.setValue("Group");
    registerProperty(propertyData, id, "ID", "Info", PropertyType::readOnly, "Identity of the tree object");
    registerProperty(propertyData, classLabel, "ClassLabel", "Info", PropertyType::readOnly, "class name");
}

ProjectObjectGroup::~ProjectObjectGroup() = default;

bool ProjectObjectGroup::addMember(ProjectObject& object)
{
    const RemovalGuard guard;
    if (isInside(object)) {
        Kelta::MessageLog::error(
            QCoreApplication::translate("Obj::ProjectObjectGroup",
                                        R"("%1" cannot be a member of "%2", because "%2" is inside it.)")
                .arg(QString::fromStdString(object.label.getValue()), QString::fromStdString(label.getValue())));
        return false;
    }
    ProjectObjectGroup* const former = object.getParentGroup();
    if (former == this)
        return true;
    if (!linkTo(object))
        return false;
    if (former != nullptr)
        former->unlinkFrom(object);
    object.notifyChange();
    return true;
}

void ProjectObjectGroup::removeMember(ProjectObject& object)
{
    if (object.getParentGroup() != this)
        return;
    const RemovalGuard guard;
    unlinkFrom(object);
    object.notifyChange();
}

std::vector<ProjectObject*> ProjectObjectGroup::getMembers() const
{
    std::vector<ProjectObject*> members;
    for (ProjectObject* const object : getLinks())
        if (object->getParentGroup() == this)
            members.push_back(object);
    return members;
}

/// Returns whether this group is `object` or one of its members, at any depth.
bool ProjectObjectGroup::isInside(const ProjectObject& object) const
{
    const ProjectObject* around = this;
    while (around != nullptr && around != &object)
        around = around->getParentGroup();
    return around != nullptr;
}

} // namespace Obj
