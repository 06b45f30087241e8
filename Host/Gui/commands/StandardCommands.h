#pragma once

namespace Gui {

class GuiApplication;
class TreeSelectionSingleton;

/// Adds the commands of the host, "Std_...", to the command manager of `application`. Commands for a selection act on
/// `selection`, which must outlive them.
void addStandardCommands(GuiApplication& application, TreeSelectionSingleton& selection);

} // namespace Gui
