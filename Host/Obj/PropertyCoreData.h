#pragma once

#include "Obj/ObjExport.h"

#include <deque>
#include <string>
#include <string_view>

namespace Obj {

/// The description of one property of a class.
struct PropertyDescription
{
    std::string name;
    std::string group;       ///< heading under which the property panel shows it
    short attributes = 0;    ///< PropertyType
    std::string description; ///< a hint for the user
};

/// The descriptions of the properties of a class, in the order of their registration, with a link to those of its
/// parent class. Each class has one static instance, which is filled when the first object is made.
class OBJ_EXPORT PropertyCoreData
{
public:
    /// Adds a description and returns it. If the class has a description under this name, keeps and returns that one.
    const PropertyDescription& registerProperty(const char* name, const char* group, short attributes,
                                                const char* description);

    /// Returns the description that the class itself registered under `name`; null if there is none.
    const PropertyDescription* find(std::string_view name) const;

    const std::deque<PropertyDescription>& descriptions() const { return m_descriptions; }

    /// Returns the descriptions of the parent class; null for a root.
    const PropertyCoreData* parent() const { return m_parent; }
    void setParent(const PropertyCoreData* parent) { m_parent = parent; }

private:
    // Sets of properties point to their descriptions, which must not move.
    std::deque<PropertyDescription> m_descriptions;
    const PropertyCoreData* m_parent = nullptr;
};

} // namespace Obj
