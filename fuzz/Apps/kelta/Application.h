#pragma once

namespace desktop {
class ProjectFiles;
} // namespace desktop

namespace Gui {
class MainWindow;
} // namespace Gui

namespace vxfuzz {

/// Makes the desktop application with its window, files and materials, without a display, in a folder of its own. To be
/// called once.
void startApplication();

Gui::MainWindow& mainWindow();

/// Closes all documents and projects without questions, and empties history, messages and the folder.
void resetApplication();

} // namespace vxfuzz
