#include "Gui/ProjectExplorer.h"

#include "workbench/MenuBuilder.h"

#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/MainWindow.h"
#include "Gui/StdSimModule.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QItemSelection>
#include <QMenu>
#include <QMouseEvent>

#include <exception>

namespace Gui {

namespace {

ViewFeeder* feederOf(Obj::Project* project, Obj::ProjectObject* object)
{
    if (object != nullptr)
        return GuiApplication::Instance->get_view_feeder(object);
    GuiProject* const guiProject = GuiApplication::Instance->get_project(project);
    return guiProject != nullptr ? guiProject->get_view_feeder() : nullptr;
}

/// What the user does next applies to the project in which something is selected.
void makeCurrent(const std::vector<Obj::Project*>& projects, const std::vector<Obj::ProjectObject*>& objects)
{
    if (!projects.empty())
        Obj::Application::instance().set_current_project(*projects.front());
    else if (!objects.empty())
        Obj::Application::instance().set_current_project(*objects.front()->get_project());
}

} // namespace

ProjectExplorer::ProjectExplorer(QWidget* parent) : QTreeView(parent)
{
    setObjectName(QStringLiteral("projectExplorer"));
    setAccessibleName(tr("Project explorer"));
    setModel(&m_model);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::EditKeyPressed);
    setExpandsOnDoubleClick(false);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ProjectExplorer::takeOverSelection);
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex& index) {
        if (index.isValid())
            expand(index);
    });
    connect(&TreeSelectionSingleton::instance(), &TreeSelectionSingleton::selectionChanged, this,
            &ProjectExplorer::showSelection);
}

ProjectExplorer::~ProjectExplorer() = default;

bool ProjectExplorer::renameSelected()
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    if (selected.size() != 1 || m_model.objectAt(selected.first()) == nullptr)
        return false;
    setCurrentIndex(selected.first());
    edit(selected.first());
    return true;
}

void ProjectExplorer::selectAllObjects()
{
    m_model.synchronize();
    const Obj::Project* const project = Obj::Application::get_current_project();
    const QModelIndex parent = project != nullptr ? m_model.indexOf(*project) : QModelIndex();
    const int count = parent.isValid() ? m_model.rowCount(parent) : 0;
    if (count > 0)
        selectionModel()->select({m_model.index(0, 0, parent), m_model.index(count - 1, 0, parent)},
                                 QItemSelectionModel::ClearAndSelect);
}

void ProjectExplorer::contextMenuEvent(QContextMenuEvent* event)
{
    const QModelIndex index = event->reason() == QContextMenuEvent::Keyboard ? currentIndex() : indexAt(event->pos());
    showMenu(index, event->reason() == QContextMenuEvent::Keyboard
                        ? viewport()->mapToGlobal(visualRect(index).bottomLeft())
                        : event->globalPos());
}

void ProjectExplorer::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    if (event->button() != Qt::LeftButton || !open(index))
        QTreeView::mouseDoubleClickEvent(event);
}

void ProjectExplorer::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || state() == QAbstractItemView::EditingState || !open(currentIndex()))
        QTreeView::keyPressEvent(event);
}

void ProjectExplorer::editFromMenu()
{
    const auto* const action = qobject_cast<const QAction*>(sender());
    ViewFeeder* const feeder = feederOf(m_model.projectAt(m_menuIndex), m_model.objectAt(m_menuIndex));
    if (action != nullptr && feeder != nullptr)
        feeder->setEdit(action->data().toInt());
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
    TreeSelectionSingleton::instance().set_selection(projects, objects);
    m_selecting = false;
}

void ProjectExplorer::showSelection()
{
    if (m_selecting)
        return;
    const TreeSelectionSingleton& selection = TreeSelectionSingleton::instance();
    // What left the tree has left the selection already.
    m_selecting = true;
    m_model.synchronize();
    const std::vector<Obj::Project*> projects = selection.get_projects();
    const auto objects = selection.get_objects_of_type(Obj::ProjectObject::getClassTypeId());
    makeCurrent(projects, objects);
    QItemSelection items;
    for (const Obj::Project* const project : projects)
        items.select(m_model.indexOf(*project), m_model.indexOf(*project));
    for (const Obj::ProjectObject* const object : objects)
        items.select(m_model.indexOf(*object), m_model.indexOf(*object));
    selectionModel()->select(items, QItemSelectionModel::ClearAndSelect);
    m_selecting = false;
}

bool ProjectExplorer::open(const QModelIndex& index)
{
    ViewFeeder* const feeder = index.isValid() ? feederOf(m_model.projectAt(index), m_model.objectAt(index)) : nullptr;
    return feeder != nullptr && feeder->on_double_clicked();
}

void ProjectExplorer::showMenu(const QModelIndex& index, const QPoint& position)
{
    m_menuIndex = index;
    MenuItem items;
    QMenu menu;
    ViewFeeder* const feeder = index.isValid() ? feederOf(m_model.projectAt(index), m_model.objectAt(index)) : nullptr;
    if (feeder != nullptr) {
        feeder->build_context_menu(&menu, this, SLOT(editFromMenu()));
        feeder->build_context_menu("Tree", &items);
    } else {
        items << "Mat_NewDoc";
    }
    const MainWindow* const mainWindow = MainWindow::get_main_window_inst();
    if (mainWindow != nullptr && mainWindow->get_workbench() != nullptr)
        mainWindow->get_workbench()->build_context_menu("Tree", &items);
    fillMenu(menu, items);
    if (!menu.isEmpty())
        menu.exec(position);
}

} // namespace Gui
