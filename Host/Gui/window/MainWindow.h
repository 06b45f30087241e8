#pragma once

#include "Gui/GuiExport.h"

#include <QMainWindow>
#include <QTimer>
#include <boost/signals2/connection.hpp>

#include <memory>
#include <vector>

class QMdiArea;
class QMdiSubWindow;
class QStackedWidget;

namespace Gui {

class MDIWindow;
class MessageLogView;
class ProjectExplorer;
class PropertyPanel;
class StdSimModule;
class WelcomePage;

/// The main window of the program: document windows in its middle, around them the project explorer, the property panel
/// and the message log, and the menus and toolbars of the active workbench. Message boxes have it as their parent.
class GUI_EXPORT MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// The one main window; null before it is made and after it is gone.
    static MainWindow* get_main_window_inst();

    /// Shows `window` among the document windows and takes ownership of it: it is destroyed when the user closes it.
    void add_mdi_window(MDIWindow* window);
    /// Takes the window out without asking and destroys it; nothing for one that is not here.
    void remove_mdi_window(MDIWindow* window);
    /// Brings the window to the front, with the keyboard.
    void set_active_mdi_window(MDIWindow* window);
    /// The document window in front; null when there is none.
    MDIWindow* get_active_mdi_window() const;
    /// All document windows, in the order in which they were added.
    QList<MDIWindow*> get_mdi_windows() const;
    /// Closes the document window in front, as the user would.
    void close_current_window();
    void close_all_windows();
    void tile_windows();
    void cascade_windows();
    /// Shows the document windows as tabs again, as they are at first.
    void tab_windows();

    /// Makes a workbench of this registered class the active one, and shows its menus and toolbars. False, with the
    /// reason in the message log, when there is no such class.
    bool set_workbench(const char* className);
    /// The active workbench; null before the first.
    StdSimModule* get_workbench() const { return m_workbench.get(); }

    ProjectExplorer& get_project_explorer() const { return *m_explorer; }
    PropertyPanel& get_property_panel() const { return *m_properties; }
    MessageLogView& get_message_log() const { return *m_log; }

    /// Shows the message log, also when the user has hidden it, in front of what it is tabbed with; the same of the project
    /// explorer. For what the user must see.
    void show_messages();
    void show_project_explorer();

    /// What the context menu of bars and docks offers: to show and hide them, and what the workbench adds.
    QMenu* createPopupMenu() override;

    /// Keeps place and size of the window and its docks in the settings, and takes them from there.
    void save_layout() const;
    void restore_layout();

    /// Enables what can be done now, and shows what there is to do first. Happens by itself after every change, when the
    /// event loop is next idle.
    void update_commands();

Q_SIGNALS:
    /// update_commands has run: projects, selection or documents are not what they were.
    void updated();
    /// The window has come among the document windows.
    void mdi_window_added(Gui::MDIWindow* window);
    /// The user closes the program; a slot that sets `refused` keeps it open.
    void closing(bool& refused);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createDocks();
    void showDock(const char* name);
    void addDock(Qt::DockWidgetArea area, const char* name, const QString& title, QWidget* content);
    void watchChanges();
    void buildBars();
    void addTreeShortcuts();
    void retranslate();
    QMdiSubWindow* frontFrame() const;
    QMdiSubWindow* frameOf(const MDIWindow* window) const;

    QStackedWidget* m_center;
    WelcomePage* m_welcome;
    QMdiArea* m_area;
    ProjectExplorer* m_explorer = nullptr;
    PropertyPanel* m_properties = nullptr;
    MessageLogView* m_log = nullptr;
    std::unique_ptr<StdSimModule> m_workbench;
    QTimer m_update;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace Gui
