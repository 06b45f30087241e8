#include "projectfile/MaterialClasses.h"

#include <map>

namespace projectfile {

namespace {

std::map<std::string, MaterialOf>& materialClasses()
{
    static std::map<std::string, MaterialOf> registered;
    return registered;
}

} // namespace

void registerMaterialClass(const std::string& className, MaterialOf materialOf)
{
    materialClasses()[className] = materialOf;
}

MaterialOf findMaterialClass(const std::string& className)
{
    const auto found = materialClasses().find(className);
    return found != materialClasses().end() ? found->second : nullptr;
}

} // namespace projectfile
