#pragma once

#include "vxMaterial/json/JsonExport.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vxjson {

/// A place in a JSON document, for messages: "materials[3].material.name". Names are stored by reference.
class VXJSON_EXPORT JsonPath
{
public:
    /// Enters an array or object. The caller then sets the element or member in it.
    void enter() { m_levels.emplace_back(); }
    void leave() { m_levels.pop_back(); }
    void setName(std::string_view name) { m_levels.back().name = name; }
    void setIndex(std::size_t index) { m_levels.back().index = index; }
    std::size_t depth() const { return m_levels.size(); }

    /// Returns the path; empty for the whole document. The middle of a long path is omitted.
    std::string toText() const;

private:
    static constexpr std::size_t noElement = static_cast<std::size_t>(-1);

    struct Level
    {
        std::string_view name;         ///< of a member; empty in an array
        std::size_t index = noElement; ///< of an element
    };

    std::vector<Level> m_levels;
};

} // namespace vxjson
