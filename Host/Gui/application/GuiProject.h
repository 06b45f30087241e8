#pragma once

#include "Gui/GuiExport.h"

#include <QObject>
#include <boost/signals2/connection.hpp>
#include <json/value.h>

#include <cstdint>
#include <map>
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

/// The properties of the tree nodes of a project, as records of Obj::writeProperties. They outlive the nodes, so that
/// undo of a deletion, or of closing a project, restores the nodes as they were.
struct NodeProperties
{
    Json::Value ofProject;                          ///< null for none
    std::map<std::uint32_t, Json::Value> ofObjects; ///< by the id of the object
};

/// The GUI side of a project: its tree nodes and views. The GUI application makes one for each project that is open.
class GUI_EXPORT GuiProject : public QObject
{
    Q_OBJECT

public:
    /// `kept` are the properties of the nodes of a project that has been open before; new nodes get them.
    explicit GuiProject(Obj::Project& project, NodeProperties kept = {});
    /// Takes the views of the project out of the main window.
    ~GuiProject() override;

    Obj::Project& get_project() const { return m_project; }

    /// Returns the node of the project.
    ViewFeederProject* get_view_feeder();
    /// Returns the node of an object of the project; null for an object of another project. The first call makes the
    /// node, which lives as long as the object is in the project. The node has the class that the object names. It is a
    /// plain node if that class is unknown or cannot be created. If the object has been in the project before, the new
    /// node has the properties of the old one.
    ViewFeederProjectObject* get_view_feeder(Obj::ProjectObject* object);

    /// Returns the properties of the nodes that have changed, including the nodes of deleted objects.
    NodeProperties recordNodes() const;

    /// Forgets the properties of the nodes of deleted objects, which undo cannot restore any more.
    void forgetDeletedNodes();

    /// Returns the open views of the project.
    const std::vector<BaseView*>& getViews() const { return m_views; }
    void connectView(BaseView* view);
    void disconnect_view(BaseView* view);

private:
    void removeFeeder(const Obj::ProjectObject& object);
    void passOn(const Obj::ProjectObject& object, const Obj::Property* property);

    Obj::Project& m_project;
    NodeProperties m_kept; ///< of nodes that do not exist now
    std::unique_ptr<ViewFeederProject> m_projectFeeder;
    std::unordered_map<const Obj::ProjectObject*, std::unique_ptr<ViewFeederProjectObject>> m_feeders;
    std::vector<BaseView*> m_views;
    boost::signals2::scoped_connection m_objectRemoved;
    boost::signals2::scoped_connection m_objectChanged;
};

} // namespace Gui
