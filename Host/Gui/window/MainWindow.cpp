#include "Gui/MainWindow.h"

#include "workbench/MenuBuilder.h"
#include "window/WelcomePage.h"

#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/MessageLogView.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/PropertyPanel.h"
#include "Gui/StdSimModule.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"
#include "vxMsg/MessageProxy.h"

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>

namespace Gui {

namespace {

MainWindow* theMainWindow = nullptr;

constexpr const char* geometryKey = "window/geometry";
constexpr const char* stateKey = "window/state";

/// A window that was closed stays among the others until the event loop destroys it.
bool isClosed(const MDIWindow& window)
{
    return window.isHidden() && window.testAttribute(Qt::WA_WState_ExplicitShowHide);
}

MDIWindow* windowIn(const QMdiSubWindow* frame)
{
    return frame != nullptr ? qobject_cast<MDIWindow*>(frame->widget()) : nullptr;
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent), m_center(new QStackedWidget(this)), m_welcome(new WelcomePage), m_area(new QMdiArea)
{
    theMainWindow = this;
    setObjectName(QStringLiteral("mainWindow"));
    m_center->addWidget(m_welcome);
    m_center->addWidget(m_area);
    setCentralWidget(m_center);
    m_area->setViewMode(QMdiArea::TabbedView);
    m_area->setTabsClosable(true);
    m_area->setTabsMovable(true);
    m_area->setDocumentMode(true);
    createDocks();
    statusBar();
    watchChanges();
    resize(1180, 760);
}

MainWindow::~MainWindow()
{
    // The document windows go while the main window can still be asked for.
    qDeleteAll(m_area->subWindowList());
    theMainWindow = nullptr;
}

MainWindow* MainWindow::get_main_window_inst()
{
    return theMainWindow;
}

void MainWindow::add_mdi_window(MDIWindow* window)
{
    QMdiSubWindow* const frame = m_area->addSubWindow(window);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setWindowIcon(window->windowIcon());
    // The menu of the frame has the keys of the command that closes a document; with two owners they would do nothing.
    for (QAction* const action : frame->systemMenu()->actions())
        action->setShortcuts(QList<QKeySequence>());
    window->show();
    if (m_area->viewMode() == QMdiArea::TabbedView)
        frame->showMaximized();
    else
        frame->show();
    // A frame may be destroyed when no more of this window is left than its children.
    connect(frame, &QObject::destroyed, &m_update, [this] { m_update.start(0); });
    Q_EMIT mdi_window_added(window);
    update_commands();
}

void MainWindow::remove_mdi_window(MDIWindow* window)
{
    delete frameOf(window);
    m_update.start(0);
}

void MainWindow::set_active_mdi_window(MDIWindow* window)
{
    if (QMdiSubWindow* const frame = frameOf(window)) {
        m_area->setActiveSubWindow(frame);
        window->setFocus();
    }
}

MDIWindow* MainWindow::get_active_mdi_window() const
{
    MDIWindow* const window = windowIn(frontFrame());
    return window != nullptr && !isClosed(*window) ? window : nullptr;
}

QList<MDIWindow*> MainWindow::get_mdi_windows() const
{
    QList<MDIWindow*> windows;
    for (const QMdiSubWindow* const frame : m_area->subWindowList())
        if (MDIWindow* const window = windowIn(frame); window != nullptr && !isClosed(*window))
            windows << window;
    return windows;
}

void MainWindow::close_current_window()
{
    if (QMdiSubWindow* const frame = frontFrame())
        frame->close();
}

void MainWindow::close_all_windows()
{
    m_area->closeAllSubWindows();
}

void MainWindow::tile_windows()
{
    m_area->setViewMode(QMdiArea::SubWindowView);
    m_area->tileSubWindows();
}

void MainWindow::tab_windows()
{
    m_area->setViewMode(QMdiArea::TabbedView);
}

void MainWindow::cascade_windows()
{
    m_area->setViewMode(QMdiArea::SubWindowView);
    m_area->cascadeSubWindows();
}

bool MainWindow::set_workbench(const char* className)
{
    std::unique_ptr<Kelta::RootClass> created = Kelta::RootClass::create_by_name(className);
    if (dynamic_cast<StdSimModule*>(created.get()) == nullptr) {
        Kelta::MessageLog::error(tr("There is no workbench \"%1\".").arg(QString::fromUtf8(className)));
        return false;
    }
    if (m_workbench != nullptr)
        m_workbench->deactivated();
    m_workbench.reset(static_cast<StdSimModule*>(created.release()));
    buildBars();
    const std::unique_ptr<ToolBarGadget> docks(m_workbench->build_docking_windows());
    for (const auto& gadget : docks->items())
        if (auto* const dock = findChild<QDockWidget*>(QString::fromStdString(gadget->command())))
            dock->show();
    m_workbench->activated();
    update_commands();
    return true;
}

void MainWindow::update_commands()
{
    m_update.stop();
    const bool hasDocuments = !get_mdi_windows().isEmpty();
    m_center->setCurrentWidget(hasDocuments ? static_cast<QWidget*>(m_area) : m_welcome);
    m_welcome->refresh();
    GuiApplication::Instance->get_command_manager().update_actions();
    Q_EMIT updated();
}

void MainWindow::show_messages()
{
    showDock("MessageLog");
}

void MainWindow::show_project_explorer()
{
    showDock("ProjectExplorer");
}

QMenu* MainWindow::createPopupMenu()
{
    QMenu* const menu = QMainWindow::createPopupMenu();
    MenuItem items;
    if (m_workbench != nullptr)
        m_workbench->build_context_popup_menu(&items);
    if (menu != nullptr)
        fillMenu(*menu, items);
    return menu;
}

void MainWindow::save_layout() const
{
    QSettings settings;
    settings.setValue(QLatin1String(geometryKey), saveGeometry());
    settings.setValue(QLatin1String(stateKey), saveState());
}

void MainWindow::restore_layout()
{
    const QSettings settings;
    restoreGeometry(settings.value(QLatin1String(geometryKey)).toByteArray());
    restoreState(settings.value(QLatin1String(stateKey)).toByteArray());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    bool refused = false;
    Q_EMIT closing(refused);
    event->setAccepted(!refused);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void MainWindow::createDocks()
{
    m_explorer = new ProjectExplorer;
    m_properties = new PropertyPanel;
    m_log = new MessageLogView;
    // The edges of the docks are frame enough.
    for (QFrame* const view :
         {static_cast<QFrame*>(m_explorer), static_cast<QFrame*>(m_properties), static_cast<QFrame*>(m_log)})
        view->setFrameShape(QFrame::NoFrame);
    addDock(Qt::LeftDockWidgetArea, "ProjectExplorer", tr("Project explorer"), m_explorer);
    addDock(Qt::LeftDockWidgetArea, "PropertyPanel", tr("Properties"), m_properties);
    addDock(Qt::BottomDockWidgetArea, "MessageLog", tr("Messages"), m_log);
    const QList<QDockWidget*> docks = findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    resizeDocks({docks[0], docks[1]}, {320, 220}, Qt::Vertical);
    resizeDocks({docks[0]}, {290}, Qt::Horizontal);
    resizeDocks({docks[2]}, {110}, Qt::Vertical);
}

void MainWindow::addDock(Qt::DockWidgetArea area, const char* name, const QString& title, QWidget* content)
{
    auto* const dock = new QDockWidget(title, this);
    dock->setObjectName(QLatin1String(name));
    dock->setWidget(content);
    addDockWidget(area, dock);
}

void MainWindow::showDock(const char* name)
{
    auto* const dock = findChild<QDockWidget*>(QLatin1String(name));
    dock->show();
    dock->raise();
}

void MainWindow::watchChanges()
{
    m_update.setSingleShot(true);
    connect(&m_update, &QTimer::timeout, this, &MainWindow::update_commands);
    const auto later = [this](auto&&...) { m_update.start(0); };
    Obj::Application& application = Obj::Application::instance();
    m_connections.emplace_back(application.projectAdded.connect(later));
    m_connections.emplace_back(application.projectRemoved.connect(later));
    m_connections.emplace_back(application.currentProjectChanged.connect(later));
    // What has come new is what the next command is for.
    vxMsg::MessageProxy& proxy = vxMsg::MessageProxy::instance();
    m_connections.emplace_back(proxy.objectCreated.connect(
        [](Obj::ProjectObject& object) { TreeSelectionSingleton::instance().set_selection({}, {&object}); }));
    m_connections.emplace_back(proxy.projectCreated.connect(
        [](Obj::Project& project) { TreeSelectionSingleton::instance().set_selection({&project}, {}); }));
    connect(&TreeSelectionSingleton::instance(), &TreeSelectionSingleton::selectionChanged, this, later);
    connect(&proxy.undoStack(), &QUndoStack::indexChanged, this, later);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, later);
    connect(m_area, &QMdiArea::subWindowActivated, this, [this, later](QMdiSubWindow* frame) {
        // Commands act on the project that the user works in.
        const MDIWindow* const window = windowIn(frame);
        if (window != nullptr && window->get_gui_project() != nullptr)
            Obj::Application::instance().set_current_project(window->get_gui_project()->get_project());
        later();
    });
}

void MainWindow::buildBars()
{
    const std::unique_ptr<MenuItem> menus(m_workbench->build_menu_bar());
    fillMenuBar(*menuBar(), *menus);

    // Document windows have toolbars of their own.
    qDeleteAll(findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly));
    const std::unique_ptr<ToolBarGadget> bars(m_workbench->build_toolbars());
    const std::unique_ptr<ToolBarGadget> messageBars(m_workbench->build_message_bars());
    for (const auto& [root, area] :
         {std::pair(bars.get(), Qt::TopToolBarArea), std::pair(messageBars.get(), Qt::BottomToolBarArea)})
        for (const auto& gadget : root->items()) {
            const QString title = QCoreApplication::translate("Workbench", gadget->command().c_str());
            auto* const bar = new QToolBar(title, this);
            // By these names the layout is kept: a bar above and one below of the same title are two.
            bar->setObjectName(QLatin1String(area == Qt::BottomToolBarArea ? "Bottom" : "") +
                               QString::fromStdString(gadget->command()));
            fillToolBar(*bar, *gadget);
            addToolBar(area, bar);
            bar->setVisible(!bar->actions().isEmpty());
        }
    addTreeShortcuts();
}

void MainWindow::addTreeShortcuts()
{
    // A key that acts on the tree must not do so while the user types into an editor.
    for (Command* const command : GuiApplication::Instance->get_command_manager().get_commands()) {
        QAction* const action = command->action() != nullptr ? command->action() : command->new_action(this);
        if ((command->getTypeFlags() & CommandType::OnTree) == 0) {
            addAction(action);
            continue;
        }
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        m_explorer->addAction(action);
    }
}

void MainWindow::retranslate()
{
    GuiApplication::Instance->get_command_manager().on_language_changed();
    const auto setTitle = [this](const char* name, const QString& title) {
        findChild<QDockWidget*>(QLatin1String(name))->setWindowTitle(title);
    };
    setTitle("ProjectExplorer", tr("Project explorer"));
    setTitle("PropertyPanel", tr("Properties"));
    setTitle("MessageLog", tr("Messages"));
    if (m_workbench != nullptr)
        buildBars();
    m_update.start(0);
}

QMdiSubWindow* MainWindow::frontFrame() const
{
    if (QMdiSubWindow* const current = m_area->currentSubWindow())
        return current;
    // None is current before the main window has been shown.
    const QList<QMdiSubWindow*> frames = m_area->subWindowList(QMdiArea::ActivationHistoryOrder);
    return frames.isEmpty() ? nullptr : frames.last();
}

QMdiSubWindow* MainWindow::frameOf(const MDIWindow* window) const
{
    for (QMdiSubWindow* const frame : m_area->subWindowList())
        if (window != nullptr && windowIn(frame) == window)
            return frame;
    return nullptr;
}

} // namespace Gui
