#pragma once

#include <json/value.h>

#include <string>

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace Gui {

class GuiApplication;

/// Returns the description of an object for the clipboard, as ObjectClipboard explains it. Its node comes from
/// `application`.
Json::Value describeObject(const GuiApplication& application, Obj::ProjectObject& object);

/// Returns a name for a project that no project of another program has.
std::string originOf(const Obj::Project& project);

/// Returns the class of a project, or the missing class of a placeholder.
std::string originalClassOf(const Obj::Project& project);

} // namespace Gui
