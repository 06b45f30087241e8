#pragma once

#include "Gui/CommandTree.h"
#include "Gui/GuiExport.h"
#include "Kelta/ClassRegistration.h"

namespace Gui {

/// The standard workbench, and the base of those of modules: the menus, toolbars and message bars that the main window
/// shows while it is the active one. Trees are built anew each time; the caller owns them.
class GUI_EXPORT StdSimModule : public Kelta::RootClass
{
    KELTA_CLASS;

public:
    StdSimModule();
    ~StdSimModule() override;

    /// Adds to the context menu of a part of the window: "Tree", which the project explorer asks for, or "View", for
    /// documents that ask for it.
    virtual void build_context_menu(const char* recipient, MenuItem* menu) const;
    /// Adds to the context menu of the main window's own bars.
    virtual void build_context_popup_menu(MenuItem* menu) const;
    /// The workbench has become the active one; it no longer is.
    virtual void activated();
    virtual void deactivated();
    /// Menus "&File", "&Edit", "&Project", "&View", "&Windows" and "&Help".
    virtual MenuItem* build_menu_bar() const;
    virtual ToolBarGadget* build_toolbars() const;
    /// The bars of the message log.
    virtual ToolBarGadget* build_message_bars() const;
    /// The names of the docking windows that the workbench wants to see, as children of the root. They are shown when it
    /// becomes the active one; a layout that is restored afterwards has the last word.
    virtual ToolBarGadget* build_docking_windows() const;
};

} // namespace Gui
