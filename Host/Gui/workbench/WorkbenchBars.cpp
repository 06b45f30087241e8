#include "workbench/WorkbenchBars.h"

#include "Gui/CommandController.h"
#include "Gui/Contributions.h"
#include "Gui/StdSimModule.h"
#include "window/DockSet.h"
#include "workbench/MenuBuilder.h"
#include "workbench/WorkbenchSwitch.h"

#include <QMainWindow>
#include <QToolBar>

#include <algorithm>
#include <vector>

namespace Gui {

namespace {

/// Adds `group`, a menu or toolbar, in front of `before`; at the end if `before` is null.
template <typename Tree>
Tree* addGroup(Tree& root, const std::string& group, const Tree* before)
{
    auto item = std::make_unique<Tree>();
    item->setCommand(group);
    Tree* const added = item.get();
    root.insert_item(before, item.release());
    return added;
}

template <typename Tree>
Tree* findGroup(const Tree& root, const std::string& group)
{
    const auto found = std::find_if(root.items().begin(), root.items().end(),
                                    [&group](const auto& item) { return item->command() == group; });
    return found != root.items().end() ? found->get() : nullptr;
}

bool isFor(const CommandPlace& place, const StdSimModule& workbench)
{
    return place.workbench.empty() || workbench.is_inherited_from(Kelta::TypeInfo::find(place.workbench.c_str()));
}

/// Returns the entries of "&View" that show and hide the docks of modules.
std::vector<CommandPlace> dockPlaces(const Contributions& contributions)
{
    std::vector<CommandPlace> places;
    for (const DockEntry& dock : contributions.docks())
        places.push_back({"&View", "Docks", DockSet::commandOf(dock.name)});
    return places;
}

/// Adds the switch between workbenches to "&View" if there are several workbenches.
void addWorkbenchSwitch(MenuItem& menus, const std::vector<WorkbenchEntry>& workbenches)
{
    MenuItem* const view = findGroup(menus, "&View");
    if (view == nullptr || workbenches.size() < 2)
        return;
    auto choices = std::make_unique<MenuItem>();
    choices->setCommand(QT_TRANSLATE_NOOP("Workbench", "&Workbench"));
    for (const WorkbenchEntry& workbench : workbenches)
        *choices << commandOfWorkbench(workbench.className).c_str();
    view->addToSection("Workbench", choices.release());
}

/// Adds the contributions of modules to the trees of a workbench. A missing menu or toolbar is made in front of
/// the menu or toolbar `last`.
template <typename Tree>
void addContributed(Tree& root, const std::vector<CommandPlace>& places, const StdSimModule& workbench,
                    const char* last)
{
    for (const CommandPlace& place : places) {
        if (!isFor(place, workbench))
            continue;
        Tree* const found = findGroup(root, place.group);
        Tree* const group = found != nullptr ? found : addGroup(root, place.group, findGroup(root, std::string(last)));
        auto item = std::make_unique<Tree>();
        item->setCommand(place.command);
        group->addToSection(place.section, item.release());
    }
}

/// A bar above and a bar below may have the same name; menus list both.
QString titleOf(const ToolBarGadget& gadget, Qt::ToolBarArea area)
{
    const QString title = QCoreApplication::translate("Workbench", gadget.command().c_str());
    return area == Qt::BottomToolBarArea ? QCoreApplication::translate("Workbench", "%1 (below)").arg(title) : title;
}

/// The layout is stored by these names. A bar above and a bar below with the same title are two bars.
QString objectNameOf(const ToolBarGadget& gadget, Qt::ToolBarArea area)
{
    return QLatin1String(area == Qt::BottomToolBarArea ? "Bottom" : "") + QString::fromStdString(gadget.command());
}

/// Document windows have their own toolbars, which are not direct children.
QList<QToolBar*> toolBarsOf(const QMainWindow& window)
{
    return window.findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

WorkbenchBars::WorkbenchBars(QMainWindow& window, const CommandController& commands, const Contributions& contributions)
    : m_window(window), m_commands(commands), m_contributions(contributions)
{}

void WorkbenchBars::build(const StdSimModule& workbench)
{
    const QList<QToolBar*> old = toolBarsOf(m_window);
    const QByteArray places = old.isEmpty() ? QByteArray() : m_window.saveState();
    qDeleteAll(old);
    MenuBuilder(m_commands, m_window).fillMenuBar(*m_window.menuBar(), *makeMenus(workbench));
    addToolBars(*makeToolBars(workbench), Qt::TopToolBarArea);
    const std::unique_ptr<ToolBarGadget> messageBars(workbench.build_message_bars());
    addToolBars(*messageBars, Qt::BottomToolBarArea);
    if (!places.isEmpty())
        m_window.restoreState(places);
}

std::unique_ptr<MenuItem> WorkbenchBars::makeMenus(const StdSimModule& workbench) const
{
    std::unique_ptr<MenuItem> menus(workbench.build_menu_bar());
    addContributed(*menus, m_contributions.menuPlaces(), workbench, "&Windows");
    addContributed(*menus, dockPlaces(m_contributions), workbench, "&Windows");
    addWorkbenchSwitch(*menus, m_contributions.workbenches());
    return menus;
}

std::unique_ptr<ToolBarGadget> WorkbenchBars::makeToolBars(const StdSimModule& workbench) const
{
    std::unique_ptr<ToolBarGadget> bars(workbench.build_toolbars());
    addContributed(*bars, m_contributions.toolBarPlaces(), workbench, "");
    return bars;
}

void WorkbenchBars::addToolBars(const ToolBarGadget& bars, Qt::ToolBarArea area) const
{
    for (const auto& gadget : bars.items()) {
        auto bar = std::make_unique<QToolBar>(titleOf(*gadget, area), &m_window);
        MenuBuilder(m_commands, m_window).fillToolBar(*bar, *gadget);
        if (bar->actions().isEmpty())
            continue;
        bar->setObjectName(objectNameOf(*gadget, area));
        m_window.addToolBar(area, bar.release());
    }
}

} // namespace Gui
