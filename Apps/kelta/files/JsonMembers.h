#pragma once

#include <json/value.h>

namespace desktop {

/// Copies the members of `other` that a record does not have. Does nothing if `other` is not an object.
void addMissing(Json::Value& record, const Json::Value& other);

/// Returns a part of a record: the members with these names; null if there are none.
template <class Names>
Json::Value membersOf(const Json::Value& record, const Names& names)
{
    Json::Value members;
    for (const auto& name : names)
        members[name] = record[name];
    return members;
}

} // namespace desktop
