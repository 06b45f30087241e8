#include "Obj/PropertyCoreData.h"

#include <algorithm>

namespace Obj {

const PropertyDescription& PropertyCoreData::registerProperty(const char* name, const char* group, short attributes,
                                                              const char* description)
{
    if (const PropertyDescription* known = find(name))
        return *known;
    return m_descriptions.emplace_back(PropertyDescription{name, group, attributes, description});
}

const PropertyDescription* PropertyCoreData::find(std::string_view name) const
{
    const auto found =
        std::find_if(m_descriptions.begin(), m_descriptions.end(),
                     [name](const PropertyDescription& description) { return description.name == name; });
    return found != m_descriptions.end() ? &*found : nullptr;
}

} // namespace Obj
