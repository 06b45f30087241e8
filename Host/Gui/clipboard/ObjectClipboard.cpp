#include "Gui/ObjectClipboard.h"

#include "Kelta/Exceptions.h"
#include "Obj/Project.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>
#include <QMimeData>
#include <json/reader.h>
#include <json/writer.h>

#include <locale>
#include <map>
#include <memory>
#include <sstream>
#include <utility>

namespace Gui {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Gui::ObjectClipboard", text);
}

std::map<std::string, ObjectCodec>& codecs()
{
    static std::map<std::string, ObjectCodec> registered;
    return registered;
}

Json::Value describe(const Obj::ProjectObject& object)
{
    const std::string className = object.getTypeId().get_name();
    Json::Value description;
    description["class"] = className;
    description["label"] = object.label.getValue();
    description["suppressed"] = object.isSuppressed();
    const auto codec = codecs().find(className);
    if (codec != codecs().end())
        description["content"] = codec->second.write(object);
    return description;
}

/// Null for a text that is none of ours.
Json::Value parse(const QByteArray& text)
try {
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    Json::Value root;
    std::string errors;
    const bool ok = reader->parse(text.constData(), text.constData() + text.size(), &root, &errors);
    return ok && root.isObject() && root["kelta_objects"] == Json::Value(1) && root["objects"].isArray()
               ? root
               : Json::Value();
} catch (const Json::Exception&) {
    // Nested deeper than the reader goes along with.
    return {};
}

/// Throws when the content cannot be read. Tried on an object of its own, since one that is in a project would leave its
/// traces in the history.
void checkContent(const std::string& className, const ObjectCodec& codec, const Json::Value& content)
{
    const std::unique_ptr<Kelta::RootClass> created = Kelta::RootClass::create_by_name(className.c_str());
    if (auto* const object = dynamic_cast<Obj::ProjectObject*>(created.get()))
        codec.read(*object, content);
}

/// Null when the class is not known or the content cannot be read; nothing has been added then.
Obj::ProjectObject* addDescribed(const Json::Value& description, Obj::Project& project)
{
    const std::string className = description.get("class", "").asString();
    const std::string label = description.get("label", "").asString();
    const bool suppressed = description.get("suppressed", false).asBool();
    const auto codec = codecs().find(className);
    const bool hasContent = codec != codecs().end() && description.isMember("content");
    if (hasContent)
        checkContent(className, codec->second, description["content"]);
    Obj::ProjectObject* const object =
        project.add_object(className.c_str(), project.get_unique_object_name("Material"));
    if (object == nullptr)
        return nullptr;
    object->label.setValue(label);
    if (hasContent)
        codec->second.read(*object, description["content"]);
    object->setSuppressed(suppressed);
    object->check_input();
    return object;
}

QByteArray textOf(const QMimeData* data)
{
    if (data == nullptr)
        return {};
    const QString type = QString::fromLatin1(ObjectClipboard::mimeType);
    return data->hasFormat(type) ? data->data(type) : data->text().toUtf8();
}

} // namespace

void ObjectClipboard::register_codec(const std::string& className, ObjectCodec codec)
{
    codecs()[className] = std::move(codec);
}

QByteArray ObjectClipboard::write(const std::vector<Obj::ProjectObject*>& objects)
{
    Json::Value root;
    root["kelta_objects"] = 1;
    Json::Value& descriptions = root["objects"] = Json::Value(Json::arrayValue);
    for (const Obj::ProjectObject* const object : objects)
        descriptions.append(describe(*object));
    return QByteArray::fromStdString(Json::writeString(Json::StreamWriterBuilder(), root));
}

std::vector<Obj::ProjectObject*> ObjectClipboard::read(const QByteArray& text, Obj::Project& project)
{
    std::vector<Obj::ProjectObject*> added;
    const Json::Value root = parse(text);
    for (const Json::Value& description : root["objects"]) {
        try {
            if (Obj::ProjectObject* const object = addDescribed(description, project))
                added.push_back(object);
        } catch (...) {
            Kelta::reportException(tr("An object cannot be pasted"));
        }
    }
    return added;
}

void ObjectClipboard::copy(const std::vector<Obj::ProjectObject*>& objects)
{
    const QByteArray text = write(objects);
    auto data = std::make_unique<QMimeData>();
    data->setData(QString::fromLatin1(mimeType), text);
    data->setText(QString::fromUtf8(text));
    QGuiApplication::clipboard()->setMimeData(data.release());
}

bool ObjectClipboard::holds_objects()
{
    // Asked after every change in the program, and the text may be long.
    static bool known = false;
    static bool holds = false;
    static const QMetaObject::Connection forgetting =
        QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, [] { known = false; });
    if (!known)
        holds = !parse(textOf(QGuiApplication::clipboard()->mimeData())).isNull();
    known = true;
    return holds;
}

std::vector<Obj::ProjectObject*> ObjectClipboard::paste(Obj::Project& project)
{
    return read(textOf(QGuiApplication::clipboard()->mimeData()), project);
}

} // namespace Gui
