#include "Obj/ProjectObjectGroup.h"

#include "Kelta/MessageLog.h"
#include "Obj/PropertyType.h"

#include <QCoreApplication>

namespace Obj {

OBJ_REGISTER_CLASS(Obj::ProjectObjectGroup, Obj::ProjectObject)

namespace {

std::vector<ProjectObject*> membersOf(const ProjectObject& object)
{
    const auto* const group = dynamic_cast<const ProjectObjectGroup*>(&object);
    return group != nullptr ? group->getMembers() : std::vector<ProjectObject*>();
}

/// Returns how many levels of members an object has; 0 if it is not a group, or empty.
int countLevelsBelow(const ProjectObject& object)
{
    int levels = 0;
    for (std::vector<ProjectObject*> level = membersOf(object), next; !level.empty(); level.swap(next), ++levels) {
        next.clear();
        for (const ProjectObject* const member : level) {
            const std::vector<ProjectObject*> members = membersOf(*member);
            next.insert(next.end(), members.begin(), members.end());
        }
    }
    return levels;
}

void reportRefusal(const char* reason, const ProjectObject& member, const ProjectObjectGroup& group)
{
    Kelta::MessageLog::error(
        QCoreApplication::translate("Obj::ProjectObjectGroup", reason)
            .arg(QString::fromStdString(member.label.getValue()), QString::fromStdString(group.label.getValue())));
}

} // namespace

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
        reportRefusal(QT_TRANSLATE_NOOP("Obj::ProjectObjectGroup",
                                        R"("%1" cannot be a member of "%2", because "%2" is inside it.)"),
                      object, *this);
        return false;
    }
    ProjectObjectGroup* const former = object.getParentGroup();
    if (former == this)
        return true;
    if (countLevelsAround() + 1 + countLevelsBelow(object) > deepestNesting) {
        reportRefusal(
            QT_TRANSLATE_NOOP("Obj::ProjectObjectGroup",
                              R"("%1" cannot be a member of "%2", because groups would be nested too deeply.)"),
            object, *this);
        return false;
    }
    if (!ProjectObject::linkTo(object))
        return false;
    if (former != nullptr)
        former->unlinkFrom(object);
    object.notifyChange();
    return true;
}

bool ProjectObjectGroup::linkTo(ProjectObject& other)
{
    return addMember(other);
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

/// Returns how many groups this group is in.
int ProjectObjectGroup::countLevelsAround() const
{
    int levels = 0;
    for (const ProjectObjectGroup* group = getParentGroup(); group != nullptr; group = group->getParentGroup())
        ++levels;
    return levels;
}

} // namespace Obj
