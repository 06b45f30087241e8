#include "clipboard/ObjectDescription.h"

#include "Gui/GuiApplication.h"
#include "Gui/ViewFeeder.h"
#include "Obj/ContentCodec.h"
#include "Obj/Placeholder.h"
#include "Obj/ProjectObjectGroup.h"
#include "Obj/PropertyRecords.h"

#include <QUuid>

namespace Gui {

namespace {

/// Omits members without content.
void addMember(Json::Value& description, const char* name, Json::Value value)
{
    if (!value.isNull())
        description[name] = std::move(value);
}

Json::Value describeContent(const Obj::ProjectObject& object)
{
    const Obj::ContentCodec* const codec = Obj::findContentCodec(object.getTypeId());
    return codec != nullptr ? codec->write(object) : Json::Value();
}

Json::Value describeNode(const GuiApplication& application, Obj::ProjectObject& object)
{
    const ViewFeeder* const node = application.get_view_feeder(&object);
    return node != nullptr ? Obj::writeProperties(*node) : Json::Value();
}

/// The label has its own member.
Json::Value describeProperties(const Obj::ProjectObject& object)
{
    Json::Value properties = Obj::writeProperties(object);
    properties.removeMember("Label");
    return properties.empty() ? Json::Value() : properties;
}

/// Returns texts by name; null if there are none.
Json::Value describeSettings(const Obj::ProjectObject& object)
{
    Json::Value settings;
    for (const auto& [name, text] : object.getSettings())
        settings[name] = text;
    return settings;
}

Json::Value describeOrigin(const Obj::ProjectObject& object)
{
    const Obj::Project& project = *object.get_project();
    Json::Value description;
    description["project"] = originOf(project);
    description["project_class"] = originalClassOf(project);
    description["id"] = object.getObjectId();
    description["name"] = object.get_name_in_project();
    if (const Obj::ProjectObjectGroup* const group = object.getParentGroup())
        description["group"] = group->getObjectId();
    return description;
}

} // namespace

Json::Value describeObject(const GuiApplication& application, Obj::ProjectObject& object)
{
    Json::Value description = describeOrigin(object);
    description["label"] = object.label.getValue();
    description["suppressed"] = object.isSuppressed();
    addMember(description, "links", Obj::writeLinks(object));
    addMember(description, "settings", describeSettings(object));
    if (const auto* const placeholder = dynamic_cast<const Obj::PlaceholderObject*>(&object)) {
        description["class"] = placeholder->getOriginalClass();
        description["record"] = placeholder->getRecord();
        return description;
    }
    description["class"] = object.getTypeId().get_name();
    addMember(description, "properties", describeProperties(object));
    addMember(description, "node", describeNode(application, object));
    addMember(description, "content", describeContent(object));
    return description;
}

std::string originOf(const Obj::Project& project)
{
    static const std::string program = QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
    return program + "/" + std::to_string(project.getProjectId());
}

std::string originalClassOf(const Obj::Project& project)
{
    const auto* const placeholder = dynamic_cast<const Obj::PlaceholderProject*>(&project);
    return placeholder != nullptr ? placeholder->getOriginalClass() : project.getTypeId().get_name();
}

} // namespace Gui
