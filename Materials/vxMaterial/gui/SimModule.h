#pragma once

#include "Gui/StdSimModule.h"
#include "Kelta/ClassRegistration.h"
#include "vxMaterial/project/PluginExport.h"

#include <QObject>

class QColor;

namespace MatGui {

/// Receives colours for the current material editor. The colours have no effect.
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
    /// Takes the helper of `other`, which then has no helper.
    SimModule(SimModule& other);
    SimModule& operator=(SimModule& other); // NOLINT(misc-unconventional-assign-operator): as the copy above
    ~SimModule() override;

    /// Searches the toolbar "MaterialGUI" of the main window. Has no visible effect.
    void activated() override;
    /// Returns the standard menus, with "&Material" in front of "&Windows".
    Gui::MenuItem* build_menu_bar() const override;
    /// Returns the standard toolbars and "Material".
    Gui::ToolBarGadget* build_toolbars() const override;
    /// Returns the bar "Material", without the standard bars.
    Gui::ToolBarGadget* build_message_bars() const override;

    bool isToolbarFound() const { return toolbarFound; }
    /// Returns null if a copy of the workbench has taken the helper.
    WorkbenchHelper* getWorkbenchHelper() const { return workbenchHelper; }

private:
    bool toolbarFound = false;
    WorkbenchHelper* workbenchHelper; ///< owned
};

} // namespace MatGui
