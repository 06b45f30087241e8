#pragma once

namespace Gui {
class GuiApplication;
} // namespace Gui

namespace desktop {

/// Adds to the window the parts for materials: the command "Mat_Check", the material commands in the menus, toolbars
/// and the tree, texts of the welcome page, a paragraph of the About box, and the workbench. Safe to call more than
/// once.
void registerMaterialContributions(Gui::GuiApplication& application);

} // namespace desktop
