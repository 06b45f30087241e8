#pragma once

namespace Gui {

class CommandController;

/// Adds the standard commands for the main window to the command manager: docks, messages, documents, About, quitting
/// the program. They act on the main window that exists when they run.
void addWindowCommands(CommandController& commands);

} // namespace Gui
