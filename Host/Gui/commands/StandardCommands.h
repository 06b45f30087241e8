#pragma once

namespace Gui {

class CommandController;
class TreeSelectionSingleton;

/// Gives the commands of the host, "Std_...", to the command manager. Those that act on a selection act on `selection`,
/// which must outlive them.
void addStandardCommands(CommandController& commands, TreeSelectionSingleton& selection);

} // namespace Gui
