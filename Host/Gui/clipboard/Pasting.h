#pragma once

#include "Gui/CopyLabels.h"

#include <json/value.h>

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace Gui {

class GuiApplication;

/// Adds described objects to a project in two steps: first the objects, then the references and links between them.
class Pasting
{
public:
    Pasting(GuiApplication& application, Obj::Project& project)
        : m_application(application), m_project(project), m_labels(project)
    {}

    /// Returns whether the project takes all of these objects. If not, the message log names the object it refuses.
    bool takesAll(const Json::Value& descriptions) const;
    /// Adds one object. Throws std::exception, and adds nothing, if the description cannot be read.
    void add(const Json::Value& description);
    /// Sets the properties, links and groups of all added objects, and returns the objects that are in the project.
    std::vector<Obj::ProjectObject*> finish();

private:
    bool takes(const Json::Value& description) const;
    Obj::ProjectObject* makeObject(const Json::Value& description) const;
    std::string nameFor(const Json::Value& description) const;
    void complete(Obj::ProjectObject& object, const Json::Value& description) const;
    void readProperties(Obj::ProjectObject& object, const Json::Value& description) const;
    void readLinks(Obj::ProjectObject& object, const Json::Value& description) const;
    void joinGroup(Obj::ProjectObject& object, const Json::Value& description) const;
    bool isFromHere(const Json::Value& description) const;
    std::uint32_t copyOf(const Json::Value& description, std::uint32_t id) const;
    std::uint32_t copyOrOriginalOf(const Json::Value& description, std::uint32_t id) const;

    struct Pasted
    {
        std::uint32_t objectId;
        Json::Value description;
    };

    GuiApplication& m_application;
    Obj::Project& m_project;
    std::vector<Pasted> m_pasted;
    CopyLabels m_labels;
    std::map<std::pair<std::string, std::uint32_t>, std::uint32_t> m_copies; ///< new ids by project and old id
};

} // namespace Gui
