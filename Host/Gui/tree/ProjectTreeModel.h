#pragma once

#include "Gui/GuiExport.h"

#include <QAbstractItemModel>
#include <QTimer>
#include <boost/signals2/connection.hpp>

#include <cstdint>
#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace Gui {

class GuiApplication;
class NodeIcons;
class TreeShape;

/// Projects and their objects as a tree. Members of a group are under the group. An object has no row if its node is
/// hidden.
///
/// The model keeps ids instead of objects, and processes additions and removals when the event loop is next idle.
/// Thousands of changes in one command become a few blocks of rows. A row whose object was removed meanwhile shows
/// nothing.
class GUI_EXPORT ProjectTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// `application` provides the nodes and must outlive the model.
    explicit ProjectTreeModel(GuiApplication& application, QObject* parent = nullptr);
    ~ProjectTreeModel() override;

    /// Returns the project or the object of a row; null if the row shows the other kind, or if the entry was removed.
    Obj::Project* projectAt(const QModelIndex& index) const;
    Obj::ProjectObject* objectAt(const QModelIndex& index) const;
    /// Returns the row of a project or object; an invalid index if the tree does not have a row for it yet.
    QModelIndex indexOf(const Obj::Project& project) const;
    QModelIndex indexOf(const Obj::ProjectObject& object) const;

    QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// Gives an object a new label, or a project a new name, undoably.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    /// The tree does not select a node that has its own selection.
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Applies all pending changes at once.
    void synchronize();

private:
    /// The ids of a project and of one of its objects, 0 for the project itself, in one number. The key 0 is the root,
    /// the parent of all projects, which has no row.
    using Key = quintptr;
    using Ids = std::vector<std::uint32_t>;
    struct Node
    {
        Key parent = 0;
        Ids children; ///< in ascending order; the children of the root are projects
    };

    void watch(Obj::Project& project);
    void objectChanged(Obj::ProjectObject& object);
    bool isShown(Obj::ProjectObject& object) const;

    void synchronizeProjects();
    void synchronizeObjects(const Obj::Project& project);
    void addMissing(Key parent, const Ids& wanted);
    void removeSurplus(Key parent, const Ids& wanted);
    void removeSurplusBelow(Key node, const TreeShape& shape);
    void insert(Key parent, Ids::const_iterator begin, Ids::const_iterator end);
    void move(Key node, Key parent);
    void removeBlock(Key parent, int first, int last);
    void erase(Key node);

    bool has(Key node) const { return m_nodes.count(node) != 0; }
    const Ids& childrenOf(Key node) const { return m_nodes.at(node).children; }
    int rowOf(Key node) const;
    QModelIndex indexOf(Key node) const;

    QVariant dataOf(Obj::Project& project, int role) const;
    QVariant dataOf(Obj::ProjectObject& object, int role) const;

    GuiApplication& m_application;
    std::unordered_map<Key, Node> m_nodes;
    QTimer m_synchronization;
    std::unique_ptr<NodeIcons> m_icons;
    std::map<std::uint32_t, std::vector<boost::signals2::scoped_connection>> m_projectConnections;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace Gui
