#pragma once

namespace Gui {
class CommandController;
} // namespace Gui

namespace desktop {

class ProjectFiles;

/// Gives the commands about project files to the command manager: "Std_Open", "Std_OpenRecent", "Std_Save",
/// "Std_SaveAs" and "Std_ImportDocument". `files` must outlive their use.
void addFileCommands(Gui::CommandController& commands, ProjectFiles& files);

} // namespace desktop
