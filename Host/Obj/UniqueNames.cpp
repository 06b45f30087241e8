#include "Obj/UniqueNames.h"

namespace Obj {

std::string UniqueNames::next(std::string_view stem)
{
    std::string name(stem.empty() ? "Object" : stem);
    const std::size_t count = m_counts[name]++;
    return count == 0 ? name : name + std::to_string(count);
}

} // namespace Obj
