#include "Gui/MDIWindow.h"

#include "Gui/MainWindow.h"

namespace Gui {

KELTA_REGISTER_ABSTRACT_CLASS(Gui::MDIWindow, Gui::BaseView)

MDIWindow::MDIWindow(GuiProject* project, QWidget* parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags), BaseView(project)
{}

MDIWindow::~MDIWindow() = default;

const char* MDIWindow::getName() const
{
    return "MDIWindow";
}

void MDIWindow::remove_viewself()
{
    if (MainWindow* const mainWindow = MainWindow::get_main_window_inst())
        mainWindow->remove_mdi_window(this);
}

void MDIWindow::finishEditing() {}

QUndoStack* MDIWindow::get_undo_stack()
{
    return nullptr;
}

} // namespace Gui
