#include "JsonMembers.h"

#include <string>

namespace desktop {

void addMissing(Json::Value& record, const Json::Value& other)
{
    if (!other.isObject())
        return;
    for (const std::string& name : other.getMemberNames())
        if (!record.isMember(name))
            record[name] = other[name];
}

} // namespace desktop
