#pragma once

namespace Gui {

class GuiApplication;
class TreeSelectionSingleton;

/// Adds the standard commands for projects and objects to the command manager of `application`: undo and redo, the
/// clipboard, suppression, labels, the hand-over to the solver. They act on `selection`, which must outlive them.
void addEditingCommands(GuiApplication& application, TreeSelectionSingleton& selection);

} // namespace Gui
