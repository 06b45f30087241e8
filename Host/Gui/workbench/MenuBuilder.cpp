#include "workbench/MenuBuilder.h"

#include "Gui/CommandController.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <memory>

namespace Gui {

namespace {

/// Returns the title of a menu in the language of the user.
QString titleOf(const MenuItem& item)
{
    return QCoreApplication::translate("Workbench", item.command().c_str());
}

QString titleOf(const ToolBarGadget& item)
{
    return QCoreApplication::translate("Workbench", item.command().c_str());
}

} // namespace

void MenuBuilder::fillMenu(QMenu& menu, const MenuItem& items) const
{
    if (!menu.isEmpty())
        menu.addSeparator();
    addCommands(menu, items);
}

void MenuBuilder::fillMenuBar(QMenuBar& bar, const MenuItem& menus) const
{
    bar.clear();
    // The bar still owns menus that it does not show any more.
    qDeleteAll(bar.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    for (const auto& item : menus.items()) {
        QMenu* const menu = bar.addMenu(titleOf(*item));
        addCommands(*menu, *item);
        menu->menuAction()->setVisible(!menu->isEmpty());
    }
}

void MenuBuilder::fillToolBar(QToolBar& bar, const ToolBarGadget& items) const
{
    bar.clear();
    qDeleteAll(bar.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    addCommands(bar, items);
}

/// Adds separators only between commands, never at the ends or side by side.
template <typename Widget, typename Tree>
// NOLINTNEXTLINE(misc-no-recursion): menus are a few levels deep
void MenuBuilder::addCommands(Widget& widget, const Tree& items) const
{
    bool separatorIsDue = false;
    for (const auto& item : items.items()) {
        if (item->isSeparator()) {
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

/// Returns null for the beginning of a section, a name without a command, and a menu without commands.
template <typename Widget, typename Tree>
// NOLINTNEXTLINE(misc-no-recursion): menus are a few levels deep
QAction* MenuBuilder::actionOfItem(Widget& widget, const Tree& item) const
{
    if (!item.hasItems())
        return actionOf(item.command());
    auto menu = std::make_unique<QMenu>(titleOf(item), &widget);
    addCommands(*menu, item);
    return menu->isEmpty() ? nullptr : menu.release()->menuAction();
}

QAction* MenuBuilder::actionOf(const std::string& commandName) const
{
    Command* const command = m_commands.findCommand(commandName);
    if (command == nullptr)
        return nullptr;
    QAction* const action = command->action() != nullptr ? command->action() : command->new_action(&m_actionOwner);
    command->updateAction();
    return action;
}

} // namespace Gui
