#pragma once

#include "Gui/StdSimModule.h"
#include "Kelta/ClassRegistration.h"
#include "vxMaterial/project/PluginExport.h"

#include <QObject>

class QColor;

namespace MatGui {

/// Two places where colours for the current material editor arrive; nothing comes of them yet.
class VXMATERIAL_EXPORT WorkbenchHelper : public QObject
{
    Q_OBJECT

public:
    WorkbenchHelper();
    ~WorkbenchHelper() override;

public Q_SLOTS:
    void setForegroundColor(const QColor& color);
    void setBackgroundColor(const QColor& color);
};

/// The materials workbench: the standard one with a menu, a toolbar and a message bar for materials.
class VXMATERIAL_EXPORT SimModule : public Gui::StdSimModule
{
    KELTA_CLASS;

public:
    SimModule();
    /// Takes the helper over from `other`, which is left without one.
    SimModule(SimModule& other);
    SimModule& operator=(SimModule& other); // NOLINT(misc-unconventional-assign-operator): as the copy above
    ~SimModule() override;

    /// Looks for the toolbar "MaterialGUI" of the main window; nothing the user sees comes of it.
    void activated() override;
    /// The standard menus, with "&Material" in front of "&Windows".
    Gui::MenuItem* build_menu_bar() const override;
    /// The standard toolbars, and "Material".
    Gui::ToolBarGadget* build_toolbars() const override;
    /// "Material" alone, without the standard bars.
    Gui::ToolBarGadget* build_message_bars() const override;

    bool isToolbarFound() const { return toolbarFound; }
    /// Null after the workbench has been copied from.
    WorkbenchHelper* getWorkbenchHelper() const { return workbenchHelper; }

private:
    bool toolbarFound = false;
    WorkbenchHelper* workbenchHelper; ///< owned
};

} // namespace MatGui
