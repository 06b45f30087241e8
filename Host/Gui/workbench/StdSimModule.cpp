#include "Gui/StdSimModule.h"

#include <initializer_list>
#include <memory>

namespace Gui {

namespace {

/// A section of a menu or toolbar. Sections without commands are places for the commands of modules.
struct Section
{
    const char* name = "";
    SectionLine line = SectionLine::Shown;
    std::initializer_list<const char*> commands;
};

constexpr SectionLine line = SectionLine::Shown;
constexpr SectionLine noLine = SectionLine::Hidden;

/// A menu or toolbar.
template <typename Item>
Item* makeGroup(const char* text, std::initializer_list<Section> sections)
{
    auto group = std::make_unique<Item>();
    group->setCommand(text);
    for (const Section& section : sections) {
        group->beginSection(section.name, section.line);
        for (const char* const command : section.commands)
            *group << command;
    }
    return group.release();
}

MenuItem* makeFileMenu()
{
    return makeGroup<MenuItem>("&File", {{"New", noLine, {}},
                                         {"Open", noLine, {"Std_Open", "Std_OpenRecent"}},
                                         {"Save", line, {"Std_Save", "Std_SaveAs"}},
                                         {"Import", line, {}},
                                         {"Close", line, {"Std_CloseProject"}},
                                         {"Quit", noLine, {"Std_Quit"}}});
}

MenuItem* makeEditMenu()
{
    return makeGroup<MenuItem>("&Edit",
                               {{"Undo", line, {"Std_Undo", "Std_Redo"}},
                                {"Clipboard", line, {"Std_Copy", "Std_Paste", "Std_DuplicateSelection", "Std_Delete"}},
                                {"Select", line, {"Std_Find", "Std_SelectAll", "Std_Rename", "Std_Color"}},
                                {"Suppress", line, {"Std_Suppress", "Std_Unsuppress"}},
                                {"Preferences", line, {"Std_Preferences"}}});
}

MenuItem* makeProjectMenu()
{
    return makeGroup<MenuItem>("&Project", {{"Add", line, {}}, {"Import", line, {}}, {"Solve", line, {"Std_Collect"}}});
}

MenuItem* makeViewMenu()
{
    return makeGroup<MenuItem>("&View",
                               {{"Docks", line, {"Std_ProjectExplorer", "Std_PropertyPanel", "Std_MessageLog"}},
                                {"Bars", noLine, {"Std_ToolBars"}},
                                {"Panes", line, {"Std_NextPane", "Std_PreviousPane"}},
                                {"Messages", line, {"Std_ClearMessages"}},
                                {"Language", line, {"Std_Language"}},
                                {"Workbench", line, {}}});
}

MenuItem* makeWindowsMenu()
{
    return makeGroup<MenuItem>("&Windows",
                               {{"Arrange", line, {"Std_TabWindows", "Std_TileWindows", "Std_CascadeWindows"}},
                                {"Close", line, {"Std_CloseWindow", "Std_CloseAllWindows"}}});
}

MenuItem* makeHelpMenu()
{
    return makeGroup<MenuItem>("&Help", {{"Guide", line, {}}, {"About", line, {"Std_About"}}});
}

} // namespace

KELTA_REGISTER_CLASS(Gui::StdSimModule, Kelta::RootClass)

StdSimModule::StdSimModule() = default;

StdSimModule::~StdSimModule() = default;

void StdSimModule::build_context_menu(const char*, MenuItem*) const {}

void StdSimModule::build_context_popup_menu(MenuItem*) const {}

void StdSimModule::activated() {}

void StdSimModule::deactivated() {}

MenuItem* StdSimModule::build_menu_bar() const
{
    auto menus = std::make_unique<MenuItem>();
    *menus << makeFileMenu() << makeEditMenu() << makeProjectMenu() << makeViewMenu() << makeWindowsMenu()
           << makeHelpMenu();
    return menus.release();
}

ToolBarGadget* StdSimModule::build_toolbars() const
{
    auto bars = std::make_unique<ToolBarGadget>();
    *bars << makeGroup<ToolBarGadget>(
        "File", {{"New", noLine, {}}, {"Open", noLine, {"Std_Open", "Std_Save"}}, {"Add", noLine, {}}});
    *bars << makeGroup<ToolBarGadget>(
        "Edit", {{"Undo", line, {"Std_Undo", "Std_Redo"}}, {"Clipboard", line, {"Std_Copy", "Std_Paste"}}});
    return bars.release();
}

ToolBarGadget* StdSimModule::build_message_bars() const
{
    auto bars = std::make_unique<ToolBarGadget>();
    *bars << makeGroup<ToolBarGadget>("Messages", {{"Messages", line, {"Std_ClearMessages"}}});
    return bars.release();
}

ToolBarGadget* StdSimModule::build_docking_windows() const
{
    auto docks = std::make_unique<ToolBarGadget>();
    *docks << "ProjectExplorer"
           << "PropertyPanel";
    return docks.release();
}

} // namespace Gui
