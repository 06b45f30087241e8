#pragma once

#include "Kelta/TypeInfo.h"
#include "Obj/ObjExport.h"

#include <json/value.h>

#include <functional>
#include <string>

namespace Obj {

class Project;
class ProjectObject;

/// How a module carries the content that its objects hold beside their properties: into project files and back, and from
/// one object to another by the clipboard.
struct ContentCodec
{
    /// Returns the whole content of an object, null if it has none.
    std::function<Json::Value(const ProjectObject&)> write;
    /// Gives an object the content that write has returned. Throws a std::exception, and leaves the object as it was, if
    /// the content cannot be read.
    std::function<void(ProjectObject&, const Json::Value&)> read;
};

/// How a module carries what a project holds beside its properties and objects, into project files and back; as
/// ContentCodec.
struct ProjectCodec
{
    std::function<Json::Value(const Project&)> write;
    std::function<void(Project&, const Json::Value&)> read;
};

/// Registers the codec of a class and of those classes that descend from it and have none themselves. A later codec of a
/// class replaces an earlier one.
OBJ_EXPORT void registerContentCodec(const std::string& className, ContentCodec codec);
OBJ_EXPORT void registerProjectCodec(const std::string& className, ProjectCodec codec);

/// Returns the codec of a type or of its nearest ancestor that has one; null if there is none.
OBJ_EXPORT const ContentCodec* findContentCodec(Kelta::TypeInfo type);
OBJ_EXPORT const ProjectCodec* findProjectCodec(Kelta::TypeInfo type);

} // namespace Obj
