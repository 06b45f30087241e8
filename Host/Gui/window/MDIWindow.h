#pragma once

#include "Gui/BaseView.h"
#include "Gui/GuiExport.h"
#include "Kelta/ClassRegistration.h"

#include <QMainWindow>
#include <boost/signals2/connection.hpp>
#include <json/value.h>

class QUndoStack;

namespace Obj {
class ProjectObject;
} // namespace Obj

namespace Gui {

/// A reason to refuse the edits of a window.
struct ApplyRefusal
{
    QString reason; ///< a translated sentence for the user; empty if there is no reason
    int row = -1;   ///< the row of the window's table that the user must change, from 0; -1 if there is no row
};

/// A document window of the main window.
///
/// A window in which the user edits an object, and applies the edits by a command of the window, is modified
/// (QWidget::isWindowModified) while it has unapplied edits. Such a window overrides finishEditing,
/// getUndoStack and applyEdits, and emits applying and applied.
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

    /// Returns the object that the user edits in the window; null if there is none. The window sets it, and must not
    /// outlive the object.
    Obj::ProjectObject* getEditedObject() const { return m_editedObject; }
    void setEditedObject(Obj::ProjectObject* object) { m_editedObject = object; }

    /// Makes the window the editor of an object, whose label becomes its title. Called once, before the window is
    /// shown, if the object names the class of the window as its editor (Obj::ProjectObject::getCoreEditor); such a
    /// class must be creatable without a project. The window is closed when the object leaves its project. Derived
    /// classes override it to show the object, and call it first.
    virtual void editObject(GuiProject& project, Obj::ProjectObject& object);

    /// Ends an edit in progress, such as text that the user is typing into a cell, and keeps its result. The host calls
    /// it before it runs a command, before the window closes and before the program ends. Does nothing here.
    virtual void finishEditing();

    /// Calls finishEditing. Reports exceptions to the message log.
    void completeEdits();

    /// Returns the undo stack of the unapplied edits; null if the window has none, as here. The window keeps it from
    /// the moment when it is added to the main window. Undo and Redo of the host act on it while the user works in the
    /// window, see MainWindow::documentUndoStack.
    virtual QUndoStack* getUndoStack();

    /// Applies the edits, as the window's own command does. Returns false if unapplied edits are left; the window has
    /// told the user the reason. The call may ask the user, and so the window may be closed afterwards.
    /// Does nothing here.
    virtual bool applyEdits();

    /// Returns the unapplied edits, including text that the user is typing, as a record for restoreEdits; null if there
    /// are none, as here. The record does not depend on the language.
    virtual Json::Value unappliedEdits() const;
    /// Returns the steps of the undo stack, including undone ones, as a record for restoreEdits; null if there are none,
    /// as here.
    virtual Json::Value editSteps() const;
    /// Shows edits from a record of unappliedEdits or editSteps, as steps of the undo stack. Returns false and shows
    /// nothing if the value is not a valid record, as here.
    virtual bool restoreEdits(const Json::Value& record);

    /// Shows the user a part of the edited object, by the number by which the window knows the part, such as the row of a
    /// property. Returns false if the window does not show this part, as here.
    virtual bool showRow(int part);

Q_SIGNALS:
    /// Sent when the user applies edits that the window accepts. A slot that sets a reason in `refusal` prevents it:
    /// the window shows the reason and selects the row.
    void applying(Gui::ApplyRefusal& refusal);
    /// Sent after the window has written the edits into the object. Slots may complete the object; the window shows the
    /// object afterwards.
    void applied();

protected:
    /// Completes the edits before the window closes.
    bool event(QEvent* event) override;

private:
    void showLabel(const Obj::ProjectObject& object);

    Obj::ProjectObject* m_editedObject = nullptr;
    boost::signals2::scoped_connection m_objectRemoved;
    boost::signals2::scoped_connection m_objectChanged;
};

} // namespace Gui
