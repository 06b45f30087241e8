#include "commands/StandardCommands.h"

#include "commands/EditingCommands.h"
#include "commands/WindowCommands.h"

namespace Gui {

void addStandardCommands(CommandController& commands, TreeSelectionSingleton& selection)
{
    addEditingCommands(commands, selection);
    addWindowCommands(commands);
}

} // namespace Gui
