#pragma once

namespace Gui {

class CommandController;

/// Gives the commands of the host, "Std_...", to the command manager.
void addStandardCommands(CommandController& commands);

} // namespace Gui
