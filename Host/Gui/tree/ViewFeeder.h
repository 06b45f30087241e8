#pragma once

#include "Gui/CommandTree.h"
#include "Gui/GuiExport.h"
#include "Obj/ClassRegistration.h"
#include "Obj/PropertyDS.h"

#include <string>
#include <vector>

class QMenu;
class QObject;

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace Gui {

/// A node of the project tree: how a project or an object is shown, and what the user may do with it there. Created by
/// the registered name that its project or object gives, and attached to that; its properties say how it is shown.
class GUI_EXPORT ViewFeeder : public Obj::PropertyDS
{
    OBJ_ABSTRACT_CLASS;

public:
    ViewFeeder();
    ~ViewFeeder() override;

    /// Whether the node selects in a way of its own, instead of that of the tree.
    virtual bool useNewSelectionModel() const;
    /// Asked before the user's deletion, with the names of the selected parts; false keeps what the node shows.
    virtual bool onDelete(const std::vector<std::string>& subElements);
    /// A property of what the node shows has changed.
    virtual void updateData(const Obj::Property* changed);
    virtual void setDisplayMode(const char* mode);
    virtual std::vector<std::string> getDisplayModes() const;
    virtual bool isShow() const;
    /// Begins editing in the given mode; 0 is the usual one. Answers whether the tree is to treat it as being edited.
    virtual bool setEdit(int mode);
    /// Answers whether the double click has been dealt with.
    virtual bool on_double_clicked();
    /// Adds commands to the node's context menu in a part of the window, "Tree".
    virtual void build_context_menu(const char* recipient, MenuItem* menu);
    /// Adds actions of the node's own, which call `slot` of `receiver`, and carry the edit mode as their data.
    virtual void build_context_menu(QMenu* menu, QObject* receiver, const char* slot);

    /// The name of the node's picture for the picture factory.
    const char* getPixmapName() const { return pixmapName; }
    const std::string& getDisplayMode() const { return m_displayMode; }

protected:
    const char* pixmapName = "";

private:
    std::string m_displayMode;
};

/// The node of a project.
class GUI_EXPORT ViewFeederProject : public ViewFeeder
{
    OBJ_CLASS;

public:
    ViewFeederProject();
    ~ViewFeederProject() override;

    void attach(Obj::Project& project) { m_project = &project; }
    /// The project that the node shows; null before it is attached.
    Obj::Project* getProject() const { return m_project; }

private:
    Obj::Project* m_project = nullptr;
};

/// The node of an object.
class GUI_EXPORT ViewFeederProjectObject : public ViewFeeder
{
    OBJ_CLASS;

public:
    ViewFeederProjectObject();
    ~ViewFeederProjectObject() override;

    void attach(Obj::ProjectObject& object) { m_object = &object; }
    /// The object that the node shows; null before it is attached.
    Obj::ProjectObject* getObject() const { return m_object; }

protected:
    /// Tells those who observe the project that the object is shown in another way.
    void on_changed(const Obj::Property* property) override;

private:
    Obj::ProjectObject* m_object = nullptr;
};

} // namespace Gui
