#pragma once

#include "Gui/GuiExport.h"

#include <QObject>
#include <boost/signals2/connection.hpp>

#include <memory>
#include <unordered_map>
#include <vector>

namespace Obj {
class Project;
class ProjectObject;
class Property;
} // namespace Obj

namespace Gui {

class BaseView;
class ViewFeederProject;
class ViewFeederProjectObject;

/// The GUI side of a project: its tree nodes and views. The GUI application makes one for each project that is open.
class GUI_EXPORT GuiProject : public QObject
{
    Q_OBJECT

public:
    explicit GuiProject(Obj::Project& project);
    /// Takes the views of the project out of the main window.
    ~GuiProject() override;

    Obj::Project& get_project() const { return m_project; }

    /// Returns the node of the project.
    ViewFeederProject* get_view_feeder();
    /// Returns the node of an object of the project; null for an object of another project. The first call makes the
    /// node, which lives as long as the object is in the project. The node has the class that the object names. It is a
    /// plain node if that class is unknown or cannot be created.
    ViewFeederProjectObject* get_view_feeder(Obj::ProjectObject* object);

    /// Returns the open views of the project.
    const std::vector<BaseView*>& getViews() const { return m_views; }
    void connectView(BaseView* view);
    void disconnect_view(BaseView* view);

private:
    void removeFeeder(const Obj::ProjectObject& object);
    void passOn(const Obj::ProjectObject& object, const Obj::Property* property);

    Obj::Project& m_project;
    std::unique_ptr<ViewFeederProject> m_projectFeeder;
    std::unordered_map<const Obj::ProjectObject*, std::unique_ptr<ViewFeederProjectObject>> m_feeders;
    std::vector<BaseView*> m_views;
    boost::signals2::scoped_connection m_objectRemoved;
    boost::signals2::scoped_connection m_objectChanged;
};

} // namespace Gui
