#include "vxCAE/CaeManager.h"

#include "vxMaterial/exchange/CAESet.h"

#include <algorithm>

namespace vxCAE {

CCaeManager::CCaeManager() = default;

CCaeManager::~CCaeManager() = default;

void CCaeManager::setCAE(std::uint32_t projectId, CAESet* set)
{
    std::unique_ptr<CAESet> owned(set);
    const auto held = std::find_if(m_sets.begin(), m_sets.end(),
                                   [set](const auto& entry) { return set != nullptr && entry.second.get() == set; });
    if (held != m_sets.end()) {
        // The manager has it already, perhaps for another project.
        held->second.release(); // NOLINT(bugprone-unused-return-value)
        m_sets.erase(held);
    }
    if (owned == nullptr)
        m_sets.erase(projectId);
    else
        m_sets[projectId] = std::move(owned);
}

CAESet* CCaeManager::getCAE(std::uint32_t projectId) const
{
    const auto found = m_sets.find(projectId);
    return found != m_sets.end() ? found->second.get() : nullptr;
}

CCaeManager& GetCaeManager()
{
    static CCaeManager manager;
    return manager;
}

} // namespace vxCAE
