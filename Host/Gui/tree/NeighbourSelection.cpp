#include "tree/NeighbourSelection.h"

#include "Gui/ProjectTreeModel.h"
#include "Gui/TreeSelectionSingleton.h"

#include <QTreeView>

#include <algorithm>

namespace Gui {

NeighbourSelection::NeighbourSelection(QTreeView& tree, const ProjectTreeModel& model,
                                       TreeSelectionSingleton& selection)
    : QObject(&tree), m_tree(tree), m_model(model), m_selection(selection)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &NeighbourSelection::selectNeighbour);
    connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this, &NeighbourSelection::noteRemoval);
}

NeighbourSelection::~NeighbourSelection() = default;

void NeighbourSelection::noteRemoval(const QModelIndex& parent, int first, int last)
{
    // The neighbour of a project is another project, on which the user does not work.
    if (!parent.isValid())
        return;
    const QItemSelection selected = m_tree.selectionModel()->selection();
    const bool isSelected = std::any_of(selected.begin(), selected.end(), [&](const QItemSelectionRange& range) {
        return range.parent() == parent &&
               isAnyDeleted(parent, std::max(range.top(), first), std::min(range.bottom(), last));
    });
    if (!isSelected)
        return;
    // Blocks of rows are removed from the end, so the last block is the first one in the tree.
    m_parent = parent;
    m_row = first;
    m_timer.start(0);
}

/// A filter removes rows of objects that still exist. The next key must not act on another object then.
bool NeighbourSelection::isAnyDeleted(const QModelIndex& parent, int first, int last) const
{
    for (int row = first; row <= last; ++row)
        if (m_model.objectAt(m_model.index(row, 0, parent)) == nullptr)
            return true;
    return false;
}

void NeighbourSelection::selectNeighbour()
{
    if (m_selection.getCount() != 0 || !m_parent.isValid())
        return;
    const int count = m_model.rowCount(m_parent);
    const QModelIndex neighbour =
        count == 0 ? QModelIndex(m_parent) : m_model.index(std::min(m_row, count - 1), 0, m_parent);
    if (Obj::ProjectObject* const object = m_model.objectAt(neighbour))
        m_selection.setSelection({}, {object});
    else if (Obj::Project* const project = m_model.projectAt(neighbour))
        m_selection.setSelection({project}, {});
}

} // namespace Gui
