#pragma once

#include "Gui/GuiExport.h"
#include "Kelta/MessageLog.h"

#include <QMainWindow>
#include <QPointer>
#include <QSize>
#include <QTimer>
#include <boost/signals2/connection.hpp>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

class QDockWidget;
class QStackedWidget;
class QUndoStack;

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace Gui {

class Contributions;
class DockSet;
class DocumentArea;
class GuiApplication;
class MDIWindow;
class MessageLogView;
class ProjectExplorer;
class PropertyPanel;
class StartPicture;
class StdSimModule;
class TreeSelectionSingleton;
class WelcomePage;
class WorkbenchBars;
struct DockEntry;
struct WindowOutline;

/// The main window of the program. Document windows are in its middle. The project explorer, the property panel,
/// the message log and the docks of modules surround them. The active workbench and modules provide the menus and
/// toolbars. Message boxes have the main window as their parent.
class GUI_EXPORT MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The size of the window at its first start, if the screen is large enough.
    static constexpr QSize usualSize{1440, 860};

    /// Needs the GuiApplication, which must outlive the window. Shows the contributions of the application.
    explicit MainWindow(QWidget* parent = nullptr);
    /// As above with other contributions, which must outlive the window.
    explicit MainWindow(Contributions& contributions, QWidget* parent = nullptr);

    /// The parts of a window that is just made.
    enum class Parts
    {
        All,
        /// What can be shown before modules are loaded: the picture that keepStartPicture has kept. If there is none for
        /// this start, the outline of the window as it was when it was last closed: the welcome page with its texts, the
        /// titles of the menus, and the space of toolbars and docks. If the settings have no outline in the language of
        /// the user, as at the first start, all parts.
        OutlineFirst,
    };
    explicit MainWindow(Parts parts, QWidget* parent = nullptr);
    MainWindow(Contributions& contributions, Parts parts, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Returns whether the window has all parts.
    bool isComplete() const { return m_picture == nullptr && m_outline == nullptr; }
    /// Makes the missing parts, calls `addModules`, which loads the modules and activates a workbench, and restores the
    /// layout of the last run; the parts of an outline keep their places. Must be called once, before the user acts on the
    /// window. A picture or an outline knows no explorer, documents or commands.
    void complete(const std::function<void()>& addModules);

    /// Returns the main window; null before it is made and after it was destroyed.
    static MainWindow* get_main_window_inst();

    /// Shows `window` among the document windows and takes ownership of it: it is destroyed when the user closes it.
    void add_mdi_window(MDIWindow* window);
    /// Removes a document window without asking, and destroys it. Does nothing if it is not a document window.
    void remove_mdi_window(MDIWindow* window);
    /// Brings a document window to the front and gives it the keyboard focus; null gives it to the project explorer.
    void set_active_mdi_window(MDIWindow* window);
    /// Returns the document window in front; null if there is none.
    MDIWindow* get_active_mdi_window() const;
    /// Returns all document windows, in the order in which they were added.
    QList<MDIWindow*> getMdiWindows() const;
    /// Returns the document window in which the user edits an object (MDIWindow::getEditedObject); null if none is.
    MDIWindow* editorOf(const Obj::ProjectObject& object) const;
    /// Closes the document window in front, as if the user closed it.
    void close_current_window();
    void closeAllWindows();
    void tileWindows();
    void cascadeWindows();
    /// Shows the document windows as tabs again, which is the initial state.
    void tabWindows();

    /// Ends all edits in progress, and keeps the typed text: in the document windows (MDIWindow::finishEditing), in the
    /// project explorer and the property panel, and in docks of modules, where the editor loses the focus for a moment.
    /// Called before commands run, and before the window closes.
    void finishEditing();
    /// Returns the undo stack of the document in front (MDIWindow::getUndoStack) while the user works there; null if
    /// the keyboard focus is in a dock, and if the document has no such stack.
    QUndoStack* documentUndoStack() const;
    /// Returns whether commands that act on the selection in the project explorer, and have a meaning elsewhere too,
    /// act on it now: true unless the keyboard focus is in a document or in another dock than the explorer.
    bool isExplorerAddressed() const;
    /// Returns the widget that has the keyboard focus, or had it before the menus took it; null if there is none.
    QWidget* getFocusedWidget() const { return m_focus; }

    /// Makes a workbench of this registered class the active one, and shows its menus, toolbars and docks. Returns
    /// false, with the reason in the message log, if there is no such class. Must not be called while one of the
    /// window's own menus or toolbars runs a command, since these are replaced; see chooseWorkbench.
    bool setWorkbench(const char* className);
    /// Activates the workbench that suits best: the workbench of the current project, else the first one of a module,
    /// else the standard one.
    bool setDefaultWorkbench();
    /// Activates a workbench when the event loop is next idle. If another project becomes the current project,
    /// its workbench is chosen in the same way.
    void chooseWorkbench(const std::string& className);
    /// Returns the active workbench; null before the first activation.
    StdSimModule* getWorkbench() const { return m_workbench.get(); }

    const Contributions& contributions() const { return m_contributions; }

    ProjectExplorer& getProjectExplorer() const { return *m_explorer; }
    MessageLogView& getMessageLog() const { return *m_log; }

    /// Shows a result to the user: writes `text` to the message log and, if there is a main window, to its status bar.
    static void announce(const QString& text,
                         Kelta::LogMessage::Severity severity = Kelta::LogMessage::Severity::Information,
                         const Kelta::LogLink& link = {});

    /// Undoes the next step of an undo stack, or redoes it, and names the step in the status bar. Does nothing if there is
    /// no such step. For Undo and Redo, and for document windows that take their keys.
    static void undoStep(QUndoStack& stack);
    static void redoStep(QUndoStack& stack);

    /// Shows the message log, even if the user has hidden it, in front of docks at the same place; for messages that
    /// the user must see. The window calls it for each warning and error, and hides the log at the start if there are
    /// none. showProjectExplorer does the same with the project explorer.
    void showMessages();
    void showProjectExplorer();
    /// Shows or hides a dock, by its name. Does nothing if there is no such dock.
    void toggleDock(const std::string& name);
    bool hasDock(const std::string& name) const;
    bool isDockShown(const std::string& name) const;
    /// Shows a dock and gives it the keyboard focus. Does nothing if there is no such dock.
    void focusDock(const std::string& name);
    /// Gives the keyboard focus to the next or previous pane: a visible dock, or the documents. When a document that
    /// has the focus closes, the project explorer gets it.
    void focusNextPane();
    void focusPreviousPane();

    /// Makes the context menu of bars and docks: it shows and hides them, and has the additions of the workbench.
    QMenu* createPopupMenu() override;

    /// Resizes the window, and gives its docks the shares of a first start.
    void resizeWithDocks(const QSize& size);
    /// Stores place and size of the window and its docks in the settings, and restores them from there.
    void saveLayout() const;
    void restoreLayout();
    /// Keeps the picture that the next start shows first. For the end of the program, when saveLayout has been called, the
    /// user sees the window no more, and all projects are closed.
    void keepStartPicture();

    /// Enables the commands that are applicable now, and shows the welcome page if no document is open. The window
    /// calls it after every change, when the event loop is next idle.
    void updateCommands();

Q_SIGNALS:
    /// Sent after updateCommands has run: projects, selection or documents may have changed.
    void updated();
    /// Sent after `window` was added to the document windows.
    void mdiWindowAdded(Gui::MDIWindow* window);
    /// Sent when the user closes the program. A slot that sets `refused` keeps it open.
    void closing(bool& refused);

protected:
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createFrame();
    void createFirstParts(Parts parts);
    bool createPicture();
    void createFrameForPicture();
    void createHostParts();
    void createDocks();
    void showMessagesIfDue();
    std::vector<DockEntry> hostDocks();
    void watchProjects();
    void watchRequests();
    void watchWindow();
    void watchDocument(MDIWindow& window);
    void followFocus(QWidget* widget);
    void updateLater();
    void updateNow();
    void followProject(const Obj::Project* project);
    void followDocument(const MDIWindow* window);
    void replaceWorkbench(std::unique_ptr<StdSimModule> workbench);
    void buildBars();
    QList<QDockWidget*> docks() const;
    void showWantedDocks();
    void addShortcuts();
    void retranslate();
    void tellStep(const QString& sentence, const QString& step);

    GuiApplication& m_application;
    Contributions& m_contributions;
    TreeSelectionSingleton& m_selection;
    QStackedWidget* m_center = nullptr;
    WelcomePage* m_welcome = nullptr;
    DocumentArea* m_documents = nullptr;
    ProjectExplorer* m_explorer = nullptr;
    PropertyPanel* m_properties = nullptr;
    MessageLogView* m_log = nullptr;
    std::unique_ptr<StartPicture> m_picture;  ///< null unless the window is a picture
    std::unique_ptr<WindowOutline> m_outline; ///< null unless the window is an outline
    std::unique_ptr<DockSet> m_docks;
    std::unique_ptr<WorkbenchBars> m_bars;
    std::unique_ptr<StdSimModule> m_workbench;
    std::string m_chosenWorkbench;            ///< becomes active when the event loop is idle; empty for none
    std::set<std::string> m_knownWorkbenches; ///< workbenches whose docks were shown
    bool m_barsAreOutdated = false;
    QPointer<QWidget> m_focus; ///< the widget that has the keyboard focus, or had it before the menus took it
    QTimer m_update;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace Gui
