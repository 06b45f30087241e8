#pragma once

namespace Gui {

class CommandController;

/// Gives the standard commands about the main window to the command manager: docks, messages, documents, About, the end
/// of the program. They act on the main window that exists when they run.
void addWindowCommands(CommandController& commands);

} // namespace Gui
