#include "kelta/OpeningGuard.h"

#include "Kelta/TypeInfo.h"

#include <map>
#include <utility>

namespace desktop {

namespace {

std::map<std::string, OpeningGuard>& guards()
{
    static std::map<std::string, OpeningGuard> registered;
    return registered;
}

} // namespace

void registerOpeningGuard(const std::string& projectClass, OpeningGuard guard)
{
    guards()[projectClass] = std::move(guard);
}

const OpeningGuard* findOpeningGuard(const std::string& projectClass)
{
    for (auto type = Kelta::TypeInfo::find(projectClass.c_str()); type.namesAType(); type = type.getParent())
        if (const auto found = guards().find(type.get_name()); found != guards().end())
            return &found->second;
    return nullptr;
}

} // namespace desktop
