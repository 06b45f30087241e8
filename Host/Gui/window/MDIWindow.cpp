#include "Gui/MDIWindow.h"

#include "Gui/GuiProject.h"
#include "Gui/MainWindow.h"
#include "Gui/WindowTitle.h"
#include "Kelta/Exceptions.h"
#include "Obj/Project.h"

#include <QEvent>

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

void MDIWindow::editObject(GuiProject& project, Obj::ProjectObject& object)
{
    attach(project);
    setEditedObject(&object);
    showLabel(object);
    m_objectRemoved = project.get_project().objectRemoved.connect([this](const Obj::ProjectObject& removed) {
        if (&removed == m_editedObject)
            remove_viewself();
    });
    m_objectChanged = project.get_project().objectChanged.connect(
        [this](const Obj::ProjectObject& changed, const Obj::Property* property) {
            if (&changed == m_editedObject && property == &changed.label)
                showLabel(changed);
        });
}

void MDIWindow::showLabel(const Obj::ProjectObject& object)
{
    setWindowTitle(markedTitle(QString::fromStdString(object.label.getValue())));
}

void MDIWindow::finishEditing() {}

void MDIWindow::completeEdits()
{
    Kelta::guarded(tr("An edit in \"%1\" cannot be completed").arg(shownTitle(windowTitle())),
                   [this] { finishEditing(); });
}

bool MDIWindow::event(QEvent* event)
{
    if (event->type() == QEvent::Close)
        completeEdits();
    return QMainWindow::event(event);
}

QUndoStack* MDIWindow::getUndoStack()
{
    return nullptr;
}

bool MDIWindow::applyEdits()
{
    return !isWindowModified();
}

Json::Value MDIWindow::unappliedEdits() const
{
    return {};
}

Json::Value MDIWindow::editSteps() const
{
    return {};
}

bool MDIWindow::restoreEdits(const Json::Value& /*record*/)
{
    return false;
}

bool MDIWindow::showRow(int /*part*/)
{
    return false;
}

} // namespace Gui
