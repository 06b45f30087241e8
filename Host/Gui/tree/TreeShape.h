#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <vector>

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace Gui {

/// The objects of a project that have a node in the tree, and the parent node of each: the ids of the children of
/// each node, in ascending order. The id 0 is the node of the project itself.
class TreeShape
{
public:
    /// The members of a group are shown under the group. Objects for which `isShown` returns false have no node; their
    /// members are shown as if they were in no group.
    TreeShape(const Obj::Project& project, const std::function<bool(Obj::ProjectObject&)>& isShown);

    /// Keeps the objects for which `matches` returns true, and the groups with a member that is kept. Calls `matches` once
    /// for the id of each object.
    void keep(const std::function<bool(std::uint32_t)>& matches);

    /// Returns the children of a node; none if the tree does not have it.
    const std::vector<std::uint32_t>& childrenOf(std::uint32_t objectId) const;
    /// Returns the project's node and all other nodes with children, each after its parent.
    std::vector<std::uint32_t> parentsFromTop() const;

private:
    std::map<std::uint32_t, std::vector<std::uint32_t>> m_children;
};

} // namespace Gui
