#pragma once

#include <QObject>
#include <QPersistentModelIndex>
#include <QTimer>

class QTreeView;

namespace Gui {

class ProjectTreeModel;
class TreeSelectionSingleton;

/// When the selected rows of the project tree are removed and nothing else is selected, selects their neighbour: the row
/// that takes their place, the row before them, or their parent. So the next key acts near the place where the user works.
class NeighbourSelection : public QObject
{
    Q_OBJECT

public:
    /// Makes the tree its parent. Must be constructed before the tree gets the model, because the selection of the tree
    /// reacts to the removal of rows too.
    NeighbourSelection(QTreeView& tree, const ProjectTreeModel& model, TreeSelectionSingleton& selection);
    ~NeighbourSelection() override;

private:
    void noteRemoval(const QModelIndex& parent, int first, int last);
    bool isAnyDeleted(const QModelIndex& parent, int first, int last) const;
    void selectNeighbour();

    QTreeView& m_tree;
    const ProjectTreeModel& m_model;
    TreeSelectionSingleton& m_selection;
    QPersistentModelIndex m_parent;
    int m_row = 0;
    QTimer m_timer; ///< runs after the command that removes the rows
};

} // namespace Gui
