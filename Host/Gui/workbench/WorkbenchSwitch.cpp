#include "workbench/WorkbenchSwitch.h"

#include "Gui/CommandController.h"
#include "Gui/CommandTable.h"
#include "Gui/Contributions.h"
#include "Gui/MainWindow.h"
#include "Gui/StdSimModule.h"
#include "Obj/Project.h"

#include <algorithm>

namespace Gui {

namespace {

void choose(const std::string& className)
{
    if (MainWindow* const window = MainWindow::get_main_window_inst())
        window->chooseWorkbench(className);
}

bool isActive(const std::string& className)
{
    const MainWindow* const window = MainWindow::get_main_window_inst();
    const StdSimModule* const workbench = window != nullptr ? window->getWorkbench() : nullptr;
    return workbench != nullptr && className == workbench->getTypeId().get_name();
}

CommandRow rowOf(const WorkbenchEntry& entry, const std::string& command)
{
    CommandRow row{command.c_str(), entry.title.source, entry.title.source};
    row.run = [name = entry.className] { choose(name); };
    row.isApplicable = [] { return MainWindow::get_main_window_inst() != nullptr; };
    row.isChecked = [name = entry.className] { return isActive(name); };
    return row;
}

} // namespace

void addWorkbenchCommands(const Contributions& contributions, CommandController& commands)
{
    for (const WorkbenchEntry& entry : contributions.workbenches())
        addCommands(commands, entry.title.context, {rowOf(entry, commandOfWorkbench(entry.className))});
}

std::string commandOfWorkbench(const std::string& className)
{
    return "Workbench_" + className;
}

const WorkbenchEntry* workbenchOf(const Obj::Project& project, const Contributions& contributions)
{
    const auto& entries = contributions.workbenches();
    for (Kelta::TypeInfo type = project.getTypeId(); type.namesAType(); type = type.getParent()) {
        const auto found = std::find_if(entries.begin(), entries.end(), [&type](const WorkbenchEntry& entry) {
            return entry.projectClass == type.get_name();
        });
        if (found != entries.end())
            return &*found;
    }
    return nullptr;
}

} // namespace Gui
