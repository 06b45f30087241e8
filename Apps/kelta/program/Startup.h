#pragma once

namespace Gui {
class MainWindow;
} // namespace Gui

namespace desktop {

/// Gives the program its project files: the commands, drops on the window, recovery. To be called once, before modules
/// are loaded.
void startFiles(Gui::MainWindow& window);

/// Loads all modules and activates the first workbench that they bring, or the standard one if they bring none. Returns
/// whether there are modules and all of them work. What cannot be loaded is reported to the message log.
bool loadModules(Gui::MainWindow& window);

/// Destroys all that modules have made, while the modules are still there.
void shutDown();

} // namespace desktop
