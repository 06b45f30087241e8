#pragma once

#include "Gui/GuiExport.h"
#include "Gui/ProjectTreeModel.h"

#include <QTreeView>

namespace Gui {

/// The project tree: selects, renames, opens by a double click, and offers what each node does in its context menu.
class GUI_EXPORT ProjectExplorer : public QTreeView
{
    Q_OBJECT

public:
    explicit ProjectExplorer(QWidget* parent = nullptr);
    ~ProjectExplorer() override;

    ProjectTreeModel& treeModel() { return m_model; }

    /// Begins to rename the object that is selected alone; false when there is no such.
    bool renameSelected();
    /// Selects all objects of the current project.
    void selectAllObjects();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    /// An entry of a node's own menu has been chosen; its data is the edit mode.
    void editFromMenu();

private:
    void takeOverSelection();
    void showSelection();
    bool open(const QModelIndex& index);
    void showMenu(const QModelIndex& index, const QPoint& position);

    ProjectTreeModel m_model;
    bool m_selecting = false;
    QPersistentModelIndex m_menuIndex;
};

} // namespace Gui
