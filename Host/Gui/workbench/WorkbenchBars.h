#pragma once

#include "Gui/CommandTree.h"

#include <Qt>

#include <memory>

class QMainWindow;

namespace Gui {

class CommandController;
class Contributions;
class StdSimModule;

/// The menus and toolbars of a main window, from its workbench and from modules.
class WorkbenchBars
{
public:
    WorkbenchBars(QMainWindow& window, const CommandController& commands, const Contributions& contributions);

    /// Replaces all menus and toolbars with those of `workbench`. Toolbars that existed before keep their places.
    void build(const StdSimModule& workbench);

private:
    std::unique_ptr<MenuItem> makeMenus(const StdSimModule& workbench) const;
    std::unique_ptr<ToolBarGadget> makeToolBars(const StdSimModule& workbench) const;
    void addToolBars(const ToolBarGadget& bars, Qt::ToolBarArea area) const;

    QMainWindow& m_window;
    const CommandController& m_commands;
    const Contributions& m_contributions;
};

} // namespace Gui
