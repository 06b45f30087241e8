#include "Gui/MainWindow.h"

#include "Gui/Contributions.h"
#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/PropertyPanel.h"
#include "Gui/StdSimModule.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "vxMsg/MessageProxy.h"
#include "window/CenterArea.h"
#include "window/DockSet.h"
#include "window/DocumentArea.h"
#include "window/Panes.h"
#include "window/StartPicture.h"
#include "window/WelcomePage.h"
#include "window/WindowOutline.h"
#include "workbench/MenuBuilder.h"
#include "workbench/WorkbenchBars.h"
#include "workbench/WorkbenchSwitch.h"

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QUndoStack>

#include <algorithm>
#include <utility>

namespace Gui {

namespace {

MainWindow* theMainWindow = nullptr;

/// The time for which a result stays in the status bar.
constexpr int statusMilliseconds = 10000;

bool isInDock(const QWidget* widget)
{
    while (widget != nullptr && qobject_cast<const QDockWidget*>(widget) == nullptr)
        widget = widget->parentWidget();
    return widget != nullptr;
}

/// Takes the keyboard focus from a widget in a dock for a moment: fields and editors of cells then keep the typed text.
void leaveEditor()
{
    const QPointer<QWidget> editor = QApplication::focusWidget();
    // A view with an open editor has passed the focus to the editor.
    if (!isInDock(editor) || qobject_cast<QAbstractItemView*>(editor) != nullptr)
        return;
    editor->clearFocus();
    if (editor != nullptr && editor->isVisible() && QApplication::focusWidget() == nullptr)
        editor->setFocus();
}

} // namespace

MainWindow::MainWindow(QWidget* parent) : MainWindow(GuiApplication::Instance->contributions(), parent) {}

MainWindow::MainWindow(Contributions& contributions, QWidget* parent) : MainWindow(contributions, Parts::All, parent) {}

MainWindow::MainWindow(Parts parts, QWidget* parent)
    : MainWindow(GuiApplication::Instance->contributions(), parts, parent)
{}

MainWindow::MainWindow(Contributions& contributions, Parts parts, QWidget* parent)
    : QMainWindow(parent),
      m_application(*GuiApplication::Instance),
      m_contributions(contributions),
      m_selection(TreeSelectionSingleton::instance()),
      m_docks(std::make_unique<DockSet>(*this)),
      m_bars(std::make_unique<WorkbenchBars>(*this, m_application.get_command_manager(), m_contributions))
{
    theMainWindow = this;
    setObjectName(QStringLiteral("mainWindow"));
    createFirstParts(parts);
}

MainWindow::~MainWindow()
{
    // The keyboard focus moves, and docks are hidden, while widgets are destroyed.
    disconnect(&m_application, nullptr, this, nullptr);
    disconnect(&Kelta::MessageLog::instance(), nullptr, this, nullptr);
    for (const QDockWidget* const dock : docks())
        disconnect(dock->toggleViewAction(), nullptr, this, nullptr);
    // The document windows are destroyed while the main window is still accessible.
    if (m_documents != nullptr)
        m_documents->removeAll();
    theMainWindow = nullptr;
}

MainWindow* MainWindow::get_main_window_inst()
{
    return theMainWindow;
}

void MainWindow::add_mdi_window(MDIWindow* window)
{
    m_documents->add(window);
    watchDocument(*window);
    Q_EMIT mdiWindowAdded(window);
    updateCommands();
}

void MainWindow::remove_mdi_window(MDIWindow* window)
{
    m_documents->remove(window);
    updateLater();
}

void MainWindow::set_active_mdi_window(MDIWindow* window)
{
    m_documents->activate(window);
    m_focus = window;
    if (window == nullptr) {
        m_explorer->setFocus();
        m_focus = m_explorer;
    }
}

MDIWindow* MainWindow::get_active_mdi_window() const
{
    return m_documents != nullptr ? m_documents->activeWindow() : nullptr;
}

QList<MDIWindow*> MainWindow::getMdiWindows() const
{
    return m_documents != nullptr ? m_documents->windows() : QList<MDIWindow*>();
}

MDIWindow* MainWindow::editorOf(const Obj::ProjectObject& object) const
{
    const QList<MDIWindow*> windows = getMdiWindows();
    const auto found = std::find_if(windows.begin(), windows.end(), [&object](const MDIWindow* window) {
        return window->getEditedObject() == &object;
    });
    return found != windows.end() ? *found : nullptr;
}

void MainWindow::close_current_window()
{
    m_documents->closeActive();
}

void MainWindow::closeAllWindows()
{
    m_documents->closeAllSubWindows();
    // The user has kept this editor open; commands then act on its object.
    const MDIWindow* const kept = get_active_mdi_window();
    if (kept != nullptr && kept->getEditedObject() != nullptr)
        m_selection.setSelection({}, {kept->getEditedObject()});
}

void MainWindow::tileWindows()
{
    m_documents->tile();
}

void MainWindow::tabWindows()
{
    m_documents->showAsTabs();
}

void MainWindow::cascadeWindows()
{
    m_documents->cascade();
}

void MainWindow::finishEditing()
{
    for (MDIWindow* const window : getMdiWindows())
        window->completeEdits();
    m_explorer->finishEditing();
    m_properties->finishEditing();
    leaveEditor();
}

QUndoStack* MainWindow::documentUndoStack() const
{
    MDIWindow* const document = get_active_mdi_window();
    return document != nullptr && !isInDock(m_focus) ? document->getUndoStack() : nullptr;
}

bool MainWindow::isExplorerAddressed() const
{
    if (m_focus == nullptr || m_focus == m_explorer || m_explorer->isAncestorOf(m_focus))
        return true;
    return !isInDock(m_focus) && m_focus != m_documents && !m_documents->isAncestorOf(m_focus);
}

bool MainWindow::setWorkbench(const char* className)
{
    std::unique_ptr<Kelta::RootClass> created = Kelta::RootClass::createByName(className);
    if (dynamic_cast<StdSimModule*>(created.get()) == nullptr) {
        Kelta::MessageLog::error(tr("There is no workbench \"%1\".").arg(QString::fromUtf8(className)));
        return false;
    }
    replaceWorkbench(std::unique_ptr<StdSimModule>(static_cast<StdSimModule*>(created.release())));
    return true;
}

bool MainWindow::setDefaultWorkbench()
{
    const std::vector<WorkbenchEntry>& entries = m_contributions.workbenches();
    const Obj::Project* const project = Obj::Application::get_current_project();
    const WorkbenchEntry* const own = project != nullptr ? workbenchOf(*project, m_contributions) : nullptr;
    if (own != nullptr)
        return setWorkbench(own->className.c_str());
    return setWorkbench(entries.empty() ? "Gui::StdSimModule" : entries.front().className.c_str());
}

void MainWindow::chooseWorkbench(const std::string& className)
{
    m_chosenWorkbench = className;
    updateLater();
}

void MainWindow::announce(const QString& text, Kelta::LogMessage::Severity severity, const Kelta::LogLink& link)
{
    Kelta::MessageLog::instance().report(severity, text, link);
    if (theMainWindow != nullptr)
        theMainWindow->statusBar()->showMessage(text, statusMilliseconds);
}

void MainWindow::undoStep(QUndoStack& stack)
{
    if (!stack.canUndo())
        return;
    const QString step = stack.undoText();
    stack.undo();
    if (theMainWindow != nullptr)
        theMainWindow->tellStep(QCoreApplication::translate("StandardCommand", "Undone: %1"), step);
}

void MainWindow::redoStep(QUndoStack& stack)
{
    if (!stack.canRedo())
        return;
    const QString step = stack.redoText();
    stack.redo();
    if (theMainWindow != nullptr)
        theMainWindow->tellStep(QCoreApplication::translate("StandardCommand", "Redone: %1"), step);
}

void MainWindow::tellStep(const QString& sentence, const QString& step)
{
    statusBar()->showMessage(sentence.arg(step), statusMilliseconds);
}

void MainWindow::focusNextPane()
{
    Panes(*this).move(Panes::Step::Next);
}

void MainWindow::focusPreviousPane()
{
    Panes(*this).move(Panes::Step::Previous);
}

QMenu* MainWindow::createPopupMenu()
{
    QMenu* const menu = QMainWindow::createPopupMenu();
    MenuItem items;
    if (m_workbench != nullptr)
        m_workbench->build_context_popup_menu(&items);
    if (menu != nullptr)
        MenuBuilder(m_application.get_command_manager(), *this).fillMenu(*menu, items);
    return menu;
}

void MainWindow::updateCommands()
{
    m_update.stop();
    if (!isComplete()) {
        if (m_outline != nullptr)
            m_welcome->showOutline(m_outline->page);
        Q_EMIT updated();
        return;
    }
    const bool hasDocuments = !getMdiWindows().isEmpty();
    m_center->setCurrentWidget(hasDocuments ? static_cast<QWidget*>(m_documents) : m_welcome);
    m_welcome->refresh(Obj::Application::get_current_project());
    m_application.get_command_manager().updateActions();
    Q_EMIT updated();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (isComplete())
        finishEditing();
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

void MainWindow::createFrame()
{
    m_center = new QStackedWidget(this);
    m_welcome = new WelcomePage(m_application.get_command_manager(), m_contributions);
    m_documents = new DocumentArea;
    m_center->addWidget(m_welcome);
    m_center->addWidget(m_documents);
    setCentralWidget(new CenterArea(m_center));
    // A message may be wider than the window.
    connect(statusBar(), &QStatusBar::messageChanged, statusBar(), &QStatusBar::setToolTip);
}

void MainWindow::watchProjects()
{
    Obj::Application& application = Obj::Application::instance();
    m_connections.emplace_back(application.projectAdded.connect([this](Obj::Project&) { updateLater(); }));
    m_connections.emplace_back(application.projectRemoved.connect([this](Obj::Project&) { updateLater(); }));
    m_connections.emplace_back(
        application.currentProjectChanged.connect([this](const Obj::Project* project) { followProject(project); }));
}

void MainWindow::watchRequests()
{
    // The next command applies to the added objects.
    vxMsg::MessageProxy& proxy = m_application.requests();
    m_connections.emplace_back(
        proxy.objectCreated.connect([this](Obj::ProjectObject& object) { m_selection.setSelection({}, {&object}); }));
    m_connections.emplace_back(
        proxy.projectCreated.connect([this](Obj::Project& project) { m_selection.setSelection({&project}, {}); }));
    connect(&proxy.undoStack(), &QUndoStack::indexChanged, this, &MainWindow::updateLater);
}

void MainWindow::watchWindow()
{
    m_update.setSingleShot(true);
    connect(&m_update, &QTimer::timeout, this, &MainWindow::updateNow);
    connect(&m_selection, &TreeSelectionSingleton::selectionChanged, this, &MainWindow::updateLater);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &MainWindow::updateLater);
    connect(&m_application, &QApplication::focusChanged, this,
            [this](const QWidget*, QWidget* now) { followFocus(now); });
    connect(m_documents, &DocumentArea::windowActivated, this, &MainWindow::followDocument);
    connect(m_documents, &DocumentArea::windowDestroyed, this, &MainWindow::updateLater);
    connect(m_documents, &DocumentArea::focusedWindowClosed, this, [this] {
        if (m_explorer->isVisible())
            m_explorer->setFocus(Qt::OtherFocusReason);
    });
    connect(&Kelta::MessageLog::instance(), &Kelta::MessageLog::reported, this,
            [this](const Kelta::LogMessage& message) {
                if (message.severity != Kelta::LogMessage::Severity::Information)
                    showMessages();
            });
    connect(&m_contributions, &Contributions::changed, this, [this] {
        m_barsAreOutdated = true;
        updateLater();
    });
}

void MainWindow::watchDocument(MDIWindow& window)
{
    if (const QUndoStack* const edits = window.getUndoStack())
        connect(edits, &QUndoStack::indexChanged, this, &MainWindow::updateLater);
}

/// Undo and Redo act on the document or on the projects, depending on the keyboard focus.
void MainWindow::followFocus(QWidget* widget)
{
    if (widget == nullptr || widget == menuBar())
        return;
    m_focus = widget;
    updateLater();
}

void MainWindow::updateLater()
{
    m_update.start(0);
}

/// Runs when the event loop is idle, so that no menu or toolbar is replaced while it runs a command.
void MainWindow::updateNow()
{
    const std::string chosen = std::exchange(m_chosenWorkbench, {});
    if (!chosen.empty() && setWorkbench(chosen.c_str()))
        return;
    if (m_barsAreOutdated && m_workbench != nullptr)
        buildBars();
    updateCommands();
}

void MainWindow::followProject(const Obj::Project* project)
{
    const WorkbenchEntry* const own = project != nullptr ? workbenchOf(*project, m_contributions) : nullptr;
    const bool isActive =
        own != nullptr && m_workbench != nullptr && own->className == m_workbench->getTypeId().get_name();
    if (own != nullptr)
        m_chosenWorkbench = isActive ? std::string() : own->className;
    updateLater();
}

void MainWindow::followDocument(const MDIWindow* window)
{
    // Commands act on the project in which the user works.
    if (window != nullptr && window->getGuiProject() != nullptr)
        Obj::Application::instance().setCurrentProject(window->getGuiProject()->get_project());
    updateLater();
}

void MainWindow::replaceWorkbench(std::unique_ptr<StdSimModule> workbench)
{
    if (m_workbench != nullptr)
        m_workbench->deactivated();
    m_workbench = std::move(workbench);
    m_chosenWorkbench.clear();
    buildBars();
    showWantedDocks();
    m_workbench->activated();
    updateCommands();
}

void MainWindow::buildBars()
{
    m_barsAreOutdated = false;
    CommandController& commands = m_application.get_command_manager();
    m_docks->addContributed(m_contributions, commands);
    // The entries of the docks in "View" have check marks.
    for (const QDockWidget* const dock : docks())
        connect(dock->toggleViewAction(), &QAction::toggled, this, &MainWindow::updateLater, Qt::UniqueConnection);
    addWorkbenchCommands(m_contributions, commands);
    m_bars->build(*m_workbench);
    addShortcuts();
}

void MainWindow::addShortcuts()
{
    std::set<QKeySequence> treeKeys;
    for (Command* const command : m_application.get_command_manager().getCommands()) {
        QAction* const action = command->action() != nullptr ? command->action() : command->new_action(this);
        if ((command->getTypeFlags() & CommandType::onTree) == 0) {
            addAction(action);
            continue;
        }
        // A key with two commands runs neither. A key that acts on the tree must not work while the user types a text.
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        if (action->shortcut().isEmpty() || treeKeys.insert(action->shortcut()).second)
            m_explorer->addAction(action);
    }
}

void MainWindow::retranslate()
{
    m_application.get_command_manager().on_language_changed();
    m_docks->retranslate();
    if (m_workbench != nullptr)
        buildBars();
    updateLater();
}

} // namespace Gui
