#pragma once

#include "Gui/CommandTree.h"
#include "Gui/GuiExport.h"
#include "Kelta/ClassRegistration.h"

namespace Gui {

/// The standard workbench, and the base class of modules' workbenches: the menus, toolbars and message bars of the main
/// window while the workbench is active. Each call builds new trees; the caller owns them.
///
/// The trees name commands of the host, "Std_...". A program may omit some of these commands: a program without files
/// omits "Std_Open". Contributions of modules are added to the trees afterwards, see Gui::Contributions.
class GUI_EXPORT StdSimModule : public Kelta::RootClass
{
    KELTA_CLASS;

public:
    StdSimModule();
    ~StdSimModule() override;

    /// Adds to the context menu of a part of the window: "Tree" for the project explorer, or "View" for documents that
    /// request it.
    virtual void build_context_menu(const char* recipient, MenuItem* menu) const;
    /// Adds to the context menu of the main window's own bars.
    virtual void build_context_popup_menu(MenuItem* menu) const;
    /// Called after the workbench has become active, and after it has become inactive.
    virtual void activated();
    virtual void deactivated();
    /// Menus and their sections: "&File" (New, Open, Save, Import, Close, Quit), "&Edit" (Undo, Clipboard, Select,
    /// Suppress, Preferences), "&Project" (Add, Import, Solve), "&View" (Docks, Bars, Panes, Messages, Language,
    /// Workbench), "&Windows" (Arrange, Close) and "&Help" (Guide, About).
    virtual MenuItem* build_menu_bar() const;
    /// Toolbars and their sections: "File" (New, Open, Add) and "Edit" (Undo, Clipboard).
    virtual ToolBarGadget* build_toolbars() const;
    /// The bars below the documents: "Messages".
    virtual ToolBarGadget* build_message_bars() const;
    /// The names of the initially visible docking windows, as children of the root; docks of modules
    /// too. They are shown when the workbench first becomes active in a window. Afterwards the user decides, or
    /// a layout that is restored.
    virtual ToolBarGadget* build_docking_windows() const;
};

} // namespace Gui
