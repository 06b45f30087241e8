#pragma once

#include "Obj/ObjExport.h"

#include <json/value.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Obj {

class ProjectObject;
class PropertyDS;

/// The id in the project for an id in a record; 0 for none. For records of copies, which get ids of their own.
using Renumbering = std::function<std::uint32_t(std::uint32_t)>;

/// Returns the ids of records as they are, for records of the project itself.
OBJ_EXPORT std::uint32_t sameId(std::uint32_t id);

/// Returns the properties that are not read-only, as JSON by name; null if there are none.
OBJ_EXPORT Json::Value writeProperties(const PropertyDS& set);

/// Sets the properties that the record has, and returns the names of those that could not be set: unknown, read-only, or
/// with a value that cannot be read. References need their objects in the project; `newId` says which. A null record has
/// no properties; one that is not an object throws std::runtime_error.
[[nodiscard]] OBJ_EXPORT std::vector<std::string> readProperties(PropertyDS& set, const Json::Value& record,
                                                                 const Renumbering& newId = sameId);

/// Returns the ids of the objects that an object is linked to by linkTo, the members of a group among them; null if there
/// are none.
OBJ_EXPORT Json::Value writeLinks(const ProjectObject& object);

/// Links an object to those of the record, and returns how many links could not be made, because an object is not in the
/// project or cannot be a member of the group. A record that is not an array of ids throws std::runtime_error.
[[nodiscard]] OBJ_EXPORT std::size_t readLinks(ProjectObject& object, const Json::Value& record,
                                               const Renumbering& newId = sameId);

} // namespace Obj
