#pragma once

#include "Gui/GuiExport.h"

#include <QAbstractItemModel>
#include <QStringList>
#include <QTimer>
#include <boost/signals2/connection.hpp>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
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
/// hidden, or if a filter does not find it; a group keeps its row for each member that is found.
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
    /// Applies all pending changes when the event loop is next idle.
    void synchronizeLater();

    /// Returns whether an object is found.
    using Filter = std::function<bool(const Obj::ProjectObject&)>;
    /// Shows only the objects that are found, or all for an empty filter. Resets the model if this changes its rows:
    /// thousands of single rows would take longer. Objects that are added or changed later are filtered when the event
    /// loop is next idle. The filter must be callable until it is replaced.
    void setFilter(Filter filter);
    bool isFiltered() const { return m_filter != nullptr; }
    /// Returns whether the filter finds an object; true without a filter.
    bool isFound(const Obj::ProjectObject& object) const { return m_filter == nullptr || m_filter(object); }

    /// The numbers of objects that the filter finds, and of all that could have a row.
    struct MatchCounts
    {
        std::size_t matching = 0;
        std::size_t all = 0;
    };
    /// Returns the numbers at the last synchronization; zeros without a filter.
    MatchCounts matchCounts() const;

    /// Returns the rows that have children.
    QModelIndexList parents() const;

Q_SIGNALS:
    /// Sent when the event loop is idle after projects or objects have changed while there is a filter, with the labels of
    /// the added or changed objects that the filter hides.
    void filtered(const QStringList& hiddenLabels);

private:
    /// The ids of a project and of one of its objects, 0 for the project itself, in one number. The key 0 is the root,
    /// the parent of all projects, which has no row.
    using Key = quintptr;
    using Ids = std::vector<std::uint32_t>;
    struct Node
    {
        Key parent = 0;
        Ids children; ///< in ascending order; the children of the root are projects

        bool operator==(const Node& other) const { return parent == other.parent && children == other.children; }
    };

    using Nodes = std::unordered_map<Key, Node>;

    void watch(Obj::Project& project);
    void objectAdded(const Obj::ProjectObject& object);
    void objectChanged(Obj::ProjectObject& object);
    bool isShown(Obj::ProjectObject& object) const;

    void synchronizeAndReport();
    TreeShape shapeOf(const Obj::Project& project);
    Nodes wantedNodes();
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
    Nodes m_nodes;
    Filter m_filter;
    std::map<std::uint32_t, MatchCounts> m_counts; ///< by project
    std::set<Key> m_news;                          ///< objects that were added, or changed and have a row
    QTimer m_synchronization;
    std::unique_ptr<NodeIcons> m_icons;
    std::map<std::uint32_t, std::vector<boost::signals2::scoped_connection>> m_projectConnections;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace Gui
