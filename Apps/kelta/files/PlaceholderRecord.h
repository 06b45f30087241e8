#pragma once

#include "projectfile/ProjectFile.h"

#include <json/value.h>

namespace Obj {
class Placeholder;
} // namespace Obj

namespace desktop {

// What placeholders of missing classes keep of a project file. The id, name, label, links and suppression of an object
// are those of the placeholder itself.

/// Returns the record of a placeholder for an object: "properties", "node" and "content", and whether the content is a
/// material. The content is that which the codec of the class would write.
Json::Value recordOfObject(const projectfile::ObjectRecord& object);

/// Gives `object` the class and the content of a placeholder.
/// \throws projectfile::ContentError if the placeholder holds a material that cannot be read
void writePlaceholder(const Obj::Placeholder& placeholder, projectfile::ObjectRecord& object);

/// Returns the record of a placeholder for a project: "properties" and "record".
Json::Value recordOfProject(const projectfile::ProjectRecord& project);

/// Gives `project` the class and the content of a placeholder.
void writePlaceholder(const Obj::Placeholder& placeholder, projectfile::ProjectRecord& project);

/// Moves the colour of a material from the properties of its tree node to where files have it.
void moveColourFromNode(projectfile::ObjectRecord& object);

/// Returns the properties of the tree node, the colour of a material among them; null if there are none.
Json::Value nodeWithColour(const projectfile::ObjectRecord& object);

} // namespace desktop
