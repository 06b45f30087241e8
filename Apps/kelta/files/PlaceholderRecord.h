#pragma once

#include "projectfile/ProjectFile.h"

#include <json/value.h>

namespace Obj {
class Placeholder;
} // namespace Obj

namespace desktop {

// The parts of a project file that placeholders of missing classes keep. The placeholder itself has
// the id, name, label, links and suppression of the object.

/// Returns the record of a placeholder for an object: "properties", "node" and "content", and whether the content is a
/// material. The content is in the format of the codec of the class.
Json::Value recordOfObject(const projectfile::ObjectRecord& object);

/// Writes the class and the content of a placeholder into the record of an object.
/// \throws projectfile::ContentError if the placeholder holds a material that cannot be read
void writePlaceholder(const Obj::Placeholder& placeholder, projectfile::ObjectRecord& object);

/// Returns the record of a placeholder for a project: "properties" and "record".
Json::Value recordOfProject(const projectfile::ProjectRecord& project);

/// Writes the class and the content of a placeholder into the record of a project.
void writePlaceholder(const Obj::Placeholder& placeholder, projectfile::ProjectRecord& project);

/// Moves the colour of a material from the properties of its tree node to `colour`, as in project files.
void moveColourFromNode(projectfile::ObjectRecord& object);

/// Returns the properties of the tree node, including the colour of a material; null if there are none.
Json::Value nodeWithColour(const projectfile::ObjectRecord& object);

} // namespace desktop
