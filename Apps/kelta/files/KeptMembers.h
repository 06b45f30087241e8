#pragma once

#include <json/value.h>

#include <cstdint>
#include <map>
#include <string>

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

/// The name of a project in its file that the open project could not get, because another one had it or because it is
/// no name for an open project.
struct KeptName
{
    std::string inFile;
    std::string whenOpen; ///< the name that the project got; the kept name ends if the project gets another one
};

/// Parts of the record of a project that this program cannot put into the project.
struct KeptMembers
{
    KeptName name;
    Json::Value further;
    Json::Value database;   ///< the whole record in the project database, unchanged
    Json::Value properties; ///< by name, properties that the project does not have, or whose values it refuses
    Json::Value record;     ///< of a project whose class has no codec
    std::map<std::uint32_t, KeptObject> objects; ///< by id
};

} // namespace desktop
