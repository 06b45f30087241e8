#pragma once

#include "Kelta/TypeInfo.h"
#include "Obj/ObjExport.h"

#include <json/value.h>

#include <functional>
#include <string>

namespace Obj {

class Project;
class ProjectObject;

/// Carries the content that objects of a module hold besides their properties: into project files and back, and from
/// one object to another by the clipboard.
struct ContentCodec
{
    /// Returns the whole content of an object; null if it has none.
    std::function<Json::Value(const ProjectObject&)> write;
    /// Sets the content of an object from the result of write. Throws a std::exception, and leaves the object as it
    /// was, if the content cannot be read.
    std::function<void(ProjectObject&, const Json::Value&)> read;
};

/// Carries the content that projects of a module hold besides properties and objects, into project files and back;
/// see ContentCodec.
struct ProjectCodec
{
    std::function<Json::Value(const Project&)> write;
    std::function<void(Project&, const Json::Value&)> read;
};

/// Registers the codec of a class and of its descendants without their own codec. A later codec of a
/// class replaces an earlier one.
OBJ_EXPORT void registerContentCodec(const std::string& className, ContentCodec codec);
OBJ_EXPORT void registerProjectCodec(const std::string& className, ProjectCodec codec);

/// Returns the codec of a type or of its nearest ancestor that has one; null if there is none.
OBJ_EXPORT const ContentCodec* findContentCodec(Kelta::TypeInfo type);
OBJ_EXPORT const ProjectCodec* findProjectCodec(Kelta::TypeInfo type);

} // namespace Obj
