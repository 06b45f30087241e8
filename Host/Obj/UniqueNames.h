#pragma once

#include "Obj/ObjExport.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace Obj {

/// Makes unused names: "Part", "Part1", "Part2". No name is made twice from one stem. Each name takes constant
/// time on average, independently of the number of names.
class OBJ_EXPORT UniqueNames
{
public:
    /// Returns a name from `stem`, or from "Object" if `stem` is empty, for which `isTaken` is false.
    template <typename IsTaken>
    std::string make(std::string_view stem, const IsTaken& isTaken)
    {
        std::string name;
        do
            name = next(stem);
        while (isTaken(name));
        return name;
    }

private:
    std::string next(std::string_view stem);

    std::unordered_map<std::string, std::size_t> m_counts; ///< names made from each stem
};

} // namespace Obj
