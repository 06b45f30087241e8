#pragma once

class QUndoStack;

namespace Gui {

class CommandController;
class TreeSelectionSingleton;

/// Adds "Std_Undo" and "Std_Redo". They act on the edits of the document in which the user works, and otherwise on the
/// history of the projects. Their texts name the step. Afterwards, the objects that the step has added or changed are
/// selected.
void addHistoryCommands(CommandController& commands, QUndoStack& history, TreeSelectionSingleton& selection);

} // namespace Gui
