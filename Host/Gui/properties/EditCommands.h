#pragma once

#include "Gui/GuiExport.h"

#include <string>

namespace Obj {
class PropertyDS;
class ProjectObject;
} // namespace Obj

namespace Gui {

/// Sets a property of an object, its project or its tree node from a text, as one undoable step. False when the text
/// cannot be read, or is a label that shows nothing; nothing has changed then. A text that is the present one makes no
/// step.
GUI_EXPORT bool editProperty(Obj::PropertyDS& owner, const char* name, const std::string& text);

/// Suppresses an object or takes it into use again, as one undoable step.
GUI_EXPORT void setSuppressed(Obj::ProjectObject& object, bool suppressed);

} // namespace Gui
