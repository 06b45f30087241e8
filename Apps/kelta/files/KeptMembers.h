#pragma once

#include <json/value.h>

#include <cstdint>
#include <map>

namespace desktop {

/// Parts of the record of an object in a project file that this program cannot put into the object. They are written
/// back when the project is saved. Each is null if there is none.
struct KeptObject
{
    Json::Value further;    ///< members unknown to this version, as in projectfile::ObjectRecord
    Json::Value properties; ///< by name, properties that the object does not have, or whose values it refuses
    Json::Value node;       ///< such properties of the tree node; all its properties in a program without windows
    Json::Value content;    ///< of an object whose class has no codec
};

/// Parts of the record of a project that this program cannot put into the project.
struct KeptMembers
{
    Json::Value further;
    Json::Value database;   ///< the whole record in the project database, unchanged
    Json::Value properties; ///< by name, properties that the project does not have, or whose values it refuses
    Json::Value record;     ///< of a project whose class has no codec
    std::map<std::uint32_t, KeptObject> objects; ///< by id
};

} // namespace desktop
