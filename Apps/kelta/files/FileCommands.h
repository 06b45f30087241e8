#pragma once

namespace Gui {
class CommandController;
class Contributions;
} // namespace Gui

namespace desktop {

class ProjectFiles;

/// Adds the commands about project files to the command manager: "Std_Open", "Std_OpenRecent", "Std_Save", "Std_SaveAs"
/// and "Std_ImportDocument". `files` must outlive their use. From then on the command "Std_Collect" asks about edits
/// that are not applied, before it hands a project over to the solver. Must be called once.
void addFileCommands(Gui::CommandController& commands, ProjectFiles& files);

/// Lists the recent files on the welcome page. `files` opens them and must outlive the window. Must be called once.
void listRecentFilesOnWelcomePage(Gui::Contributions& contributions, ProjectFiles& files);

} // namespace desktop
