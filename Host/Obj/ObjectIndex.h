#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <tsl/robin_map.h>
#include <utility>

namespace Obj {

class ProjectObject;

/// Finds the objects of a project by id and by name. The tables store their entries in one piece of memory each: with a
/// list per entry, each of 100,000 objects would take half as long again to add as each of 1,000.
class ObjectIndex
{
public:
    /// Returns null if no object has the id.
    ProjectObject* find(std::uint32_t objectId) const;
    /// Returns null if no object has the name.
    ProjectObject* find(std::string_view name) const;

    /// Adds `object` under its id and under `name`, which no other entry must have. The text of `name` must remain where
    /// it is until the object is removed. If memory is exhausted, std::bad_alloc is thrown and nothing is added.
    void add(ProjectObject& object, std::string_view name);
    void remove(const ProjectObject& object, std::string_view name);
    void clear();

    std::size_t getMemoryUsage() const; ///< about, in bytes, without the index itself

private:
    static constexpr bool storeHash = true; ///< so that a table that grows does not read the names

    tsl::robin_map<std::string_view, ProjectObject*, std::hash<std::string_view>, std::equal_to<>,
                   std::allocator<std::pair<std::string_view, ProjectObject*>>, storeHash>
        m_byName;
    tsl::robin_map<std::uint32_t, ProjectObject*> m_byId;
};

} // namespace Obj
