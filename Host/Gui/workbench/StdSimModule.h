#pragma once

#include "Gui/CommandTree.h"
#include "Gui/GuiExport.h"
#include "Kelta/ClassRegistration.h"

namespace Gui {

/// The standard workbench, and the base of those of modules: the menus, toolbars and message bars that the main window
/// shows while it is the active one. Trees are built anew each time; the caller owns them.
///
/// The trees name commands of the host, "Std_...", some of which a program may leave out, as a program without files
/// leaves out "Std_Open". What modules contribute is added to the trees afterwards, see Gui::Contributions.
class GUI_EXPORT StdSimModule : public Kelta::RootClass
{
    KELTA_CLASS;

public:
    StdSimModule();
    ~StdSimModule() override;

    /// Adds to the context menu of a part of the window: "Tree" for the project explorer, or "View" for documents that
    /// ask for it.
    virtual void build_context_menu(const char* recipient, MenuItem* menu) const;
    /// Adds to the context menu of the main window's own bars.
    virtual void build_context_popup_menu(MenuItem* menu) const;
    /// The workbench has become the active one; it no longer is.
    virtual void activated();
    virtual void deactivated();
    /// Menus and their sections: "&File" (New, Open, Save, Import, Close, Quit), "&Edit" (Undo, Clipboard, Select,
    /// Suppress), "&Project" (Add, Import, Solve), "&View" (Docks, Messages, Workbench), "&Windows" (Arrange, Close) and
    /// "&Help" (About).
    virtual MenuItem* build_menu_bar() const;
    /// Toolbars and their sections: "File" (New, Open, Add) and "Edit" (Undo, Clipboard).
    virtual ToolBarGadget* build_toolbars() const;
    /// The bars below the documents: "Messages".
    virtual ToolBarGadget* build_message_bars() const;
    /// The names of the docking windows that the workbench wants to be seen, as children of the root; docks of modules
    /// too. They are shown when the workbench first becomes the active one in a window; afterwards the user decides, and
    /// so does a layout that is restored.
    virtual ToolBarGadget* build_docking_windows() const;
};

} // namespace Gui
