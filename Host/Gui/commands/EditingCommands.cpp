#include "commands/EditingCommands.h"

#include "Gui/CommandController.h"
#include "Gui/CommandTable.h"
#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/ObjectClipboard.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "commands/CellCopy.h"
#include "commands/Deletion.h"
#include "commands/HistoryCommands.h"
#include "properties/ColorChoice.h"
#include "vxMsg/MessageProxy.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace Gui {

namespace {

constexpr const char* context = "StandardCommand";

using Objects = std::vector<Obj::ProjectObject*>;

bool hasProject()
{
    return Obj::Application::get_current_project() != nullptr;
}

Objects selectedIn(const TreeSelectionSingleton& selection)
{
    return selection.get_objects_of_type(Obj::ProjectObject::getClassTypeId());
}

/// Selects the new objects, so that the next command applies to them.
void selectAlone(TreeSelectionSingleton& selection, const Objects& objects)
{
    if (!objects.empty())
        selection.setSelection({}, objects);
}

void paste(const ObjectClipboard& clipboard, TreeSelectionSingleton& selection)
{
    if (Obj::Project* const project = Obj::Application::get_current_project())
        selectAlone(selection, clipboard.paste(*project));
}

/// A listener of one change may delete the next object.
void suppress(vxMsg::MessageProxy& requests, const TreeSelectionSingleton& selection, bool suppressed)
{
    for (Obj::ProjectObject* const object : selectedIn(selection))
        if (object->get_project() != nullptr)
            requests.setSuppressed(*object, suppressed);
}

bool canSuppress(const TreeSelectionSingleton& selection, bool suppressed)
{
    const Objects objects = selectedIn(selection);
    return std::any_of(objects.begin(), objects.end(),
                       [suppressed](const auto* object) { return object->isSuppressed() != suppressed; });
}

/// Returns the colour of an object that the user may change; absent if it has none.
std::optional<ColorPlace> colorOf(const GuiApplication& application, Obj::ProjectObject* object)
{
    const ViewFeeder* const node = application.get_view_feeder(object);
    const Obj::PropertyColor* const color = node != nullptr ? findColor(*node) : nullptr;
    if (color == nullptr)
        return std::nullopt;
    return ColorPlace{application.placeOf(*node), node->get_property_name(color)};
}

bool hasColor(const GuiApplication& application, const TreeSelectionSingleton& selection)
{
    const Objects objects = selectedIn(selection);
    return MainWindow::get_main_window_inst() != nullptr &&
           std::any_of(objects.begin(), objects.end(),
                       [&application](auto* object) { return colorOf(application, object).has_value(); });
}

void chooseColorOfSelected(GuiApplication& application, const TreeSelectionSingleton& selection)
{
    std::vector<ColorPlace> places;
    for (Obj::ProjectObject* const object : selectedIn(selection))
        if (auto place = colorOf(application, object))
            places.push_back(std::move(*place));
    chooseColor(*MainWindow::get_main_window_inst(), application.requests(), places);
}

std::vector<CommandRow> colorRows(GuiApplication& application, const TreeSelectionSingleton& selection)
{
    return {{"Std_Color",
             QT_TRANSLATE_NOOP("StandardCommand", "C&olor..."),
             QT_TRANSLATE_NOOP("StandardCommand", "Choose the color of the selected objects"),
             "",
             {},
             CommandType::onTree,
             [&] { chooseColorOfSelected(application, selection); },
             [&] { return hasColor(application, selection); }}};
}

void rename()
{
    // The tree edits the label.
    MainWindow& window = *MainWindow::get_main_window_inst();
    window.showProjectExplorer();
    window.getProjectExplorer().renameSelected();
}

void find()
{
    MainWindow& window = *MainWindow::get_main_window_inst();
    window.showProjectExplorer();
    window.getProjectExplorer().find();
}

bool canFind()
{
    return MainWindow::get_main_window_inst() != nullptr && hasProject();
}

bool canRename(const TreeSelectionSingleton& selection)
{
    return MainWindow::get_main_window_inst() != nullptr && selection.getCount() == 1;
}

bool canSelectAll()
{
    const Obj::Project* const project = Obj::Application::get_current_project();
    return MainWindow::get_main_window_inst() != nullptr && project != nullptr && project->getObjectCount() != 0;
}

void collect(vxMsg::MessageProxy& requests)
{
    const std::string name = Obj::Application::get_current_project()->get_name();
    if (requests.handOver(name))
        MainWindow::announce(QCoreApplication::translate(context, "\"%1\" was handed over to the solver.")
                                 .arg(QString::fromStdString(name)));
}

/// Returns whether a command for the selected objects may run. In an editor's table, the user means the table.
bool hasAddressedObjects(const TreeSelectionSingleton& selection)
{
    const MainWindow* const window = MainWindow::get_main_window_inst();
    return (window == nullptr || window->isExplorerAddressed()) && !selectedIn(selection).empty();
}

/// Returns the list or table outside the project explorer in which the user works; null if there is none.
QAbstractItemView* cellsToCopy()
{
    const MainWindow* const window = MainWindow::get_main_window_inst();
    const bool isElsewhere = window != nullptr && !window->isExplorerAddressed();
    return isElsewhere ? findCells(window->getFocusedWidget()) : nullptr;
}

void copySelected(const ObjectClipboard& clipboard, const TreeSelectionSingleton& selection)
{
    if (QAbstractItemView* const cells = cellsToCopy())
        copyCells(*cells);
    else
        clipboard.copy(selectedIn(selection));
}

std::vector<CommandRow> clipboardRows(ObjectClipboard& clipboard, TreeSelectionSingleton& selection)
{
    const auto hasObjects = [&selection] { return hasAddressedObjects(selection); };
    return {
        {"Std_Copy", QT_TRANSLATE_NOOP("StandardCommand", "&Copy"),
         QT_TRANSLATE_NOOP("StandardCommand", "Copy the selected objects"), "kelta_copy", QKeySequence::Copy,
         CommandType::onTree, [&clipboard, &selection] { copySelected(clipboard, selection); },
         [&selection] { return cellsToCopy() != nullptr || hasAddressedObjects(selection); }},
        {"Std_Paste", QT_TRANSLATE_NOOP("StandardCommand", "&Paste"),
         QT_TRANSLATE_NOOP("StandardCommand", "Add the copied objects to the project"), "kelta_paste",
         QKeySequence::Paste, CommandType::onTree, [&clipboard, &selection] { paste(clipboard, selection); },
         [&clipboard] { return hasProject() && clipboard.holdsObjects(); }},
        {"Std_DuplicateSelection", QT_TRANSLATE_NOOP("StandardCommand", "Dup&licate"),
         QT_TRANSLATE_NOOP("StandardCommand", "Add a copy of each selected object"), "", Qt::CTRL + Qt::Key_D,
         CommandType::onTree,
         [&clipboard, &selection] { selectAlone(selection, clipboard.duplicate(selectedIn(selection))); }, hasObjects},
    };
}

std::vector<CommandRow> deletionRows(vxMsg::MessageProxy& requests, const TreeSelectionSingleton& selection)
{
    return {
        {"Std_Delete", QT_TRANSLATE_NOOP("StandardCommand", "Dele&te"),
         QT_TRANSLATE_NOOP("StandardCommand", "Delete the selected objects"), "", QKeySequence::Delete,
         CommandType::onTree, [&requests, &selection] { deleteSelected(requests, selection); },
         [&selection] { return hasAddressedObjects(selection); }},
        {"Std_CloseProject",
         QT_TRANSLATE_NOOP("StandardCommand", "&Close project"),
         QT_TRANSLATE_NOOP("StandardCommand", "Close the selected project, or the project of the selected object"),
         "",
         {},
         CommandType::none,
         [&requests, &selection] { closeSelected(requests, selection); },
         hasProject},
    };
}

std::vector<CommandRow> suppressionRows(vxMsg::MessageProxy& requests, const TreeSelectionSingleton& selection)
{
    return {
        {"Std_Suppress",
         QT_TRANSLATE_NOOP("StandardCommand", "&Suppress"),
         QT_TRANSLATE_NOOP("StandardCommand", "Suppress the selected objects: they are not used, but not deleted"),
         "",
         {},
         CommandType::onTree,
         [&requests, &selection] { suppress(requests, selection, true); },
         [&selection] { return canSuppress(selection, true); }},
        {"Std_Unsuppress",
         QT_TRANSLATE_NOOP("StandardCommand", "U&nsuppress"),
         QT_TRANSLATE_NOOP("StandardCommand", "End the suppression of the selected objects"),
         "",
         {},
         CommandType::onTree,
         [&requests, &selection] { suppress(requests, selection, false); },
         [&selection] { return canSuppress(selection, false); }},
    };
}

std::vector<CommandRow> projectRows(vxMsg::MessageProxy& requests, const TreeSelectionSingleton& selection)
{
    return {
        {"Std_Rename", QT_TRANSLATE_NOOP("StandardCommand", "Rena&me"),
         QT_TRANSLATE_NOOP("StandardCommand", "Give the selected object or project another name"), "", Qt::Key_F2,
         CommandType::onTree, rename, [&selection] { return canRename(selection); }},
        {"Std_Find", QT_TRANSLATE_NOOP("StandardCommand", "F&ind..."),
         QT_TRANSLATE_NOOP("StandardCommand", "Show only the objects that match an expression"), "", QKeySequence::Find,
         CommandType::none, find, canFind},
        {"Std_SelectAll", QT_TRANSLATE_NOOP("StandardCommand", "Select &all"),
         QT_TRANSLATE_NOOP("StandardCommand", "Select all objects of the project"), "", QKeySequence::SelectAll,
         CommandType::onTree, [] { MainWindow::get_main_window_inst()->getProjectExplorer().selectAllObjects(); },
         canSelectAll},
        {"Std_Collect",
         QT_TRANSLATE_NOOP("StandardCommand", "&Hand over to the solver"),
         QT_TRANSLATE_NOOP("StandardCommand", "Hand the data of the project over to the solver"),
         "",
         {},
         CommandType::none,
         [&requests] { collect(requests); },
         hasProject},
    };
}

} // namespace

void addEditingCommands(GuiApplication& application, TreeSelectionSingleton& selection)
{
    CommandController& commands = application.get_command_manager();
    addHistoryCommands(commands, application.requests().undoStack(), selection);
    addCommands(commands, context, clipboardRows(application.objectClipboard(), selection));
    addCommands(commands, context, deletionRows(application.requests(), selection));
    addCommands(commands, context, suppressionRows(application.requests(), selection));
    addCommands(commands, context, projectRows(application.requests(), selection));
    addCommands(commands, context, colorRows(application, selection));
}

} // namespace Gui
