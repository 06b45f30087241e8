#pragma once

#include "Gui/GuiExport.h"
#include "Kelta/ClassRegistration.h"

#include <QModelIndexList>
#include <QPointer>

namespace Obj {
class Property;
} // namespace Obj

namespace Gui {

class GuiProject;

/// A view of something in a project. Derived classes answer for what they show; here everything is empty.
class GUI_EXPORT BaseView : public Kelta::RootClass
{
    KELTA_ABSTRACT_CLASS;

public:
    /// A view of `project`, which may be null: then it belongs to none.
    explicit BaseView(GuiProject* project);
    ~BaseView() override;

    /// Null when the view belongs to no project, or the project has been closed.
    GuiProject* get_gui_project() const;

    /// The name of the kind of view.
    virtual const char* getName() const;
    /// Shows all that there is to see.
    virtual void viewAll();
    /// Whether the view carries out messages of this name itself; then message_handler does.
    virtual bool has_message_handler(const char* message) const;
    virtual bool message_handler(const char* message, const char** answer);
    /// Takes the view out of the main window.
    virtual void remove_viewself();
    virtual QModelIndex currentIndex() const;
    virtual QModelIndexList selectedIndexes() const;
    virtual void resizeColumn(int column, int width);
    virtual void resizeRow(int row, int height);
    /// A property of what the view shows has changed.
    virtual void updateCell(const Obj::Property* property);

private:
    QPointer<GuiProject> m_project;
};

} // namespace Gui
