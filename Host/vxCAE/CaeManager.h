#pragma once

#include "vxCAE/CaeManagerExport.h"
#include "vxMaterial/exchange/CAESet.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>

namespace vxCAE {

/// Keeps the exchange set of each project for the solver side.
class VXCAE_MANAGER_EXPORT CCaeManager
{
public:
    CCaeManager();
    CCaeManager(const CCaeManager&) = delete;
    CCaeManager& operator=(const CCaeManager&) = delete;
    ~CCaeManager();

    /// Takes ownership of `set` and destroys the set that it held for the project; null only does the latter.
    /// A set that it holds for another project is from then on this one's alone.
    void setCAE(std::uint32_t projectId, CAESet* set);
    /// The set of a project, which the manager keeps; null when it holds none.
    CAESet* getCAE(std::uint32_t projectId) const;
    std::size_t getCount() const { return m_sets.size(); }

private:
    std::map<std::uint32_t, std::unique_ptr<CAESet>> m_sets; ///< by project id
};

/// The one manager of the program.
VXCAE_MANAGER_EXPORT CCaeManager& GetCaeManager();

} // namespace vxCAE
