#pragma once

#include <string>

namespace Obj {
class Project;
} // namespace Obj

namespace Gui {

class CommandController;
class Contributions;
struct WorkbenchEntry;

/// Makes the missing command of each workbench of a module. The command activates the workbench, and has a
/// check mark while the workbench is active.
void addWorkbenchCommands(const Contributions& contributions, CommandController& commands);

/// Returns the name of the command that activates a workbench.
std::string commandOfWorkbench(const std::string& className);

/// Returns the workbench that a module contributes for the class of `project`, or for its nearest ancestor with one;
/// null if there is none.
const WorkbenchEntry* workbenchOf(const Obj::Project& project, const Contributions& contributions);

} // namespace Gui
