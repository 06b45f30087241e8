#include "workbench/MenuBuilder.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <memory>

namespace Gui {

namespace {

QAction* actionOf(const std::string& commandName)
{
    Command* const command = GuiApplication::Instance->get_command_manager().find_command(commandName);
    if (command == nullptr)
        return nullptr;
    QObject* const parent = MainWindow::get_main_window_inst();
    QAction* const action =
        command->action() != nullptr || parent == nullptr ? command->action() : command->new_action(parent);
    if (action != nullptr)
        action->setEnabled(command->is_applicable());
    return action;
}

template <typename Widget, typename Tree>
// NOLINTNEXTLINE(misc-no-recursion): menus are a few levels deep
QAction* actionOfItem(Widget& widget, const Tree& item);

/// Separators stand between commands, never at the ends or side by side.
template <typename Widget, typename Tree>
// NOLINTNEXTLINE(misc-no-recursion): menus are a few levels deep
void addCommands(Widget& widget, const Tree& items)
{
    bool separatorIsDue = false;
    for (const auto& item : items.items()) {
        if (item->is_separator()) {
            separatorIsDue = !widget.actions().isEmpty();
            continue;
        }
        QAction* const action = actionOfItem(widget, *item);
        if (action == nullptr)
            continue;
        if (separatorIsDue)
            widget.addSeparator();
        separatorIsDue = false;
        widget.addAction(action);
    }
}

/// Null for a command that there is not, and for a menu without commands.
template <typename Widget, typename Tree>
// NOLINTNEXTLINE(misc-no-recursion): menus are a few levels deep
QAction* actionOfItem(Widget& widget, const Tree& item)
{
    if (!item.has_items())
        return actionOf(item.command());
    auto menu = std::make_unique<QMenu>(QCoreApplication::translate("Workbench", item.command().c_str()), &widget);
    addCommands(*menu, item);
    return menu->isEmpty() ? nullptr : menu.release()->menuAction();
}

} // namespace

void fillMenu(QMenu& menu, const MenuItem& items)
{
    if (!menu.isEmpty())
        menu.addSeparator();
    addCommands(menu, items);
}

void fillMenuBar(QMenuBar& bar, const MenuItem& menus)
{
    bar.clear();
    // The bar owns menus that it no longer shows.
    qDeleteAll(bar.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    for (const auto& item : menus.items()) {
        QMenu* const menu = bar.addMenu(QCoreApplication::translate("Workbench", item->command().c_str()));
        addCommands(*menu, *item);
        menu->menuAction()->setVisible(!menu->isEmpty());
    }
}

void fillToolBar(QToolBar& bar, const ToolBarGadget& items)
{
    bar.clear();
    qDeleteAll(bar.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    addCommands(bar, items);
}

} // namespace Gui
