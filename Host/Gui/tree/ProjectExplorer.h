#pragma once

#include "Gui/GuiExport.h"
#include "Gui/ProjectTreeModel.h"

#include <QTreeView>

#include <set>
#include <string>
#include <vector>

class QMenu;

namespace Gui {

class MainWindow;
class TreeSelectionSingleton;
class ViewFeeder;

/// The project tree: selects and renames objects, opens them by a double click, and shows the context menu of a node.
/// Return and the menu key act on the current row if it is selected, else on the first selected row.
class GUI_EXPORT ProjectExplorer : public QTreeView
{
    Q_OBJECT

public:
    /// Shows the projects of `application` and the selection. `window` provides menus and editors. All three must
    /// outlive it.
    ProjectExplorer(MainWindow& window, GuiApplication& application, TreeSelectionSingleton& selection,
                    QWidget* parent = nullptr);
    ~ProjectExplorer() override;

    /// Begins to rename the selected object or project. Returns false if not exactly one is selected.
    bool renameSelected();
    /// Selects all objects of the current project.
    void selectAllObjects();
    /// Ends the editing of a label, and keeps the typed text.
    void finishEditing();

    /// Shows only the objects that a filter finds, with their groups expanded, or all objects for an empty filter. What is
    /// hidden is not selected. Without a filter, groups are expanded and collapsed as before.
    void setFilter(ProjectTreeModel::Filter filter);
    ProjectTreeModel::MatchCounts matchCounts() const { return m_model.matchCounts(); }
    /// Gives the keyboard to the tree, and selects the first object that the filter finds if nothing is selected.
    void enter();
    /// Gives the keyboard to the field for the filter.
    void find() { Q_EMIT findRequested(); }

Q_SIGNALS:
    void findRequested();
    /// As ProjectTreeModel::filtered.
    void filtered(const QStringList& hiddenLabels);

protected:
    using QTreeView::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    /// Carries out an entry that the user chose in the node's own menu. The entry's data is the edit mode.
    void editFromMenu();

private:
    void configure();
    void connectSelection();
    void takeOverSelection();
    void showSelection();
    void selectRows();
    void deselectHidden();
    void restoreExpansion();
    void noteExpansion(const QModelIndex& index, bool isExpanded);
    void makeCurrent(const std::vector<Obj::Project*>& projects, const std::vector<Obj::ProjectObject*>& objects);
    QModelIndex rowForKeys() const;
    void makeRowCurrent(const QModelIndexList& selected);
    void selectBelow(const QModelIndex& parent, QItemSelection& items) const;
    ViewFeeder* nodeAt(const QModelIndex& index) const;
    bool open(const QModelIndex& index);
    void showMenu(const QModelIndex& index, const QPoint& position);
    void addNodeEntries(ViewFeeder& node, QMenu& menu);
    void display(const std::string& mode);

    MainWindow& m_window;
    GuiApplication& m_application;
    TreeSelectionSingleton& m_selection;
    ProjectTreeModel m_model;
    bool m_selecting = false;
    QPersistentModelIndex m_menuIndex;
    QPersistentModelIndex m_edited;
    std::set<quintptr> m_collapsed; ///< rows that the user has collapsed, by the ids of the model
    bool m_restoring = false;
};

} // namespace Gui
