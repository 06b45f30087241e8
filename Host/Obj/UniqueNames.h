#pragma once

#include "Obj/ObjExport.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace Obj {

/// Makes names that nobody has: "Material", "Material1", "Material2". A name that was made once is not made again, so
/// that what is deleted and brought back meets nobody of its name. Each name takes constant time on average, however
/// many there are.
class OBJ_EXPORT UniqueNames
{
public:
    /// A name from `stem`, "Object" when that is empty, for which `isTaken` answers false.
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
    bool wasMade(const std::string& name) const;

    std::unordered_map<std::string, std::size_t> m_counts; ///< names made from each stem
};

} // namespace Obj
