#include "tree/TreeShape.h"

#include "Obj/Project.h"
#include "Obj/ProjectObjectGroup.h"

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
