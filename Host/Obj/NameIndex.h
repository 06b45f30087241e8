#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Obj {

class ProjectObject;

/// Finds the objects of a project by their names.
///
/// A table that is at most half full, searched from the place that the name asks for up to the next free one. Names
/// that differ in their last digit alone ask for places side by side, and a table that grows is copied from front to
/// back: names that are numbered one after the other, as those of most objects are, cost no more in a project that is
/// larger than the processor's cache.
class NameIndex
{
public:
    /// Null when no object has the name.
    ProjectObject* find(std::string_view name) const;
    /// Adds an object under its name, which none has. The name must stay as long as the object is in the index.
    void insert(const std::string& name, ProjectObject* object);
    /// Nothing when no object has the name.
    void erase(std::string_view name);
    void clear() { *this = NameIndex(); }

private:
    struct Entry
    {
        std::size_t hash = 0;
        const std::string* name = nullptr; ///< null for a free place
        ProjectObject* object = nullptr;
    };
    std::size_t placeOf(std::string_view name) const;
    std::size_t next(std::size_t place) const { return (place + 1) & (m_entries.size() - 1); }
    void put(const Entry& entry);
    void grow();

    std::vector<Entry> m_entries; ///< a power of two of them, or none
    std::size_t m_count = 0;
};

} // namespace Obj
