#include "tree/TreeShape.h"

#include "Obj/Project.h"
#include "Obj/ProjectObjectGroup.h"

#include <algorithm>

namespace Gui {

namespace {

using Ids = std::vector<std::uint32_t>;

/// The group under which each member is shown, by the id of the member.
using Groups = std::map<std::uint32_t, std::uint32_t>;

/// Whether the object is `ancestor`, or is shown under it, directly or not.
bool isUnder(std::uint32_t objectId, std::uint32_t ancestor, const Groups& groups)
{
    while (objectId != ancestor) {
        const auto group = groups.find(objectId);
        if (group == groups.end())
            return false;
        objectId = group->second;
    }
    return true;
}

/// Adds the members of a group that have a node, except those under which the group itself is shown.
void addMembers(const Obj::ProjectObjectGroup& group, const Ids& shown, Groups& groups)
{
    const std::uint32_t groupId = group.getObjectId();
    for (const Obj::ProjectObject* const member : group.get_members()) {
        const std::uint32_t id = member->getObjectId();
        if (std::binary_search(shown.begin(), shown.end(), id) && !isUnder(groupId, id, groups))
            groups.emplace(id, groupId);
    }
}

Ids idsOf(const std::vector<Obj::ProjectObject*>& objects)
{
    Ids ids;
    ids.reserve(objects.size());
    for (const Obj::ProjectObject* const object : objects)
        ids.push_back(object->getObjectId());
    return ids;
}

} // namespace

TreeShape::TreeShape(const Obj::Project& project, const std::function<bool(Obj::ProjectObject&)>& isShown)
{
    std::vector<Obj::ProjectObject*> objects = project.get_objects();
    objects.erase(std::remove_if(objects.begin(), objects.end(), [&](auto* object) { return !isShown(*object); }),
                  objects.end());
    const Ids shown = idsOf(objects);
    Groups groups;
    for (const Obj::ProjectObject* const object : objects)
        if (object->is_inherited_from(Obj::ProjectObjectGroup::getClassTypeId()))
            addMembers(static_cast<const Obj::ProjectObjectGroup&>(*object), shown, groups);
    for (const std::uint32_t id : shown) {
        const auto group = groups.find(id);
        m_children[group != groups.end() ? group->second : 0].push_back(id);
    }
}

const std::vector<std::uint32_t>& TreeShape::childrenOf(std::uint32_t objectId) const
{
    static const Ids none;
    const auto found = m_children.find(objectId);
    return found != m_children.end() ? found->second : none;
}

std::vector<std::uint32_t> TreeShape::parentsFromTop() const
{
    Ids parents = {0};
    for (std::size_t i = 0; i < parents.size(); ++i)
        for (const std::uint32_t child : childrenOf(parents[i]))
            if (m_children.count(child) != 0)
                parents.push_back(child);
    return parents;
}

} // namespace Gui
