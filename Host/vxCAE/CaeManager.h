#pragma once

#include "vxCAE/CaeManagerExport.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>

namespace vxCAE {

class CAESet;

/// Keeps the exchange set of each project for the solver side. It does not detect that a project is closed: the module
/// that provides a set then destroys it with setCAE(projectId, nullptr).
class VXCAE_MANAGER_EXPORT CCaeManager
{
public:
    CCaeManager();
    CCaeManager(const CCaeManager&) = delete;
    CCaeManager& operator=(const CCaeManager&) = delete;
    ~CCaeManager();

    /// Takes ownership of `set` and destroys the previous set of the project; null only destroys that set. A set that
    /// the manager holds for another project is moved to this project.
    void setCAE(std::uint32_t projectId, CAESet* set);
    /// Returns the set of a project, which the manager owns; null if there is none.
    CAESet* getCAE(std::uint32_t projectId) const;
    std::size_t getCount() const { return m_sets.size(); }

private:
    std::map<std::uint32_t, std::unique_ptr<CAESet>> m_sets; ///< by project id
};

/// Returns the manager of the program.
VXCAE_MANAGER_EXPORT CCaeManager& GetCaeManager();

} // namespace vxCAE
