#include "tree/TreeShape.h"

#include "Obj/Project.h"
#include "Obj/ProjectObjectGroup.h"

#include <algorithm>

namespace Gui {

TreeShape::TreeShape(const Obj::Project& project, const std::function<bool(Obj::ProjectObject&)>& isShown)
{
    for (Obj::ProjectObject* const object : project.getObjects()) {
        if (!isShown(*object))
            continue;
        Obj::ProjectObjectGroup* const group = object->getParentGroup();
        m_children[group != nullptr && isShown(*group) ? group->getObjectId() : 0].push_back(object->getObjectId());
    }
}

/// Members are judged before their groups.
void TreeShape::keep(const std::function<bool(std::uint32_t)>& matches)
{
    const std::vector<std::uint32_t> parents = parentsFromTop();
    for (auto parent = parents.rbegin(); parent != parents.rend(); ++parent) {
        std::vector<std::uint32_t>& children = m_children[*parent];
        const auto isSurplus = [&](std::uint32_t child) { return !matches(child) && childrenOf(child).empty(); };
        children.erase(std::remove_if(children.begin(), children.end(), isSurplus), children.end());
        if (children.empty())
            m_children.erase(*parent);
    }
}

const std::vector<std::uint32_t>& TreeShape::childrenOf(std::uint32_t objectId) const
{
    static const std::vector<std::uint32_t> none;
    const auto found = m_children.find(objectId);
    return found != m_children.end() ? found->second : none;
}

std::vector<std::uint32_t> TreeShape::parentsFromTop() const
{
    std::vector<std::uint32_t> parents = {0};
    for (std::size_t i = 0; i < parents.size(); ++i)
        for (const std::uint32_t child : childrenOf(parents[i]))
            if (m_children.count(child) != 0)
                parents.push_back(child);
    return parents;
}

} // namespace Gui
