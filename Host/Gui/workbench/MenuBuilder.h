#pragma once

#include "Gui/CommandTree.h"

class QMainWindow;
class QMenu;
class QMenuBar;
class QToolBar;

namespace Gui {

/// Adds the commands of a tree to a menu, with the state that they have now; names of no command are left out.
/// Items with items of their own are menus within it.
void fillMenu(QMenu& menu, const MenuItem& items);
/// Replaces the menus of a menu bar.
void fillMenuBar(QMenuBar& bar, const MenuItem& menus);
/// Replaces the commands of a toolbar.
void fillToolBar(QToolBar& bar, const ToolBarGadget& items);

} // namespace Gui
