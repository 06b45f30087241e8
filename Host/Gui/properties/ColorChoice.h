#pragma once

#include "vxMsg/PropertyPlace.h"

#include <QColor>

#include <string>
#include <vector>

class QWidget;

namespace Obj {
class Property;
class PropertyColor;
class PropertyDS;
} // namespace Obj

namespace vxMsg {
class MessageProxy;
} // namespace vxMsg

/// Colours that the user chooses in a dialog.
namespace Gui {

/// Returns the colour that a property holds, without its fourth component.
QColor toQColor(const Obj::PropertyColor& property);

/// Returns the first colour among the properties of `owner` that the user may change; null if there is none. For the
/// node of an object it is the colour of the object in views.
const Obj::PropertyColor* findColor(const Obj::PropertyDS& owner);

/// A property with a colour, by the place of its owner.
struct ColorPlace
{
    vxMsg::PropertyPlace owner;
    std::string property;
};

/// Opens a dialog in front of `parent` in which the user chooses a colour. Then sets all properties to the colour, as
/// one step of the history; their fourth components are kept. Returns at once. The dialog begins with the colour of the
/// first property. Does nothing if there are no places.
void chooseColor(QWidget& parent, vxMsg::MessageProxy& requests, const std::vector<ColorPlace>& places);

} // namespace Gui
