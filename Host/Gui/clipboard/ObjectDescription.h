#pragma once

#include <json/value.h>

#include <string>

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace Gui {

class GuiApplication;

/// Returns the description of an object for the clipboard, as documented at ObjectClipboard. `application` provides the
/// node of the object.
Json::Value describeObject(const GuiApplication& application, Obj::ProjectObject& object);

/// Returns a name for a project that is unique across programs.
std::string originOf(const Obj::Project& project);

/// Returns the class of a project, or the missing class if the project is a placeholder.
std::string originalClassOf(const Obj::Project& project);

} // namespace Gui
