#include "Gui/MDIWindow.h"

#include "Gui/MainWindow.h"

namespace Gui {

Kelta::TypeInfo MDIWindow::classTypeId;

MDIWindow::MDIWindow(GuiProject* project, QWidget* parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags), BaseView(project)
{}

MDIWindow::~MDIWindow() = default;

Kelta::TypeInfo MDIWindow::getClassTypeId()
{
    return classTypeId;
}

Kelta::TypeInfo MDIWindow::getTypeId() const
{
    return classTypeId;
}

void MDIWindow::init()
{
    initSubclass(classTypeId, "Gui::MDIWindow", "Gui::BaseView", nullptr);
}

const char* MDIWindow::getName() const
{
    return "MDIWindow";
}

void MDIWindow::remove_viewself()
{
    if (MainWindow* const mainWindow = MainWindow::get_main_window_inst())
        mainWindow->remove_mdi_window(this);
}

} // namespace Gui
