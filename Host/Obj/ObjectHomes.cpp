#include "Obj/ObjectHomes.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string_view>

namespace Obj {

namespace {

using Homes = std::map<std::string, std::set<std::string>, std::less<>>;

/// Project classes by object class.
Homes& homes()
{
    static Homes registered;
    return registered;
}

} // namespace

void registerHome(const std::string& objectClass, const std::string& projectClass)
{
    homes()[objectClass].insert(projectClass);
}

bool isHome(Kelta::TypeInfo projectType, Kelta::TypeInfo objectType)
{
    for (Kelta::TypeInfo type = objectType; type.namesAType(); type = type.getParent()) {
        const auto found = homes().find(std::string_view(type.get_name()));
        if (found != homes().end())
            return std::any_of(found->second.begin(), found->second.end(), [projectType](const std::string& home) {
                return projectType.is_inherited_from(Kelta::TypeInfo::find(home.c_str()));
            });
    }
    return true;
}

} // namespace Obj
