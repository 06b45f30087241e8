#include "Gui/ProjectExplorer.h"

#include "Gui/CommandController.h"
#include "Gui/Contributions.h"
#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/MainWindow.h"
#include "Gui/StdSimModule.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "properties/ColorChoice.h"
#include "tree/NeighbourSelection.h"
#include "window/CoreEditor.h"
#include "window/OpenEditor.h"
#include "workbench/MenuBuilder.h"

#include <QAction>
#include <QActionGroup>
#include <QContextMenuEvent>
#include <QItemSelection>
#include <QMenu>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace Gui {

ProjectExplorer::ProjectExplorer(MainWindow& window, GuiApplication& application, TreeSelectionSingleton& selection,
                                 QWidget* parent)
    : QTreeView(parent), m_window(window), m_application(application), m_selection(selection), m_model(application)
{
    setObjectName(QStringLiteral("projectExplorer"));
    setAccessibleName(tr("Project explorer"));
    new NeighbourSelection(*this, m_model, m_selection); // this widget owns it
    configure();
    connectSelection();
}

ProjectExplorer::~ProjectExplorer() = default;

bool ProjectExplorer::renameSelected()
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    if (selected.size() != 1)
        return false;
    selectionModel()->setCurrentIndex(selected.first(), QItemSelectionModel::NoUpdate);
    edit(selected.first());
    return true;
}

void ProjectExplorer::selectAllObjects()
{
    m_model.synchronize();
    const Obj::Project* const project = Obj::Application::get_current_project();
    QItemSelection items;
    if (project != nullptr)
        selectBelow(m_model.indexOf(*project), items);
    if (items.isEmpty())
        return;
    selectionModel()->select(items, QItemSelectionModel::ClearAndSelect);
    makeRowCurrent(items.indexes());
}

void ProjectExplorer::finishEditing()
{
    if (state() == EditingState)
        Gui::finishEditing(*this, m_edited);
}

void ProjectExplorer::setFilter(ProjectTreeModel::Filter filter)
{
    if (filter == nullptr && !m_model.isFiltered())
        return;
    {
        const QScopedValueRollback<bool> selecting(m_selecting, true);
        m_model.setFilter(std::move(filter));
    }
    deselectHidden();
    selectRows();
}

void ProjectExplorer::enter()
{
    setFocus(Qt::OtherFocusReason);
    if (m_selection.getCount() != 0 || !m_model.isFiltered())
        return;
    for (QModelIndex index = m_model.index(0, 0, {}); index.isValid(); index = indexBelow(index)) {
        Obj::ProjectObject* const object = m_model.objectAt(index);
        if (object == nullptr || !m_model.isFound(*object))
            continue;
        m_selection.setSelection({}, {object});
        return;
    }
}

bool ProjectExplorer::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool isTaken = QTreeView::edit(index, trigger, event);
    if (isTaken && state() == EditingState)
        m_edited = index;
    return isTaken;
}

void ProjectExplorer::changeEvent(QEvent* event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setAccessibleName(tr("Project explorer"));
}

void ProjectExplorer::contextMenuEvent(QContextMenuEvent* event)
{
    const bool isKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = isKey ? rowForKeys() : indexAt(event->pos());
    showMenu(index, isKey ? viewport()->mapToGlobal(visualRect(index).bottomLeft()) : event->globalPos());
}

void ProjectExplorer::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    if (event->button() != Qt::LeftButton || !open(index))
        QTreeView::mouseDoubleClickEvent(event);
}

void ProjectExplorer::keyPressEvent(QKeyEvent* event)
{
    // The commands that rename and delete may not be enabled yet.
    if (event->key() == Qt::Key_F2 && renameSelected())
        return;
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
        m_application.get_command_manager().runCommand("Std_Delete");
        return;
    }
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || state() == QAbstractItemView::EditingState || !open(rowForKeys()))
        QTreeView::keyPressEvent(event);
}

void ProjectExplorer::editFromMenu()
{
    const auto* const action = qobject_cast<const QAction*>(sender());
    ViewFeeder* const node = nodeAt(m_menuIndex);
    if (action != nullptr && node != nullptr)
        node->setEdit(action->data().toInt());
}

void ProjectExplorer::configure()
{
    setModel(&m_model);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    // Renames the selected object, which may differ from the current row.
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setExpandsOnDoubleClick(false);
    const auto expandParent = [this](const QModelIndex& parent) {
        if (parent.isValid())
            expand(parent);
    };
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, expandParent);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &ProjectExplorer::restoreExpansion);
    connect(&m_model, &ProjectTreeModel::filtered, this, [this](const QStringList& hiddenLabels) {
        deselectHidden();
        selectRows();
        Q_EMIT filtered(hiddenLabels);
    });
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) { noteExpansion(index, true); });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) { noteExpansion(index, false); });
    connect(&m_model, &QAbstractItemModel::rowsMoved, this,
            [expandParent](const QModelIndex&, int, int, const QModelIndex& target) { expandParent(target); });
}

void ProjectExplorer::connectSelection()
{
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ProjectExplorer::takeOverSelection);
    connect(&m_selection, &TreeSelectionSingleton::selectionChanged, this, &ProjectExplorer::showSelection);
}

void ProjectExplorer::takeOverSelection()
{
    if (m_selecting)
        return;
    std::vector<Obj::Project*> projects;
    std::vector<Obj::ProjectObject*> objects;
    for (const QModelIndex& index : selectionModel()->selectedIndexes()) {
        if (Obj::ProjectObject* const object = m_model.objectAt(index))
            objects.push_back(object);
        else if (Obj::Project* const project = m_model.projectAt(index))
            projects.push_back(project);
    }
    makeCurrent(projects, objects);
    m_selecting = true;
    m_selection.setSelection(projects, objects);
    m_selecting = false;
}

void ProjectExplorer::showSelection()
{
    if (m_selecting)
        return;
    m_selecting = true;
    // Removed entries are no longer selected.
    m_model.synchronize();
    makeCurrent(m_selection.get_projects(), m_selection.get_objects_of_type(Obj::ProjectObject::getClassTypeId()));
    m_selecting = false;
    selectRows();
    // What a filter hides is deselected later, because a new object may not have its content yet.
    if (m_model.isFiltered())
        m_model.synchronizeLater();
}

void ProjectExplorer::selectRows()
{
    m_selecting = true;
    const std::vector<Obj::Project*> projects = m_selection.get_projects();
    const auto objects = m_selection.get_objects_of_type(Obj::ProjectObject::getClassTypeId());
    QItemSelection items;
    for (const Obj::Project* const project : projects)
        items.select(m_model.indexOf(*project), m_model.indexOf(*project));
    for (const Obj::ProjectObject* const object : objects)
        if (const QModelIndex index = m_model.indexOf(*object); index.isValid())
            items.select(index, index);
    selectionModel()->select(items, QItemSelectionModel::ClearAndSelect);
    makeRowCurrent(items.indexes());
    m_selecting = false;
    // On the start page, the next key is meant for what the command of its button has selected.
    if (!items.isEmpty() && m_window.getMdiWindows().isEmpty() && m_window.isExplorerAddressed())
        setFocus(Qt::OtherFocusReason);
}

void ProjectExplorer::deselectHidden()
{
    std::vector<Obj::ProjectObject*> objects = m_selection.get_objects_of_type(Obj::ProjectObject::getClassTypeId());
    const auto isHidden = [this](const Obj::ProjectObject* object) { return !m_model.indexOf(*object).isValid(); };
    const auto hidden = std::remove_if(objects.begin(), objects.end(), isHidden);
    if (!m_model.isFiltered() || hidden == objects.end())
        return;
    objects.erase(hidden, objects.end());
    m_selecting = true;
    m_selection.setSelection(m_selection.get_projects(), objects);
    m_selecting = false;
}

/// After a reset, all rows are collapsed.
void ProjectExplorer::restoreExpansion()
{
    m_restoring = true;
    for (const QModelIndex& index : m_model.parents())
        if (m_model.isFiltered() || m_collapsed.count(index.internalId()) == 0)
            expand(index);
    m_restoring = false;
}

void ProjectExplorer::noteExpansion(const QModelIndex& index, bool isExpanded)
{
    if (m_restoring)
        return;
    if (isExpanded)
        m_collapsed.erase(index.internalId());
    else
        m_collapsed.insert(index.internalId());
}

/// A node that has its own selection cannot be selected here.
QModelIndex ProjectExplorer::rowForKeys() const
{
    const QModelIndex current = currentIndex();
    const bool isSelectable = (m_model.flags(current) & Qt::ItemIsSelectable) != 0;
    if (current.isValid() && (!isSelectable || selectionModel()->isSelected(current)))
        return current;
    return selectionModel()->selectedIndexes().value(0);
}

/// Makes one of the selected rows the current row, from which the arrow keys move.
void ProjectExplorer::makeRowCurrent(const QModelIndexList& selected)
{
    if (!selected.isEmpty() && !selected.contains(currentIndex()))
        selectionModel()->setCurrentIndex(selected.first(), QItemSelectionModel::NoUpdate);
}

/// The next command of the user applies to the project that contains the selection.
void ProjectExplorer::makeCurrent(const std::vector<Obj::Project*>& projects,
                                  const std::vector<Obj::ProjectObject*>& objects)
{
    if (!projects.empty())
        Obj::Application::instance().setCurrentProject(*projects.front());
    else if (!objects.empty())
        Obj::Application::instance().setCurrentProject(*objects.front()->get_project());
}

// NOLINTNEXTLINE(misc-no-recursion): at most ProjectObjectGroup::deepestNesting deep
void ProjectExplorer::selectBelow(const QModelIndex& parent, QItemSelection& items) const
{
    const int count = parent.isValid() ? m_model.rowCount(parent) : 0;
    if (count == 0)
        return;
    items.select(m_model.index(0, 0, parent), m_model.index(count - 1, 0, parent));
    for (int row = 0; row < count; ++row)
        selectBelow(m_model.index(row, 0, parent), items);
}

ViewFeeder* ProjectExplorer::nodeAt(const QModelIndex& index) const
{
    if (Obj::ProjectObject* const object = m_model.objectAt(index))
        return m_application.get_view_feeder(object);
    GuiProject* const project = m_application.get_project(m_model.projectAt(index));
    return project != nullptr ? project->get_view_feeder() : nullptr;
}

bool ProjectExplorer::open(const QModelIndex& index)
{
    ViewFeeder* const node = nodeAt(index);
    if (node == nullptr || node->on_double_clicked())
        return node != nullptr;
    Obj::ProjectObject* const object = m_model.objectAt(index);
    return object != nullptr && openCoreEditor(m_window, m_application, *object);
}

void ProjectExplorer::showMenu(const QModelIndex& index, const QPoint& position)
{
    m_menuIndex = index;
    MenuItem items;
    QMenu menu;
    if (ViewFeeder* const node = nodeAt(index)) {
        addNodeEntries(*node, menu);
        node->build_context_menu("Tree", &items);
        if (!items.hasItems())
            items << (m_model.objectAt(index) != nullptr ? "Std_Delete" : "Std_CloseProject");
        items << MenuItem::separator << "Std_Rename";
        if (findColor(*node) != nullptr)
            items << "Std_Color";
    } else {
        for (const std::string& command : m_window.contributions().treeMenu())
            items << command.c_str();
    }
    if (m_window.getWorkbench() != nullptr)
        m_window.getWorkbench()->build_context_menu("Tree", &items);
    MenuBuilder(m_application.get_command_manager(), m_window).fillMenu(menu, items);
    if (!menu.isEmpty())
        menu.exec(position);
}

/// Adds the actions of the node itself, and its display modes if there are several.
void ProjectExplorer::addNodeEntries(ViewFeeder& node, QMenu& menu)
{
    node.build_context_menu(&menu, this, SLOT(editFromMenu()));
    const std::vector<std::string> modes = node.getDisplayModes();
    if (modes.size() < 2)
        return;
    QMenu* const choices = menu.addMenu(tr("Display as"));
    auto* const group = new QActionGroup(choices);
    for (const std::string& mode : modes) {
        QAction* const action = group->addAction(QCoreApplication::translate("DisplayMode", mode.c_str()));
        action->setCheckable(true);
        action->setChecked(mode == node.getDisplayMode());
        connect(action, &QAction::triggered, this, [this, mode] { display(mode); });
    }
    choices->addActions(group->actions());
}

void ProjectExplorer::display(const std::string& mode)
{
    ViewFeeder* const node = nodeAt(m_menuIndex);
    if (node == nullptr)
        return;
    node->setDisplayMode(mode.c_str());
    // The mode may change the visibility and the picture of the node.
    m_model.synchronize();
    viewport()->update();
}

} // namespace Gui
