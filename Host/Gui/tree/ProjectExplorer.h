#pragma once

#include "Gui/GuiExport.h"
#include "Gui/ProjectTreeModel.h"

#include <QTreeView>

#include <string>
#include <vector>

class QMenu;

namespace Gui {

class MainWindow;
class TreeSelectionSingleton;
class ViewFeeder;

/// The project tree: selects, renames, opens by a double click, and offers what each node does in its context menu. Keys
/// act on what is selected: Return and the menu key on the current row if it is selected, else on the first that is.
class GUI_EXPORT ProjectExplorer : public QTreeView
{
    Q_OBJECT

public:
    /// Shows the projects of `application` and the selection, and takes menus and editors from `window`; all three must
    /// outlive it.
    ProjectExplorer(MainWindow& window, GuiApplication& application, TreeSelectionSingleton& selection,
                    QWidget* parent = nullptr);
    ~ProjectExplorer() override;

    /// Begins to rename the selected object. Returns false if not exactly one object is selected.
    bool renameSelected();
    /// Selects all objects of the current project.
    void selectAllObjects();
    /// Ends the editing of a label, and keeps what was typed.
    void finishEditing();

protected:
    using QTreeView::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    /// The user has chosen an entry of a node's own menu; its data is the edit mode.
    void editFromMenu();

private:
    void configure();
    void connectSelection();
    void takeOverSelection();
    void showSelection();
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
};

} // namespace Gui
