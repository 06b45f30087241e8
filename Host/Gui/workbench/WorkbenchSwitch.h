#pragma once

#include <string>

namespace Obj {
class Project;
} // namespace Obj

namespace Gui {

class CommandController;
class Contributions;
struct WorkbenchEntry;

/// Makes a command for each workbench of modules that has none yet: it makes the workbench the active one, and has a
/// check mark while the workbench is active.
void addWorkbenchCommands(const Contributions& contributions, CommandController& commands);

/// The name of the command that makes a workbench the active one.
std::string commandOfWorkbench(const std::string& className);

/// Returns the workbench that modules have brought for the class of `project`, or for its nearest ancestor that has one;
/// null if there is none.
const WorkbenchEntry* workbenchOf(const Obj::Project& project, const Contributions& contributions);

} // namespace Gui
