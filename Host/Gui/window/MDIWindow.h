#pragma once

#include "Gui/BaseView.h"
#include "Gui/GuiExport.h"
#include "Kelta/ClassRegistration.h"

#include <QMainWindow>

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

    /// The object that the user edits in the window, which outlives it; null when there is no such object. The window
    /// says so itself.
    Obj::ProjectObject* get_edited_object() const { return m_editedObject; }
    void set_edited_object(Obj::ProjectObject* object) { m_editedObject = object; }

private:
    Obj::ProjectObject* m_editedObject = nullptr;
};

} // namespace Gui
