#pragma once

#include <json/value.h>

#include <cstdint>
#include <map>

namespace desktop {

/// What a project file says of an object beyond what this program can give to the object, to be written back. A member is
/// null if there is nothing.
struct KeptObject
{
    Json::Value further;    ///< members that no program of this version knows, as projectfile::ObjectRecord has them
    Json::Value properties; ///< by name, those that the object does not have or take
    Json::Value node;       ///< likewise of the tree node; all of them in a program without windows
    Json::Value content;    ///< of an object whose class has no codec
};

/// The same of the whole project.
struct KeptMembers
{
    Json::Value further;
    Json::Value database;                        ///< the whole record of the project database, as it was read
    Json::Value properties;                      ///< by name, those that the project does not have or take
    Json::Value record;                          ///< of a project whose class has no codec
    std::map<std::uint32_t, KeptObject> objects; ///< by id
};

} // namespace desktop
