#pragma once

namespace Gui {
class MainWindow;
} // namespace Gui

namespace desktop {

/// Shows the names of the active document, the current project and the program in the title of the window. The title has
/// the mark of a modified window while the project has changes that are not saved, or edits that are not applied. Needs
/// the file service.
void updateTitle(Gui::MainWindow& window);

} // namespace desktop
