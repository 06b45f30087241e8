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

/// Returns the id in the project for an id in a record; 0 for none. For records of copies, which get their own ids.
using Renumbering = std::function<std::uint32_t(std::uint32_t)>;

/// Returns the ids of records unchanged, for records of the project itself.
OBJ_EXPORT std::uint32_t sameId(std::uint32_t id);

/// Returns the properties that are not read-only, as JSON by name; null if there are none.
OBJ_EXPORT Json::Value writeProperties(const PropertyDS& set);

/// Sets the properties of the record, and returns the names of the properties that could not be set: unknown,
/// read-only, or with an unreadable value. References need their objects in the project; `newId` maps their ids. A null
/// record has no properties. A record that is not an object throws std::runtime_error.
[[nodiscard]] OBJ_EXPORT std::vector<std::string> readProperties(PropertyDS& set, const Json::Value& record,
                                                                 const Renumbering& newId = sameId);

/// Returns the ids of the objects to which an object is linked by linkTo, including the members of a group; null if
/// there are none.
OBJ_EXPORT Json::Value writeLinks(const ProjectObject& object);

/// Links an object to the objects of the record, and returns the number of failed links. A link fails if its object is
/// not in the project or cannot be a member of the group. Throws std::runtime_error if the record is not an array of
/// ids.
[[nodiscard]] OBJ_EXPORT std::size_t readLinks(ProjectObject& object, const Json::Value& record,
                                               const Renumbering& newId = sameId);

} // namespace Obj
