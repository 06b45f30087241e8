#include "ObjectIndex.h"

#include "Obj/ProjectObject.h"

namespace Obj {

namespace {

template <typename Table, typename Key>
ProjectObject* findIn(const Table& table, const Key& key)
{
    const auto found = table.find(key);
    return found != table.end() ? found->second : nullptr;
}

} // namespace

ProjectObject* ObjectIndex::find(std::uint32_t objectId) const
{
    return findIn(m_byId, objectId);
}

ProjectObject* ObjectIndex::find(std::string_view name) const
{
    return findIn(m_byName, name);
}

void ObjectIndex::add(ProjectObject& object, std::string_view name)
{
    m_byName.emplace(name, &object);
    try {
        m_byId.emplace(object.getObjectId(), &object);
    } catch (...) {
        m_byName.erase(name);
        throw;
    }
}

void ObjectIndex::remove(const ProjectObject& object, std::string_view name)
{
    m_byName.erase(name);
    m_byId.erase(object.getObjectId());
}

void ObjectIndex::clear()
{
    m_byName.clear();
    m_byId.clear();
}

std::size_t ObjectIndex::getMemoryUsage() const
{
    return m_byName.bucket_count() * sizeof(*m_byName.begin()) + m_byId.bucket_count() * sizeof(*m_byId.begin());
}

} // namespace Obj
