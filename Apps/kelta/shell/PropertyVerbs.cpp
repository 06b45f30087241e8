#include "PropertyVerbs.h"

#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/MessageLog.h"
#include "Obj/ProjectObject.h"
#include "kelta/Batch.h"
#include "vxMsg/MessageProxy.h"
#include "vxMsg/PropertyPlace.h"

#include <QCoreApplication>
#include <QTextStream>

namespace desktop {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::Batch", text);
}

/// Returns the selected object; null unless exactly one is selected.
Obj::ProjectObject* selectedObject()
{
    const auto objects =
        Gui::TreeSelectionSingleton::instance().get_objects_of_type(Obj::ProjectObject::getClassTypeId());
    return objects.size() == 1 ? objects.front() : nullptr;
}

std::optional<QString> set(Obj::ProjectObject& object, const QString& name, const QString& value)
{
    if (object.get_property_by_name(name.toUtf8().constData()) == nullptr)
        return tr(R"("%1" has no property "%2")").arg(QString::fromStdString(object.label.getValue()), name);
    // If the request is refused, the reason is in the message log, and Batch fails with this reason.
    vxMsg::MessageProxy::instance().setProperty(vxMsg::PropertyPlace(object), name.toStdString(), value.toStdString());
    return std::nullopt;
}

} // namespace

std::optional<QString> setProperty(const QStringList& arguments)
{
    Obj::ProjectObject* const object = selectedObject();
    if (arguments.size() != 2 || object == nullptr)
        return tr("give the name of a property and a value, and select exactly one object");
    return set(*object, arguments[0], arguments[1]);
}

std::optional<QString> setLabel(const QStringList& arguments)
{
    Obj::ProjectObject* const object = selectedObject();
    if (arguments.size() != 1 || object == nullptr)
        return tr("give a label, and select exactly one object");
    return set(*object, QStringLiteral("Label"), arguments[0]);
}

std::optional<QString> printProperties(const QStringList& arguments)
{
    const Obj::ProjectObject* const object = selectedObject();
    if (!arguments.isEmpty() || object == nullptr)
        return tr("select exactly one object, and give no argument");
    std::vector<Obj::Property*> properties;
    object->get_property_array(properties);
    QString text;
    QTextStream out(&text);
    for (const Obj::Property* const property : properties) {
        if (object->is_hidden(property))
            continue;
        const std::string value = property->toText();
        out << object->get_property_name(property) << (value.empty() ? " =" : " = ") << QString::fromStdString(value)
            << '\n';
    }
    return Batch::print(text);
}

} // namespace desktop
