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

/// A view of something in a project. Derived classes override the operations that they support. By default every
/// operation does nothing and returns nothing.
class GUI_EXPORT BaseView : public Kelta::RootClass
{
    KELTA_ABSTRACT_CLASS;

public:
    /// Makes a view of `project`; null if it belongs to no project.
    explicit BaseView(GuiProject* project);
    ~BaseView() override;

    /// Returns the project of the view; null if it has none, or if the project has been closed.
    GuiProject* getGuiProject() const;

    /// Returns the name of the kind of view.
    virtual const char* getName() const;
    /// Fits the whole content into the view.
    virtual void viewAll();
    /// Returns whether message_handler carries out messages with this name.
    virtual bool has_message_handler(const char* message) const;
    virtual bool message_handler(const char* message, const char** answer);
    /// Takes the view out of the main window.
    virtual void remove_viewself();
    virtual QModelIndex currentIndex() const;
    virtual QModelIndexList selectedIndexes() const;
    virtual void resizeColumn(int column, int width);
    virtual void resizeRow(int row, int height);
    /// Called after a property of the view's content has changed.
    virtual void updateCell(const Obj::Property* property);

protected:
    /// Assigns the view, which belongs to no project yet, to `project`.
    void attach(GuiProject& project);

private:
    QPointer<GuiProject> m_project;
};

} // namespace Gui
