#pragma once

namespace Gui {

class CommandController;
class TreeSelectionSingleton;

/// Gives the standard commands about projects and objects to the command manager: undo and redo, the clipboard,
/// suppression, labels, the hand-over to the solver. They act on `selection`, which must outlive them.
void addEditingCommands(CommandController& commands, TreeSelectionSingleton& selection);

} // namespace Gui
