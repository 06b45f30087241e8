#include "commands/StandardCommands.h"

#include "Gui/GuiApplication.h"
#include "commands/EditingCommands.h"
#include "commands/WindowCommands.h"

namespace Gui {

void addStandardCommands(GuiApplication& application, TreeSelectionSingleton& selection)
{
    addEditingCommands(application, selection);
    addWindowCommands(application.get_command_manager());
}

} // namespace Gui
