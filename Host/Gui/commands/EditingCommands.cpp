#include "commands/EditingCommands.h"

#include "Gui/CommandController.h"
#include "Gui/CommandTable.h"
#include "Gui/EditCommands.h"
#include "Gui/MainWindow.h"
#include "Gui/ObjectClipboard.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"
#include "vxMsg/MessageProxy.h"

#include <QUndoStack>

#include <algorithm>

namespace Gui {

namespace {

constexpr const char* context = "StandardCommand";

using Objects = std::vector<Obj::ProjectObject*>;

/// Where an object is found again: listeners of one change may delete the next object.
struct Place
{
    std::uint32_t projectId;
    std::uint32_t objectId;
};

std::vector<Place> placesOf(const Objects& objects)
{
    std::vector<Place> places;
    places.reserve(objects.size());
    for (const Obj::ProjectObject* const object : objects)
        places.push_back({object->get_project()->getProjectId(), object->getObjectId()});
    return places;
}

/// The objects that still exist.
Objects find(const std::vector<Place>& places)
{
    Objects objects;
    for (const Place& place : places) {
        const Obj::Project* const project = Obj::Application::instance().get_project(place.projectId);
        if (Obj::ProjectObject* const object = project != nullptr ? project->get_object(place.objectId) : nullptr)
            objects.push_back(object);
    }
    return objects;
}

QUndoStack& undoStack()
{
    return vxMsg::MessageProxy::instance().undoStack();
}

Objects selectedIn(const TreeSelectionSingleton& selection)
{
    return selection.get_objects_of_type(Obj::ProjectObject::getClassTypeId());
}

/// The next command applies to the new objects.
void selectAlone(TreeSelectionSingleton& selection, const Objects& objects)
{
    if (!objects.empty())
        selection.set_selection({}, objects);
}

void paste(TreeSelectionSingleton& selection)
{
    if (Obj::Project* const project = Obj::Application::get_current_project())
        selectAlone(selection, ObjectClipboard::paste(*project));
}

bool canPaste()
{
    return Obj::Application::get_current_project() != nullptr && ObjectClipboard::holds_objects();
}

void duplicate(TreeSelectionSingleton& selection)
{
    std::vector<Place> copies;
    for (const Place& place : placesOf(selectedIn(selection)))
        for (Obj::ProjectObject* const object : find({place})) {
            const auto made = placesOf(ObjectClipboard::read(ObjectClipboard::write({object}), *object->get_project()));
            copies.insert(copies.end(), made.begin(), made.end());
        }
    selectAlone(selection, find(copies));
}

void suppress(const TreeSelectionSingleton& selection, bool suppressed)
{
    for (const Place& place : placesOf(selectedIn(selection)))
        for (Obj::ProjectObject* const object : find({place}))
            setSuppressed(*object, suppressed);
}

bool canSuppress(const TreeSelectionSingleton& selection, bool suppressed)
{
    const Objects objects = selectedIn(selection);
    return std::any_of(objects.begin(), objects.end(),
                       [suppressed](const auto* object) { return object->isSuppressed() != suppressed; });
}

void rename()
{
    // The label is edited in the tree.
    MainWindow& window = *MainWindow::get_main_window_inst();
    window.show_project_explorer();
    window.get_project_explorer().renameSelected();
}

bool canRename(const TreeSelectionSingleton& selection)
{
    return MainWindow::get_main_window_inst() != nullptr && selection.get_count() == 1 &&
           selectedIn(selection).size() == 1;
}

bool canSelectAll()
{
    const Obj::Project* const project = Obj::Application::get_current_project();
    return MainWindow::get_main_window_inst() != nullptr && project != nullptr && project->get_object_count() != 0;
}

bool hasProject()
{
    return Obj::Application::get_current_project() != nullptr;
}

void collect()
{
    Obj::Project& project = *Obj::Application::get_current_project();
    const QString name = QString::fromUtf8(project.get_name());
    project.collect_frontend_data();
    MainWindow::announce(QCoreApplication::translate(context, "\"%1\" was handed over to the solver.").arg(name));
}

std::vector<CommandRow> historyRows()
{
    return {
        {"Std_Undo", QT_TRANSLATE_NOOP("StandardCommand", "&Undo"),
         QT_TRANSLATE_NOOP("StandardCommand", "Take back the last change"), "kelta_undo", QKeySequence::Undo,
         CommandType::None, [] { undoStack().undo(); }, [] { return undoStack().canUndo(); }},
        {"Std_Redo", QT_TRANSLATE_NOOP("StandardCommand", "&Redo"),
         QT_TRANSLATE_NOOP("StandardCommand", "Make again the change that was taken back"), "kelta_redo",
         QKeySequence::Redo, CommandType::None, [] { undoStack().redo(); }, [] { return undoStack().canRedo(); }},
    };
}

std::vector<CommandRow> clipboardRows(TreeSelectionSingleton& selection)
{
    const auto hasObjects = [&selection] { return !selectedIn(selection).empty(); };
    return {
        {"Std_Copy", QT_TRANSLATE_NOOP("StandardCommand", "&Copy"),
         QT_TRANSLATE_NOOP("StandardCommand", "Copy the selected objects"), "kelta_copy", QKeySequence::Copy,
         CommandType::OnTree, [&selection] { ObjectClipboard::copy(selectedIn(selection)); }, hasObjects},
        {"Std_Paste", QT_TRANSLATE_NOOP("StandardCommand", "&Paste"),
         QT_TRANSLATE_NOOP("StandardCommand", "Add the copied objects to the project"), "kelta_paste",
         QKeySequence::Paste, CommandType::OnTree, [&selection] { paste(selection); }, canPaste},
        {"Std_DuplicateSelection", QT_TRANSLATE_NOOP("StandardCommand", "Dup&licate"),
         QT_TRANSLATE_NOOP("StandardCommand", "Add a copy of each selected object"), "", Qt::CTRL + Qt::Key_D,
         CommandType::OnTree, [&selection] { duplicate(selection); }, hasObjects},
    };
}

std::vector<CommandRow> objectRows(TreeSelectionSingleton& selection)
{
    return {
        {"Std_Suppress",
         QT_TRANSLATE_NOOP("StandardCommand", "&Suppress"),
         QT_TRANSLATE_NOOP("StandardCommand", "Take the selected objects out of use"),
         "",
         {},
         CommandType::OnTree,
         [&selection] { suppress(selection, true); },
         [&selection] { return canSuppress(selection, true); }},
        {"Std_Unsuppress",
         QT_TRANSLATE_NOOP("StandardCommand", "U&nsuppress"),
         QT_TRANSLATE_NOOP("StandardCommand", "Take the selected objects into use again"),
         "",
         {},
         CommandType::OnTree,
         [&selection] { suppress(selection, false); },
         [&selection] { return canSuppress(selection, false); }},
        {"Std_Rename", QT_TRANSLATE_NOOP("StandardCommand", "Rena&me"),
         QT_TRANSLATE_NOOP("StandardCommand", "Give the selected object another label"), "", Qt::Key_F2,
         CommandType::OnTree, rename, [&selection] { return canRename(selection); }},
        {"Std_SelectAll", QT_TRANSLATE_NOOP("StandardCommand", "Select &all"),
         QT_TRANSLATE_NOOP("StandardCommand", "Select all objects of the project"), "", QKeySequence::SelectAll,
         CommandType::OnTree, [] { MainWindow::get_main_window_inst()->get_project_explorer().selectAllObjects(); },
         canSelectAll},
        {"Std_Collect",
         QT_TRANSLATE_NOOP("StandardCommand", "&Hand over to the solver"),
         QT_TRANSLATE_NOOP("StandardCommand", "Hand the data of the project over to the solver"),
         "",
         {},
         CommandType::None,
         collect,
         hasProject},
    };
}

} // namespace

void addEditingCommands(CommandController& commands, TreeSelectionSingleton& selection)
{
    addCommands(commands, context, historyRows());
    addCommands(commands, context, clipboardRows(selection));
    addCommands(commands, context, objectRows(selection));
}

} // namespace Gui
