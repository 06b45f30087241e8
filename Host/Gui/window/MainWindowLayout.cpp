// The layout of the main window: its docks, their places, and the outline that is shown first.

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/MessageLogView.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/PropertyPanel.h"
#include "Gui/StdSimModule.h"
#include "Gui/Translator.h"
#include "Kelta/MessageLog.h"
#include "tree/ExplorerPane.h"
#include "window/DockSet.h"
#include "window/Panes.h"
#include "window/StartPicture.h"
#include "window/WelcomePage.h"
#include "window/WindowOutline.h"

#include <QAction>
#include <QCoreApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>

#include <algorithm>

namespace Gui {

namespace {

constexpr const char* geometryKey = "window/geometry";
constexpr const char* stateKey = "window/state";
constexpr const char* widthKey = "window/width";

constexpr const char* explorerDock = "ProjectExplorer";
constexpr const char* propertiesDock = "PropertyPanel";
constexpr const char* messagesDock = "MessageLog";

/// Returns the size of the window at its first start: less than the screen, so that its frame fits too.
QSize firstSize()
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? MainWindow::usualSize.boundedTo(screen->availableSize() * 9 / 10)
                             : MainWindow::usualSize;
}

/// Returns whether the message log has a warning or an error.
bool logDeservesAttention()
{
    const auto& messages = Kelta::MessageLog::instance().messages();
    return std::any_of(messages.begin(), messages.end(), [](const Kelta::LogMessage& message) {
        return message.severity != Kelta::LogMessage::Severity::Information;
    });
}

/// Returns whether QMainWindow::restoreState can read a state. The parts of an outline would be in wrong places without.
bool isReadable(const QByteArray& state)
{
    return QMainWindow().restoreState(state);
}

/// Lays out what has changed. Otherwise the event loop would do so, and might paint the window before.
void settleLayouts(const QMainWindow& window)
{
    // A menu bar does not tell the window that it has got menus.
    window.menuWidget()->updateGeometry();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

} // namespace

/// Makes the picture or the outline of the last run, or all parts of the host if there is none or the places of its parts
/// are unknown.
void MainWindow::createFirstParts(Parts parts)
{
    if (parts == Parts::OutlineFirst && createPicture())
        return;
    createFrame();
    const QSettings settings;
    std::optional<WindowOutline> outline;
    if (parts == Parts::OutlineFirst)
        outline = readOutline(settings, Translator::instance()->language());
    if (outline && isReadable(settings.value(QLatin1String(stateKey)).toByteArray()))
        m_outline = std::make_unique<WindowOutline>(*std::move(outline));
    if (isComplete()) {
        createHostParts();
        return resizeWithDocks(firstSize());
    }
    resize(firstSize());
    showOutline(*this, *m_outline);
    restoreLayout();
}

bool MainWindow::createPicture()
{
    if (!restoreGeometry(QSettings().value(QLatin1String(geometryKey)).toByteArray()))
        return false;
    if (std::optional<StartPicture> picture = StartPicture::read(*this))
        m_picture = std::make_unique<StartPicture>(*std::move(picture));
    setAttribute(Qt::WA_OpaquePaintEvent, m_picture != nullptr);
    return m_picture != nullptr;
}

void MainWindow::createFrameForPicture()
{
    m_picture.reset();
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    createFrame();
    // Otherwise the event loop would show them, and might paint the window before.
    for (QWidget* const part : {centralWidget(), static_cast<QWidget*>(statusBar()), static_cast<QWidget*>(menuBar())})
        part->show();
}

void MainWindow::paintEvent(QPaintEvent* event)
{
    if (m_picture != nullptr)
        m_picture->paint(*this);
    else
        QMainWindow::paintEvent(event);
}

void MainWindow::keepStartPicture()
{
    // In the same order as at the next start, which shows only its own messages.
    restoreState(QSettings().value(QLatin1String(stateKey)).toByteArray());
    if (QDockWidget* const messages = m_docks->find(messagesDock))
        messages->hide();
    statusBar()->clearMessage();
    updateCommands();
    settleLayouts(*this);
    StartPicture::keep(*this);
}

void MainWindow::complete(const std::function<void()>& addModules)
{
    if (isComplete()) {
        addModules();
        return restoreLayout();
    }
    const QByteArray places =
        m_outline != nullptr ? saveState() : QSettings().value(QLatin1String(stateKey)).toByteArray();
    if (m_picture != nullptr)
        createFrameForPicture();
    m_outline.reset();
    removeOutlineMenus(*this);
    m_welcome->removeOutline();
    createHostParts();
    addModules();
    removeOutlineDocks(*this);
    settleLayouts(*this);
    restoreState(places);
    showMessagesIfDue();
    updateCommands();
    settleLayouts(*this);
    // As if the window had been complete when it became active.
    if (isActiveWindow() && focusWidget() == nullptr)
        focusNextPrevChild(true);
}

void MainWindow::createHostParts()
{
    createDocks();
    watchProjects();
    watchRequests();
    watchWindow();
}

void MainWindow::createDocks()
{
    m_explorer = new ProjectExplorer(*this, m_application, m_selection);
    m_properties = new PropertyPanel(m_application, m_selection);
    m_log = new MessageLogView;
    for (const DockEntry& entry : hostDocks())
        m_docks->add(entry);
    showMessagesIfDue();
}

std::vector<DockEntry> MainWindow::hostDocks()
{
    // The edges of the docks are a sufficient frame.
    const auto frameless = [](QFrame* view) {
        view->setFrameShape(QFrame::NoFrame);
        return view;
    };
    constexpr const char* context = "Gui::MainWindow";
    return {{explorerDock,
             {context, QT_TRANSLATE_NOOP("Gui::MainWindow", "Project explorer")},
             DockArea::Left,
             [=] { return new ExplorerPane(*m_explorer, m_contributions); }},
            {propertiesDock,
             {context, QT_TRANSLATE_NOOP("Gui::MainWindow", "Properties")},
             DockArea::Left,
             [=] { return frameless(m_properties); }},
            {messagesDock,
             {context, QT_TRANSLATE_NOOP("Gui::MainWindow", "Messages")},
             DockArea::Bottom,
             [=] { return frameless(m_log); },
             DockVisibility::HiddenAtFirst}};
}

/// The messages are hidden until the user should read one of them.
void MainWindow::showMessagesIfDue()
{
    if (QDockWidget* const messages = m_docks->find(messagesDock))
        messages->setVisible(isComplete() && logDeservesAttention());
}

void MainWindow::showMessages()
{
    m_docks->show(messagesDock);
}

void MainWindow::showProjectExplorer()
{
    m_docks->show(explorerDock);
}

void MainWindow::focusDock(const std::string& name)
{
    m_docks->show(name);
    if (QDockWidget* const dock = m_docks->find(name))
        Panes::focus(*dock);
}

void MainWindow::toggleDock(const std::string& name)
{
    m_docks->toggle(name);
}

bool MainWindow::hasDock(const std::string& name) const
{
    return m_docks->find(name) != nullptr;
}

bool MainWindow::isDockShown(const std::string& name) const
{
    const QDockWidget* const dock = m_docks->find(name);
    return dock != nullptr && dock->toggleViewAction()->isChecked();
}

void MainWindow::showWantedDocks()
{
    if (!m_knownWorkbenches.insert(m_workbench->getTypeId().get_name()).second)
        return;
    const std::unique_ptr<ToolBarGadget> wanted(m_workbench->build_docking_windows());
    for (const auto& gadget : wanted->items())
        if (QDockWidget* const dock = m_docks->find(gadget->command()))
            dock->show();
}

QList<QDockWidget*> MainWindow::docks() const
{
    return findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

void MainWindow::resizeWithDocks(const QSize& size)
{
    // In a small window the labels in the explorer are more important than the proportion.
    constexpr int widest = 290;
    const int legible = std::min(22 * fontMetrics().averageCharWidth(), size.width() * 2 / 5);
    resize(size);
    resizeDocks({m_docks->find(explorerDock), m_docks->find(propertiesDock)}, {320, 220}, Qt::Vertical);
    resizeDocks({m_docks->find(explorerDock)}, {std::min(widest, std::max(legible, size.width() / 4))}, Qt::Horizontal);
    resizeDocks({m_docks->find(messagesDock)}, {std::min(110, size.height() / 6)}, Qt::Vertical);
}

void MainWindow::saveLayout() const
{
    if (!isComplete())
        return; // the settings have the layout
    QSettings settings;
    writeOutline(settings, Gui::outlineOf(*this, Translator::instance()->language(), m_welcome->outline()));
    settings.setValue(QLatin1String(geometryKey), saveGeometry());
    settings.setValue(QLatin1String(stateKey), saveState());
    settings.setValue(QLatin1String(widthKey), width());
}

void MainWindow::restoreLayout()
{
    const QSettings settings;
    restoreGeometry(settings.value(QLatin1String(geometryKey)).toByteArray());
    restoreState(settings.value(QLatin1String(stateKey)).toByteArray());
    // The screen is smaller, or its scale factor larger. Otherwise the user has wanted the docks in a window of this width.
    if (width() < settings.value(QLatin1String(widthKey)).toInt())
        m_docks->makeRoomForDocuments();
    showMessagesIfDue();
}

} // namespace Gui
