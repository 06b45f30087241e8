#include "PropertyVerbs.h"

#include "Gui/GuiApplication.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Kelta/MessageLog.h"
#include "Obj/ProjectObject.h"
#include "kelta/Batch.h"
#include "vxMsg/MessageProxy.h"

#include <QCoreApplication>
#include <QTextStream>

#include <vector>

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

/// Returns the properties that the user sees of an object: its own, then those of its tree node.
std::vector<const Obj::PropertyDS*> propertySets(Obj::ProjectObject& object)
{
    std::vector<const Obj::PropertyDS*> sets = {&object};
    if (const Obj::PropertyDS* const node = Gui::GuiApplication::Instance->get_view_feeder(&object))
        sets.push_back(node);
    return sets;
}

/// Returns the values that a color takes if a text is not one of them.
std::optional<QString> refuseColor(const Obj::Property& property, const QString& name, const QString& value)
{
    if (dynamic_cast<const Obj::PropertyColor*>(&property) == nullptr ||
        Obj::PropertyColor().fromText(value.toStdString()))
        return std::nullopt;
    return tr(R"("%1" is not a value of "%2": give red, green, blue and opacity as four numbers from 0 to 1, "0.5, 0, 0, 1")")
        .arg(value, name);
}

std::optional<QString> set(Obj::ProjectObject& object, const QString& name, const QString& value)
{
    for (const Obj::PropertyDS* const owner : propertySets(object))
        if (const Obj::Property* const property = owner->get_property_by_name(name.toUtf8().constData())) {
            if (auto refusal = refuseColor(*property, name, value))
                return refusal;
            // If the request is refused, the reason is in the message log, and Batch fails with this reason.
            vxMsg::MessageProxy::instance().setProperty(Gui::GuiApplication::Instance->placeOf(*owner),
                                                        name.toStdString(), value.toStdString());
            return std::nullopt;
        }
    return tr(R"("%1" has no property "%2")").arg(QString::fromStdString(object.label.getValue()), name);
}

void print(const Obj::PropertyDS& owner, QTextStream& out)
{
    std::vector<Obj::Property*> properties;
    owner.get_property_array(properties);
    for (const Obj::Property* const property : properties) {
        if (owner.is_hidden(property))
            continue;
        const std::string value = property->toText();
        out << owner.get_property_name(property) << (value.empty() ? " =" : " = ") << QString::fromStdString(value)
            << '\n';
    }
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
    Obj::ProjectObject* const object = selectedObject();
    if (!arguments.isEmpty() || object == nullptr)
        return tr("select exactly one object, and give no argument");
    QString text;
    QTextStream out(&text);
    for (const Obj::PropertyDS* const owner : propertySets(*object))
        print(*owner, out);
    return Batch::print(text);
}

} // namespace desktop
