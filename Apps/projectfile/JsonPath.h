#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace projectfile::detail {

/// Where in a JSON document somebody is, for messages: "materials[3].material.name". Names are kept by reference.
class JsonPath
{
public:
    void enter() { m_levels.emplace_back(); }
    void leave() { m_levels.pop_back(); }
    void setName(std::string_view name) { m_levels.back().name = name; }
    void setIndex(std::size_t index) { m_levels.back().index = index; }
    std::size_t depth() const { return m_levels.size(); }

    /// Empty for the document as a whole.
    std::string toText() const;

private:
    struct Level
    {
        std::string_view name;           ///< of a member; empty in an array
        std::size_t index = isNoElement; ///< of an element
    };

    static constexpr std::size_t isNoElement = static_cast<std::size_t>(-1);

    std::vector<Level> m_levels;
};

/// A text short enough for a message: its middle is left out when it is long.
std::string shortened(std::string_view text);

} // namespace projectfile::detail
