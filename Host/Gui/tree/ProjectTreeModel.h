#pragma once

#include "Gui/GuiExport.h"
#include "Kelta/TypeInfo.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QIcon>
#include <QTimer>
#include <boost/signals2/connection.hpp>

#include <cstdint>
#include <map>
#include <vector>

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace Gui {

/// Projects and their objects as a tree of two levels.
///
/// It keeps ids, not objects, and takes over what was added and removed when the event loop is next idle: thousands of
/// changes in one command become a few blocks of rows, and a row whose object has gone meanwhile shows nothing.
class GUI_EXPORT ProjectTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit ProjectTreeModel(QObject* parent = nullptr);
    ~ProjectTreeModel() override;

    /// What a row stands for; null when it stands for the other, or its thing has gone.
    Obj::Project* projectAt(const QModelIndex& index) const;
    Obj::ProjectObject* objectAt(const QModelIndex& index) const;
    /// The row of a project or object; an invalid index when the tree does not have it yet.
    QModelIndex indexOf(const Obj::Project& project) const;
    QModelIndex indexOf(const Obj::ProjectObject& object) const;

    QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// Gives an object a new label, undoably.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Takes over at once what has changed.
    void synchronize();

private:
    struct Rows
    {
        std::uint32_t projectId;
        std::vector<std::uint32_t> objectIds; ///< in their order
    };
    void watch(Obj::Project& project);
    void synchronizeProjects();
    void synchronizeObjects(int projectRow);
    int rowOfProject(std::uint32_t projectId) const;
    void objectChanged(const Obj::ProjectObject& object);
    QVariant dataOf(Obj::Project& project, int role) const;
    QVariant dataOf(Obj::ProjectObject& object, int role) const;
    QIcon iconOf(const Obj::ProjectObject& object, const QString& pixmapName) const;

    std::vector<Rows> m_rows;
    QTimer m_synchronization;
    mutable QHash<QString, QIcon> m_icons;
    std::map<std::uint32_t, std::vector<boost::signals2::scoped_connection>> m_projectConnections;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace Gui
