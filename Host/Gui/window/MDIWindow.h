#pragma once

#include "Gui/BaseView.h"
#include "Gui/GuiExport.h"
#include "Kelta/ClassRegistration.h"

#include <QMainWindow>
#include <boost/signals2/connection.hpp>

namespace Obj {
class ProjectObject;
} // namespace Obj

namespace Gui {

/// A document window of the main window.
class GUI_EXPORT MDIWindow : public QMainWindow, public BaseView
{
    Q_OBJECT
    KELTA_ABSTRACT_CLASS;

public:
    MDIWindow(GuiProject* project, QWidget* parent, Qt::WindowFlags flags = {});
    ~MDIWindow() override;

    const char* getName() const override;
    /// Takes the window out of the main window and destroys it.
    void remove_viewself() override;

    /// The object that the user edits in the window; null if there is none. The window sets it, and must not outlive the
    /// object.
    Obj::ProjectObject* get_edited_object() const { return m_editedObject; }
    void set_edited_object(Obj::ProjectObject* object) { m_editedObject = object; }

    /// Makes the window the editor of an object, whose label becomes its title. Called once, before the window is shown,
    /// if the object names the class of the window as its editor (Obj::ProjectObject::getCoreEditor); such a class must be
    /// creatable without a project. The window is closed when the object leaves its project. Derived classes override
    /// it to show the object, and call it first.
    virtual void editObject(GuiProject& project, Obj::ProjectObject& object);

private:
    void showLabel(const Obj::ProjectObject& object);

    Obj::ProjectObject* m_editedObject = nullptr;
    boost::signals2::scoped_connection m_objectRemoved;
    boost::signals2::scoped_connection m_objectChanged;
};

} // namespace Gui
