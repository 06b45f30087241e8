#include "NameIndex.h"

#include <functional>
#include <utility>

namespace Obj {

namespace {

std::size_t hashOf(std::string_view name)
{
    const bool numbered = !name.empty() && name.back() >= '0' && name.back() <= '9';
    const std::hash<std::string_view> hash;
    return numbered ? hash(name.substr(0, name.size() - 1)) + static_cast<std::size_t>(name.back() - '0') : hash(name);
}

} // namespace

ProjectObject* NameIndex::find(std::string_view name) const
{
    return m_entries.empty() ? nullptr : m_entries[placeOf(name)].object;
}

void NameIndex::insert(const std::string& name, ProjectObject* object)
{
    if (2 * (m_count + 1) > m_entries.size())
        grow();
    put({hashOf(name), &name, object});
    ++m_count;
}

void NameIndex::erase(std::string_view name)
{
    std::size_t hole = m_entries.empty() ? 0 : placeOf(name);
    if (m_entries.empty() || m_entries[hole].name == nullptr)
        return;
    const std::size_t mask = m_entries.size() - 1;
    // What stands behind the hole and asks for a place at or before it moves up, so that a search still meets it.
    for (std::size_t place = next(hole); m_entries[place].name != nullptr; place = next(place)) {
        const std::size_t distance = (place - m_entries[place].hash) & mask;
        if (distance >= ((place - hole) & mask))
            m_entries[std::exchange(hole, place)] = m_entries[place];
    }
    m_entries[hole] = Entry();
    --m_count;
}

/// Where the name stands, or the free place that shows that it does not.
std::size_t NameIndex::placeOf(std::string_view name) const
{
    const std::size_t hash = hashOf(name);
    std::size_t place = hash & (m_entries.size() - 1);
    while (m_entries[place].name != nullptr && (m_entries[place].hash != hash || *m_entries[place].name != name))
        place = next(place);
    return place;
}

void NameIndex::put(const Entry& entry)
{
    std::size_t place = entry.hash & (m_entries.size() - 1);
    while (m_entries[place].name != nullptr)
        place = next(place);
    m_entries[place] = entry;
}

void NameIndex::grow()
{
    constexpr std::size_t smallest = 16;
    std::vector<Entry> larger(m_entries.empty() ? smallest : 2 * m_entries.size());
    const std::vector<Entry> smaller = std::exchange(m_entries, std::move(larger));
    for (const Entry& entry : smaller)
        if (entry.name != nullptr)
            put(entry);
}

} // namespace Obj
