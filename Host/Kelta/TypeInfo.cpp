#include "TypeRegistry.h"

namespace Kelta {

TypeInfo TypeInfo::find(const char* name)
{
    TypeInfo type;
    type.m_record = name != nullptr ? findTypeRecord(name) : nullptr;
    return type;
}

const char* TypeInfo::get_name() const
{
    return m_record != nullptr ? m_record->name.c_str() : "";
}

TypeInfo TypeInfo::getParent() const
{
    TypeInfo parent;
    if (m_record == nullptr)
        return parent;
    if (m_record->parent == nullptr)
        m_record->parent = findTypeRecord(m_record->parentName);
    parent.m_record = m_record->parent;
    return parent;
}

bool TypeInfo::is_inherited_from(TypeInfo ancestor) const
{
    if (!ancestor.namesAType())
        return false;
    for (TypeInfo type = *this; type.namesAType(); type = type.getParent())
        if (type == ancestor)
            return true;
    return false;
}

std::size_t TypeInfo::getObjectSize() const
{
    return m_record != nullptr ? m_record->objectSize : 0;
}

void* TypeInfo::create() const
{
    return m_record != nullptr && m_record->create != nullptr ? m_record->create() : nullptr;
}

} // namespace Kelta
