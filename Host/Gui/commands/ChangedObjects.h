#pragma once

#include <boost/signals2/connection.hpp>

#include <cstdint>
#include <set>
#include <utility>
#include <vector>

namespace Obj {
class Project;
} // namespace Obj

namespace Gui {

class TreeSelectionSingleton;

/// The projects and objects that are added or changed during the lifetime of an instance.
class ChangedObjects
{
public:
    ChangedObjects();
    ChangedObjects(const ChangedObjects&) = delete;
    ChangedObjects& operator=(const ChangedObjects&) = delete;
    ~ChangedObjects();

    /// Selects what was added; if nothing was added, what was changed; if there is nothing, leaves the selection as it
    /// is. Projects and objects that no longer exist are left out.
    void select(TreeSelectionSingleton& selection) const;

private:
    using Places = std::set<std::pair<std::uint32_t, std::uint32_t>>; ///< ids of project and object; 0 for the project

    void watch(Obj::Project& project);
    static bool select(TreeSelectionSingleton& selection, const Places& places);

    Places m_added;
    Places m_changed;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace Gui
