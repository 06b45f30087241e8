#include "properties/ColorChoice.h"

#include "Kelta/Exceptions.h"
#include "Obj/Property.h"
#include "Obj/PropertyDS.h"
#include "vxMsg/MessageProxy.h"

#include <QColorDialog>
#include <QCoreApplication>

namespace Gui {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Gui::ColorChoice", text);
}

/// Returns null if the owner is absent.
const Obj::PropertyColor* findColor(const ColorPlace& place)
{
    const Obj::PropertyDS* const owner = place.owner.find();
    const Obj::Property* const property =
        owner != nullptr ? owner->get_property_by_name(place.property.c_str()) : nullptr;
    return dynamic_cast<const Obj::PropertyColor*>(property);
}

void setColors(vxMsg::MessageProxy& requests, const std::vector<ColorPlace>& places, const QColor& color)
{
    const vxMsg::MessageProxy::Group oneStep(tr("Choose color"));
    for (const ColorPlace& place : places) {
        const Obj::PropertyColor* const property = findColor(place);
        if (property == nullptr)
            continue;
        Obj::PropertyColor chosen({static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
                                   static_cast<float>(color.blueF()), property->getValue().alpha});
        requests.setProperty(place.owner, place.property, chosen.toText());
    }
}

} // namespace

QColor toQColor(const Obj::PropertyColor& property)
{
    const Obj::Color& value = property.getValue();
    return QColor::fromRgbF(static_cast<double>(value.red), static_cast<double>(value.green),
                            static_cast<double>(value.blue));
}

const Obj::PropertyColor* findColor(const Obj::PropertyDS& owner)
{
    std::vector<Obj::Property*> properties;
    owner.get_property_array(properties);
    for (const Obj::Property* const property : properties)
        if (const auto* const color = dynamic_cast<const Obj::PropertyColor*>(property))
            if (!owner.is_hidden(color) && !owner.is_read_only(color))
                return color;
    return nullptr;
}

void chooseColor(QWidget& parent, vxMsg::MessageProxy& requests, const std::vector<ColorPlace>& places)
{
    const Obj::PropertyColor* const first = places.empty() ? nullptr : findColor(places.front());
    if (first == nullptr)
        return;
    auto* const dialog = new QColorDialog(toQColor(*first), &parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Choose color"));
    QObject::connect(dialog, &QColorDialog::colorSelected, dialog, [&requests, places](const QColor& color) {
        Kelta::guarded(tr("The color cannot be set"), [&] { setColors(requests, places, color); });
    });
    dialog->open();
}

} // namespace Gui
