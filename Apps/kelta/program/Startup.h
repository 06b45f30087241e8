#pragma once

#include "ProjectFiles.h"

namespace Gui {
class MainWindow;
} // namespace Gui

namespace desktop {

/// Adds project files to the program: their commands, drops on the window, and recovery. Must be called once, before
/// modules are loaded.
void startFiles(Gui::MainWindow& window, ProjectFiles::Options options);

/// Loads all modules and activates their first workbench, or the standard workbench if they have none. Returns false if
/// there is no module, or if one cannot be loaded; the reason is in the message log.
bool loadModules(Gui::MainWindow& window);

/// Closes all projects of a window that the user has closed, and keeps the picture that the next start shows first. Does
/// nothing if the program ends in another way.
void keepStartPicture(Gui::MainWindow& window);

/// Destroys everything that modules have created. Must be called while the modules are still loaded.
void shutDown();

} // namespace desktop
