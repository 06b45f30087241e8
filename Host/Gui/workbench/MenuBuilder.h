#pragma once

#include "Gui/CommandTree.h"

class QAction;
class QMenu;
class QMenuBar;
class QObject;
class QToolBar;

namespace Gui {

class CommandController;

/// Makes menus and toolbars from trees of command names. All entries of a command share its action, which shows the
/// present state of the command. Names without a command and menus without commands are left out.
class MenuBuilder
{
public:
    /// `actionOwner` owns the actions that the builder makes.
    MenuBuilder(const CommandController& commands, QObject& actionOwner)
        : m_commands(commands), m_actionOwner(actionOwner)
    {}

    /// Adds the commands of a tree to a menu. Items with children become submenus.
    void fillMenu(QMenu& menu, const MenuItem& items) const;
    /// Replaces the menus of a menu bar.
    void fillMenuBar(QMenuBar& bar, const MenuItem& menus) const;
    /// Replaces the commands of a toolbar.
    void fillToolBar(QToolBar& bar, const ToolBarGadget& items) const;

private:
    template <typename Widget, typename Tree>
    // NOLINTNEXTLINE(misc-no-recursion): menus are a few levels deep
    void addCommands(Widget& widget, const Tree& items) const;
    template <typename Widget, typename Tree>
    // NOLINTNEXTLINE(misc-no-recursion): menus are a few levels deep
    QAction* actionOfItem(Widget& widget, const Tree& item) const;
    QAction* actionOf(const std::string& commandName) const;

    const CommandController& m_commands;
    QObject& m_actionOwner;
};

} // namespace Gui
