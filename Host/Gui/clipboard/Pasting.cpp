#include "clipboard/Pasting.h"

#include "Gui/GuiApplication.h"
#include "Gui/ViewFeeder.h"
#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"
#include "Obj/ContentCodec.h"
#include "Obj/Placeholder.h"
#include "Obj/ProjectObjectGroup.h"
#include "Obj/PropertyRecords.h"
#include "Obj/ReadableName.h"
#include "clipboard/ObjectDescription.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace Gui {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Gui::ObjectClipboard", text);
}

std::string textOf(const Json::Value& description, const char* member)
{
    const Json::Value value = description.isObject() ? description[member] : Json::Value();
    return value.isString() ? value.asString() : std::string();
}

Kelta::TypeInfo typeOf(const Json::Value& description)
{
    return Kelta::TypeInfo::find(textOf(description, "class").c_str());
}

/// Returns whether the object becomes a placeholder: its class is missing both here and in the program of the copy.
bool isPlaceholder(const Json::Value& description)
{
    return description.isObject() && description.isMember("record") && !typeOf(description).namesAType();
}

/// The properties, node and content of an object. They come from the description, or from the record of a former
/// placeholder whose class is now registered.
Json::Value partOf(const Json::Value& description, const char* name)
{
    const Json::Value& whole = description.isMember("record") ? description["record"] : description;
    return whole.isObject() ? whole[name] : Json::Value();
}

/// Throws if the settings are not texts by name.
std::map<std::string, std::string> settingsOf(const Json::Value& description)
{
    const Json::Value& settings = description["settings"];
    std::map<std::string, std::string> texts;
    if (!settings.isNull() && !settings.isObject())
        throw std::runtime_error(tr("The settings are not an object.").toStdString());
    for (const std::string& name : settings.getMemberNames()) {
        if (!settings[name].isString())
            throw std::runtime_error(
                tr("The setting \"%1\" is not a text.").arg(QString::fromStdString(name)).toStdString());
        texts.emplace(name, settings[name].asString());
    }
    return texts;
}

/// Throws if the content cannot be read. The object is outside the project: inside, it would add a step to the history.
void checkContent(const Obj::ContentCodec& codec, Kelta::TypeInfo type, const Json::Value& content)
{
    const std::unique_ptr<Kelta::RootClass> created = Kelta::RootClass::createByName(type.get_name());
    if (auto* const object = dynamic_cast<Obj::ProjectObject*>(created.get()))
        codec.read(*object, content);
}

void warnOfProperties(const Obj::ProjectObject& object, const std::vector<std::string>& names)
{
    if (names.empty())
        return;
    QStringList list;
    for (const std::string& name : names)
        list << Obj::readableName(name.c_str());
    Kelta::MessageLog::warning(
        tr("These properties of \"%1\" could not be pasted: %2.")
            .arg(QString::fromStdString(object.label.getValue()), list.join(QStringLiteral(", "))));
}

} // namespace

bool Pasting::takesAll(const Json::Value& descriptions) const
{
    const auto refused = std::find_if(descriptions.begin(), descriptions.end(),
                                      [this](const Json::Value& description) { return !takes(description); });
    if (refused == descriptions.end())
        return true;
    Kelta::MessageLog::error(
        tr("\"%1\" cannot be pasted into \"%2\": a project of this kind does not take such objects. "
           "Nothing was pasted.")
            .arg(QString::fromStdString(textOf(*refused, "label")), QString::fromUtf8(m_project.get_name())));
    return false;
}

void Pasting::add(const Json::Value& description)
{
    const QString label = QString::fromStdString(description.get("label", "").asString());
    const bool suppressed = description.get("suppressed", false).asBool();
    const std::map<std::string, std::string> settings = settingsOf(description);
    const Json::Value content = partOf(description, "content");
    const Obj::ContentCodec* const codec = content.isNull() ? nullptr : Obj::findContentCodec(typeOf(description));
    if (codec != nullptr)
        checkContent(*codec, typeOf(description), content);
    Obj::ProjectObject* const object = makeObject(description);
    if (object == nullptr)
        return;
    object->label.setValue(m_labels.make(label).toStdString());
    if (codec != nullptr)
        codec->read(*object, content);
    object->setSuppressed(suppressed);
    for (const auto& [name, text] : settings)
        object->setSetting(name, text);
    m_pasted.push_back({object->getObjectId(), description});
    if (description["id"].isUInt())
        m_copies[{textOf(description, "project"), description["id"].asUInt()}] = object->getObjectId();
}

std::vector<Obj::ProjectObject*> Pasting::finish()
{
    std::vector<Obj::ProjectObject*> added;
    for (const Pasted& pasted : m_pasted) {
        if (Obj::ProjectObject* const object = m_project.get_object(pasted.objectId))
            Kelta::guarded(tr("An object cannot be pasted completely"), [&] { complete(*object, pasted.description); });
        if (Obj::ProjectObject* const object = m_project.get_object(pasted.objectId))
            added.push_back(object);
    }
    return added;
}

bool Pasting::takes(const Json::Value& description) const
{
    // The class is missing, so only projects of the class of the source project are known to take the object.
    if (isPlaceholder(description))
        return textOf(description, "project_class") == originalClassOf(m_project);
    const Kelta::TypeInfo type = typeOf(description);
    return !type.is_inherited_from(Obj::ProjectObject::getClassTypeId()) || m_project.canTake(type);
}

/// Returns null, with the reason in the message log, if the object cannot be made.
Obj::ProjectObject* Pasting::makeObject(const Json::Value& description) const
{
    const std::string className = description.get("class", "").asString();
    const std::string name = nameFor(description);
    if (!isPlaceholder(description))
        return m_project.add_object(className.c_str(), name);
    return m_project.add_object(std::make_unique<Obj::PlaceholderObject>(className, description["record"]), name);
}

/// Returns a name like the original's: "Beam3" becomes "Beam7".
std::string Pasting::nameFor(const Json::Value& description) const
{
    const std::string name = textOf(description, "name");
    const std::string stem = name.substr(0, name.find_last_not_of("0123456789") + 1);
    return m_project.get_unique_object_name(stem);
}

void Pasting::complete(Obj::ProjectObject& object, const Json::Value& description) const
{
    readProperties(object, description);
    readLinks(object, description);
    joinGroup(object, description);
    object.check_input();
}

void Pasting::readProperties(Obj::ProjectObject& object, const Json::Value& description) const
{
    if (isPlaceholder(description))
        return;
    const auto newId = [&](std::uint32_t id) { return copyOrOriginalOf(description, id); };
    warnOfProperties(object, Obj::readProperties(object, partOf(description, "properties"), newId));
    if (ViewFeeder* const node = m_application.get_view_feeder(&object))
        warnOfProperties(object, Obj::readProperties(*node, partOf(description, "node"), newId));
}

/// The copy of a group gets only the copies of its members. The members themselves stay in their group.
void Pasting::readLinks(Obj::ProjectObject& object, const Json::Value& description) const
{
    const bool isGroup = object.is_inherited_from(Obj::ProjectObjectGroup::getClassTypeId());
    const auto newId = [&](std::uint32_t id) {
        return isGroup ? copyOf(description, id) : copyOrOriginalOf(description, id);
    };
    // Links to objects that do not exist are left out.
    static_cast<void>(Obj::readLinks(object, description["links"], newId));
}

/// Adds the copy of a member to the member's group if the group is not copied.
void Pasting::joinGroup(Obj::ProjectObject& object, const Json::Value& description) const
{
    if (!isFromHere(description) || !description["group"].isUInt() || object.getParentGroup() != nullptr)
        return;
    auto* const group = dynamic_cast<Obj::ProjectObjectGroup*>(m_project.get_object(description["group"].asUInt()));
    if (group != nullptr && copyOf(description, group->getObjectId()) == 0)
        group->addMember(object);
}

bool Pasting::isFromHere(const Json::Value& description) const
{
    return textOf(description, "project") == originOf(m_project);
}

/// Returns the id of the copy of an object that is also pasted; 0 for another object.
std::uint32_t Pasting::copyOf(const Json::Value& description, std::uint32_t id) const
{
    const auto copy = m_copies.find({textOf(description, "project"), id});
    return copy != m_copies.end() ? copy->second : 0;
}

/// Returns the id of the copy, or the id itself if the object is not pasted but is in the project.
std::uint32_t Pasting::copyOrOriginalOf(const Json::Value& description, std::uint32_t id) const
{
    const std::uint32_t copy = copyOf(description, id);
    return copy == 0 && isFromHere(description) && m_project.get_object(id) != nullptr ? id : copy;
}

} // namespace Gui
