#include "Obj/PropertyDS.h"

#include "Obj/PropertyType.h"

#include <algorithm>

namespace Obj {

KELTA_REGISTER_ABSTRACT_CLASS(Obj::PropertyDS, Kelta::DataPersistence)
PropertyCoreData PropertyDS::propertyData;

PropertyDS::PropertyDS()
{
    // Most objects have a label, an id, a class label and few other properties.
    constexpr std::size_t usualCount = 4;
    m_entries.reserve(usualCount);
}

PropertyDS::~PropertyDS() = default;

std::size_t PropertyDS::get_memory_usage() const
{
    std::size_t bytes = DataPersistence::get_memory_usage() + m_entries.capacity() * sizeof(Entry);
    for (const Entry& entry : m_entries)
        bytes += entry.property->get_memory_usage();
    return bytes;
}

Property* PropertyDS::get_property_by_name(const char* name) const
{
    const Entry* const entry = find(name);
    return entry != nullptr ? entry->property : nullptr;
}

const char* PropertyDS::get_property_name(const Property* property) const
{
    const Entry* const entry = find(property);
    return entry != nullptr ? entry->description->name.c_str() : nullptr;
}

void PropertyDS::get_property_dataset(std::map<std::string, Property*>& properties) const
{
    for (const Entry& entry : m_entries)
        properties[entry.description->name] = entry.property;
}

void PropertyDS::get_property_array(std::vector<Property*>& properties) const
{
    for (const Entry& entry : m_entries)
        properties.push_back(entry.property);
}

short PropertyDS::get_property_type(const char* name) const
{
    const Entry* const entry = find(name);
    return entry != nullptr ? entry->description->attributes : PropertyType::none;
}

short PropertyDS::get_property_type(const Property* property) const
{
    const Entry* const entry = find(property);
    return entry != nullptr ? entry->description->attributes : PropertyType::none;
}

const char* PropertyDS::get_property_group(const char* name) const
{
    const Entry* const entry = find(name);
    return entry != nullptr ? entry->description->group.c_str() : "";
}

const char* PropertyDS::get_property_group(const Property* property) const
{
    const Entry* const entry = find(property);
    return entry != nullptr ? entry->description->group.c_str() : "";
}

const char* PropertyDS::get_property_description(const char* name) const
{
    const Entry* const entry = find(name);
    return entry != nullptr ? entry->description->description.c_str() : "";
}

const char* PropertyDS::get_property_description(const Property* property) const
{
    const Entry* const entry = find(property);
    return entry != nullptr ? entry->description->description.c_str() : "";
}

bool PropertyDS::is_read_only(const char* name) const
{
    return (get_property_type(name) & PropertyType::readOnly) != 0;
}

bool PropertyDS::is_read_only(const Property* property) const
{
    return (get_property_type(property) & PropertyType::readOnly) != 0;
}

bool PropertyDS::is_hidden(const char* name) const
{
    return (get_property_type(name) & PropertyType::hidden) != 0;
}

bool PropertyDS::is_hidden(const Property* property) const
{
    return (get_property_type(property) & PropertyType::hidden) != 0;
}

void PropertyDS::on_changed(const Property*) {}

void PropertyDS::on_change_before(const Property*) {}

const PropertyCoreData& PropertyDS::get_property_data() const
{
    return propertyData;
}

const PropertyCoreData* PropertyDS::get_property_data_ref()
{
    return &propertyData;
}

void PropertyDS::registerProperty(PropertyCoreData& data, Property& property, const char* name, const char* group,
                                  short attributes, const char* description)
{
    const PropertyDescription& described = data.registerProperty(name, group, attributes, description);
    const auto known = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&property](const Entry& entry) { return entry.property == &property; });
    if (known != m_entries.end())
        known->description = &described;
    else
        m_entries.push_back({&property, &described});
    property.m_owner = this;
}

const PropertyDS::Entry* PropertyDS::find(const char* name) const
{
    if (name == nullptr)
        return nullptr;
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [name](const Entry& entry) { return entry.description->name == name; });
    return found != m_entries.end() ? &*found : nullptr;
}

const PropertyDS::Entry* PropertyDS::find(const Property* property) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [property](const Entry& entry) { return entry.property == property; });
    return found != m_entries.end() ? &*found : nullptr;
}

} // namespace Obj
