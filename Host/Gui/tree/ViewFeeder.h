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

/// A node of the project tree: the appearance of a project or an object, and the user's actions on it. A node is
/// created by the registered class name that its project or object returns (get_viewfeeder_name), and attached to it.
/// Its properties describe its appearance; the property panel shows them too.
class GUI_EXPORT ViewFeeder : public Obj::PropertyDS
{
    OBJ_ABSTRACT_CLASS;

public:
    ViewFeeder();
    ~ViewFeeder() override;

    /// Returns whether a view has its own selection of the node. The tree then does not select it; a command acts on it
    /// only if that view puts it into the selection.
    virtual bool useNewSelectionModel() const;
    /// Called before the user's deletion, with the names of the selected parts. If it returns false, the project or
    /// object is kept.
    virtual bool onDelete(const std::vector<std::string>& subElements);
    /// Called after a property of the project or object has changed.
    virtual void updateData(const Obj::Property* changed);
    /// Sets a display mode; a null pointer sets none.
    virtual void setDisplayMode(const char* mode);
    /// Returns the display modes of the node. If there are several, its context menu offers them, translated
    /// in the context "DisplayMode".
    virtual std::vector<std::string> getDisplayModes() const;
    /// Returns whether the tree has a row for the node. The tree asks again after each change of the object.
    virtual bool isShow() const;
    /// Begins editing in the given mode; 0 is the usual mode. Called with the data of the actions that the node adds to
    /// its context menu. Returns whether the node is in editing afterwards.
    virtual bool setEdit(int mode);
    /// Called when the user double-clicks the node or presses Return. If it returns false, the editor that the object
    /// names (Obj::ProjectObject::getCoreEditor) is opened.
    virtual bool on_double_clicked();
    /// Adds commands to the node's context menu in a part of the window: `recipient` is "Tree".
    virtual void build_context_menu(const char* recipient, MenuItem* menu);
    /// Adds further actions to the context menu. They call `slot` of `receiver`, and carry the edit mode as their data.
    virtual void build_context_menu(QMenu* menu, QObject* receiver, const char* slot);

    /// Returns the name of the node's picture for the picture factory.
    const char* getPixmapName() const { return pixmapName; }
    const std::string& getDisplayMode() const { return m_displayMode; }
    /// Returns whether a property has been set since the node was made. If not, a new node is the same.
    bool hasChanged() const { return m_hasChanged; }

protected:
    void on_changed(const Obj::Property* property) override;

    const char* pixmapName = "";

private:
    std::string m_displayMode;
    bool m_hasChanged = false;
};

/// The node of a project.
class GUI_EXPORT ViewFeederProject : public ViewFeeder
{
    OBJ_CLASS;

public:
    ViewFeederProject();
    ~ViewFeederProject() override;

    void attach(Obj::Project& project) { m_project = &project; }
    /// Returns the project of the node; null before it is attached.
    Obj::Project* getProject() const { return m_project; }

protected:
    /// Tells the listeners of the project that its appearance has changed.
    void on_changed(const Obj::Property* property) override;

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
    /// Returns the object of the node; null before it is attached.
    Obj::ProjectObject* getObject() const { return m_object; }

protected:
    /// Tells the listeners of the project that the appearance of the object has changed.
    void on_changed(const Obj::Property* property) override;

private:
    Obj::ProjectObject* m_object = nullptr;
};

} // namespace Gui
