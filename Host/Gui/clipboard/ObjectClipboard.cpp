#include "Gui/ObjectClipboard.h"

#include "Gui/GuiApplication.h"
#include "Kelta/Exceptions.h"
#include "Obj/Project.h"
#include "clipboard/ObjectDescription.h"
#include "clipboard/Pasting.h"
#include "vxMsg/MessageProxy.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QMimeData>
#include <json/reader.h>
#include <json/writer.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace Gui {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Gui::ObjectClipboard", text);
}

bool holdsObjects(const Json::Value& root)
{
    return root.isObject() && root["kelta_objects"] == Json::Value(1) && root["objects"].isArray();
}

/// Returns null for a text of another kind.
Json::Value parse(const QByteArray& text)
try {
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    Json::Value root;
    std::string errors;
    const bool isJson = reader->parse(text.constData(), text.constData() + text.size(), &root, &errors);
    return isJson && holdsObjects(root) ? root : Json::Value();
} catch (const Json::Exception&) {
    // The text is nested too deeply for the reader.
    return {};
}

QByteArray textOf(const QMimeData* data)
{
    if (data == nullptr)
        return {};
    const QString type = QString::fromLatin1(ObjectClipboard::mimeType);
    return data->hasFormat(type) ? data->data(type) : data->text().toUtf8();
}

void addTo(Pasting& pasting, const Json::Value& description)
{
    Kelta::guarded(translated("An object cannot be pasted"), [&] { pasting.add(description); });
}

} // namespace

ObjectClipboard::ObjectClipboard(GuiApplication& application) : m_application(application)
{
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] { m_isKnown = false; });
}

ObjectClipboard::~ObjectClipboard() = default;

QByteArray ObjectClipboard::write(const std::vector<Obj::ProjectObject*>& objects) const
{
    Json::Value root;
    root["kelta_objects"] = 1;
    Json::Value& descriptions = root["objects"] = Json::Value(Json::arrayValue);
    for (Obj::ProjectObject* const object : objects)
        descriptions.append(describeObject(m_application, *object));
    return QByteArray::fromStdString(Json::writeString(Json::StreamWriterBuilder(), root));
}

std::vector<Obj::ProjectObject*> ObjectClipboard::read(const QByteArray& text, Obj::Project& project) const
{
    const Json::Value root = parse(text);
    const vxMsg::MessageProxy::Group oneStep(translated("Paste"));
    Pasting pasting(m_application, project);
    if (root.isNull() || !pasting.takesAll(root["objects"]))
        return {};
    for (const Json::Value& description : root["objects"])
        addTo(pasting, description);
    return pasting.finish();
}

std::vector<Obj::ProjectObject*> ObjectClipboard::duplicate(const std::vector<Obj::ProjectObject*>& objects) const
{
    const vxMsg::MessageProxy::Group oneStep(translated("Duplicate"));
    std::vector<std::pair<Obj::Project*, Pasting>> pastings;
    for (Obj::ProjectObject* const object : objects) {
        // Listeners of one copy may delete the next object.
        if (object->get_project() == nullptr)
            continue;
        if (pastings.empty() || pastings.back().first != object->get_project())
            pastings.emplace_back(object->get_project(), Pasting(m_application, *object->get_project()));
        addTo(pastings.back().second, describeObject(m_application, *object));
    }
    std::vector<Obj::ProjectObject*> copies;
    for (auto& [project, pasting] : pastings) {
        const std::vector<Obj::ProjectObject*> added = pasting.finish();
        copies.insert(copies.end(), added.begin(), added.end());
    }
    copies.erase(std::remove_if(copies.begin(), copies.end(),
                                [](const Obj::ProjectObject* copy) { return copy->get_project() == nullptr; }),
                 copies.end());
    return copies;
}

void ObjectClipboard::copy(const std::vector<Obj::ProjectObject*>& objects) const
{
    const QByteArray text = write(objects);
    auto data = std::make_unique<QMimeData>();
    data->setData(QString::fromLatin1(mimeType), text);
    data->setText(QString::fromUtf8(text));
    QGuiApplication::clipboard()->setMimeData(data.release());
}

bool ObjectClipboard::holdsObjects()
{
    // Called after every change in the program, and the text may be long.
    if (!m_isKnown)
        m_holdsObjects = !parse(textOf(QGuiApplication::clipboard()->mimeData())).isNull();
    m_isKnown = true;
    return m_holdsObjects;
}

std::vector<Obj::ProjectObject*> ObjectClipboard::paste(Obj::Project& project) const
{
    return read(textOf(QGuiApplication::clipboard()->mimeData()), project);
}

} // namespace Gui
