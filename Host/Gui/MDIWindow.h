#pragma once

#include "Gui/BaseView.h"
#include "Gui/GuiExport.h"

#include <QMainWindow>

namespace Gui {

/// A document window of the main window.
class GUI_EXPORT MDIWindow : public QMainWindow, public BaseView
{
    Q_OBJECT

public:
    MDIWindow(GuiProject* project, QWidget* parent, Qt::WindowFlags flags = {});
    ~MDIWindow() override;

    static Kelta::TypeInfo getClassTypeId();
    Kelta::TypeInfo getTypeId() const override;
    static void init();

    const char* getName() const override;
    /// Takes the window out of the main window and destroys it.
    void remove_viewself() override;

private:
    static Kelta::TypeInfo classTypeId;
};

} // namespace Gui
