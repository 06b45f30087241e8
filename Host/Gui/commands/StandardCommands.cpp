#include "commands/StandardCommands.h"

#include "Gui/CommandController.h"
#include "Gui/EditCommands.h"
#include "Gui/MainWindow.h"
#include "Gui/MessageLogView.h"
#include "Gui/ObjectClipboard.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"
#include "vxMsg/MessageProxy.h"

#include <QAction>
#include <QDockWidget>
#include <QMessageBox>
#include <QUndoStack>

#include <algorithm>

namespace Gui {

namespace {

QUndoStack& undoStack()
{
    return vxMsg::MessageProxy::instance().undoStack();
}

std::vector<Obj::ProjectObject*> selectedObjects()
{
    return TreeSelectionSingleton::instance().get_objects_of_type(Obj::ProjectObject::getClassTypeId());
}

/// Where an object is found again: those who hear of one change may delete what comes next.
struct Place
{
    std::uint32_t projectId;
    std::uint32_t objectId;
};

std::vector<Place> placesOf(const std::vector<Obj::ProjectObject*>& objects)
{
    std::vector<Place> places;
    places.reserve(objects.size());
    for (const Obj::ProjectObject* const object : objects)
        places.push_back({object->get_project()->getProjectId(), object->getObjectId()});
    return places;
}

/// Null when the object has gone.
Obj::ProjectObject* find(const Place& place)
{
    const Obj::Project* const project = Obj::Application::instance().get_project(place.projectId);
    return project != nullptr ? project->get_object(place.objectId) : nullptr;
}

MainWindow* mainWindow()
{
    return MainWindow::get_main_window_inst();
}

bool hasDocuments()
{
    return mainWindow() != nullptr && mainWindow()->get_active_mdi_window() != nullptr;
}

void undo()
{
    undoStack().undo();
}

void redo()
{
    undoStack().redo();
}

void copy()
{
    ObjectClipboard::copy(selectedObjects());
}

/// What has come new is selected, so that the next command applies to it.
void selectAlone(const std::vector<Obj::ProjectObject*>& objects)
{
    if (!objects.empty())
        TreeSelectionSingleton::instance().set_selection({}, objects);
}

void paste()
{
    if (Obj::Project* const project = Obj::Application::get_current_project())
        selectAlone(ObjectClipboard::paste(*project));
}

void duplicate()
{
    std::vector<Place> copies;
    for (const Place& place : placesOf(selectedObjects())) {
        Obj::ProjectObject* const object = find(place);
        if (object == nullptr)
            continue;
        const auto made = placesOf(ObjectClipboard::read(ObjectClipboard::write({object}), *object->get_project()));
        copies.insert(copies.end(), made.begin(), made.end());
    }
    std::vector<Obj::ProjectObject*> left;
    for (const Place& place : copies)
        if (Obj::ProjectObject* const object = find(place))
            left.push_back(object);
    selectAlone(left);
}

void setSelectedSuppressed(bool suppressed)
{
    for (const Place& place : placesOf(selectedObjects()))
        if (Obj::ProjectObject* const object = find(place))
            setSuppressed(*object, suppressed);
}

void suppress()
{
    setSelectedSuppressed(true);
}

void unsuppress()
{
    setSelectedSuppressed(false);
}

bool canSuppress()
{
    const auto objects = selectedObjects();
    return std::any_of(objects.begin(), objects.end(), [](const auto* object) { return !object->isSuppressed(); });
}

bool canUnsuppress()
{
    const auto objects = selectedObjects();
    return std::any_of(objects.begin(), objects.end(), [](const auto* object) { return object->isSuppressed(); });
}

void rename()
{
    // The name is edited in the tree.
    mainWindow()->show_project_explorer();
    mainWindow()->get_project_explorer().renameSelected();
}

void selectAll()
{
    mainWindow()->get_project_explorer().selectAllObjects();
}

void about()
{
    QMessageBox::about(mainWindow(), QCoreApplication::translate("StandardCommand", "About"),
                       QCoreApplication::translate("StandardCommand",
                                                   "<h3>%1 %2</h3><p>Materials for finite-element simulation: 26 "
                                                   "ready-made materials, 36 quantities, and the documents and cards "
                                                   "that the solver reads.</p>")
                           .arg(QCoreApplication::applicationName().toHtmlEscaped(),
                                QCoreApplication::applicationVersion().toHtmlEscaped()));
}

template <const char* Name>
void toggleDock()
{
    auto* const dock = mainWindow()->findChild<QDockWidget*>(QLatin1String(Name));
    dock->setVisible(!dock->isVisible());
}

constexpr char explorerName[] = "ProjectExplorer";
constexpr char panelName[] = "PropertyPanel";
constexpr char logName[] = "MessageLog";

bool always()
{
    return true;
}

bool hasWindow()
{
    return mainWindow() != nullptr;
}

/// One command of the host.
struct Row
{
    const char* name;
    const char* menuText;
    const char* toolTip;
    const char* pixmap; ///< name for the picture factory
    QKeySequence::StandardKey standardKey;
    const char* key; ///< where there is no standard key
    int typeFlags;
    void (*run)();
    bool (*isApplicable)();
};

constexpr auto noKey = QKeySequence::UnknownKey;
constexpr int onTree = CommandType::OnTree;

const Row rows[] = {
    {"Std_Undo", QT_TRANSLATE_NOOP("StandardCommand", "&Undo"),
     QT_TRANSLATE_NOOP("StandardCommand", "Take back the last change"), "kelta_undo", QKeySequence::Undo, "", 0, undo,
     [] { return undoStack().canUndo(); }},
    {"Std_Redo", QT_TRANSLATE_NOOP("StandardCommand", "&Redo"),
     QT_TRANSLATE_NOOP("StandardCommand", "Make again the change that was taken back"), "kelta_redo",
     QKeySequence::Redo, "", 0, redo, [] { return undoStack().canRedo(); }},
    {"Std_Copy", QT_TRANSLATE_NOOP("StandardCommand", "&Copy"),
     QT_TRANSLATE_NOOP("StandardCommand", "Copy the selected materials"), "kelta_copy", QKeySequence::Copy, "", onTree,
     copy, [] { return !selectedObjects().empty(); }},
    {"Std_Paste", QT_TRANSLATE_NOOP("StandardCommand", "&Paste"),
     QT_TRANSLATE_NOOP("StandardCommand", "Add the copied materials to the project"), "kelta_paste",
     QKeySequence::Paste, "", onTree, paste,
     [] { return Obj::Application::get_current_project() != nullptr && ObjectClipboard::holds_objects(); }},
    {"Std_DuplicateSelection", QT_TRANSLATE_NOOP("StandardCommand", "Dup&licate"),
     QT_TRANSLATE_NOOP("StandardCommand", "Add a copy of each selected material"), "", noKey, "Ctrl+D", onTree,
     duplicate, [] { return !selectedObjects().empty(); }},
    {"Std_Suppress", QT_TRANSLATE_NOOP("StandardCommand", "&Suppress"),
     QT_TRANSLATE_NOOP("StandardCommand", "Take the selected materials out of use"), "", noKey, "", onTree, suppress,
     canSuppress},
    {"Std_Unsuppress", QT_TRANSLATE_NOOP("StandardCommand", "U&nsuppress"),
     QT_TRANSLATE_NOOP("StandardCommand", "Take the selected materials into use again"), "", noKey, "", onTree,
     unsuppress, canUnsuppress},
    {"Std_Rename", QT_TRANSLATE_NOOP("StandardCommand", "Rena&me"),
     QT_TRANSLATE_NOOP("StandardCommand", "Give the selected material another label"), "", noKey, "F2", onTree, rename,
     [] {
         return TreeSelectionSingleton::instance().get_count() == 1 && selectedObjects().size() == 1 && hasWindow();
     }},
    {"Std_SelectAll", QT_TRANSLATE_NOOP("StandardCommand", "Select &all"),
     QT_TRANSLATE_NOOP("StandardCommand", "Select all materials of the project"), "", QKeySequence::SelectAll, "",
     onTree, selectAll,
     [] {
         const Obj::Project* const project = Obj::Application::get_current_project();
         return hasWindow() && project != nullptr && project->get_object_count() != 0;
     }},
    {"Std_Quit", QT_TRANSLATE_NOOP("StandardCommand", "&Quit"),
     QT_TRANSLATE_NOOP("StandardCommand", "Close the program"), "", noKey, "Ctrl+Q", 0, [] { mainWindow()->close(); },
     hasWindow},
    {"Std_ProjectExplorer", QT_TRANSLATE_NOOP("StandardCommand", "&Project explorer"),
     QT_TRANSLATE_NOOP("StandardCommand", "Show or hide the project explorer"), "", noKey, "", 0,
     toggleDock<explorerName>, hasWindow},
    {"Std_PropertyPanel", QT_TRANSLATE_NOOP("StandardCommand", "P&roperties"),
     QT_TRANSLATE_NOOP("StandardCommand", "Show or hide the properties"), "", noKey, "", 0, toggleDock<panelName>,
     hasWindow},
    {"Std_MessageLog", QT_TRANSLATE_NOOP("StandardCommand", "&Messages"),
     QT_TRANSLATE_NOOP("StandardCommand", "Show or hide the messages"), "", noKey, "", 0, toggleDock<logName>,
     hasWindow},
    {"Std_ClearMessages", QT_TRANSLATE_NOOP("StandardCommand", "C&lear messages"),
     QT_TRANSLATE_NOOP("StandardCommand", "Empty the message log"), "kelta_clear", noKey, "", 0,
     [] { mainWindow()->get_message_log().clearMessages(); }, hasWindow},
    {"Std_TileWindows", QT_TRANSLATE_NOOP("StandardCommand", "&Tile"),
     QT_TRANSLATE_NOOP("StandardCommand", "Show all document windows side by side"), "", noKey, "", 0,
     [] { mainWindow()->tile_windows(); }, hasDocuments},
    {"Std_CascadeWindows", QT_TRANSLATE_NOOP("StandardCommand", "&Cascade"),
     QT_TRANSLATE_NOOP("StandardCommand", "Show the document windows one behind the other"), "", noKey, "", 0,
     [] { mainWindow()->cascade_windows(); }, hasDocuments},
    {"Std_TabWindows", QT_TRANSLATE_NOOP("StandardCommand", "Ta&bs"),
     QT_TRANSLATE_NOOP("StandardCommand", "Show the document windows as tabs"), "", noKey, "", 0,
     [] { mainWindow()->tab_windows(); }, hasDocuments},
    {"Std_CloseWindow", QT_TRANSLATE_NOOP("StandardCommand", "Cl&ose"),
     QT_TRANSLATE_NOOP("StandardCommand", "Close the document window in front"), "", noKey, "Ctrl+W", 0,
     [] { mainWindow()->close_current_window(); }, hasDocuments},
    {"Std_CloseAllWindows", QT_TRANSLATE_NOOP("StandardCommand", "Close &all"),
     QT_TRANSLATE_NOOP("StandardCommand", "Close all document windows"), "", noKey, "", 0,
     [] { mainWindow()->close_all_windows(); }, hasDocuments},
    {"Std_About", QT_TRANSLATE_NOOP("StandardCommand", "&About"),
     QT_TRANSLATE_NOOP("StandardCommand", "What this program is"), "", noKey, "", 0, about, always},
};

class StandardCommand final : public Command
{
public:
    explicit StandardCommand(const Row& row) : Command(row.name), m_row(row)
    {
        menuText = row.menuText;
        toolTip = row.toolTip;
        statusTip = row.toolTip;
        whatsThis = row.toolTip;
        pixmap = row.pixmap;
        typeFlags = row.typeFlags;
        shortcut =
            row.standardKey != noKey ? get_shortcut_from_keys(row.standardKey) : QKeySequence(QLatin1String(row.key));
    }

    const char* get_class_name() const override { return "StandardCommand"; }
    void activated(int) override { m_row.run(); }
    bool is_applicable() override { return m_row.isApplicable(); }

private:
    const Row& m_row;
};

} // namespace

void addStandardCommands(CommandController& commands)
{
    for (const Row& row : rows)
        commands.new_command(new StandardCommand(row));
}

} // namespace Gui
