#include "window/DocumentArea.h"

#include "Gui/MDIWindow.h"
#include "Gui/WindowTitle.h"

#include <QAction>
#include <QEvent>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPointer>
#include <QTabBar>
#include <QTimer>

#include <algorithm>

namespace Gui {

namespace {

/// Returns true for a closed window, which exists until the event loop destroys it.
bool isClosed(const MDIWindow& window)
{
    return window.isHidden() && window.testAttribute(Qt::WA_WState_ExplicitShowHide);
}

MDIWindow* windowIn(const QMdiSubWindow* frame)
{
    return frame != nullptr ? qobject_cast<MDIWindow*>(frame->widget()) : nullptr;
}

/// The menu of a frame has the same key as the command that closes a document. A key with two owners does nothing.
void removeShortcuts(const QMdiSubWindow& frame)
{
    for (QAction* const action : frame.systemMenu()->actions())
        action->setShortcuts(QList<QKeySequence>());
}

} // namespace

DocumentArea::DocumentArea(QWidget* parent) : QMdiArea(parent)
{
    setViewMode(QMdiArea::TabbedView);
    setTabsClosable(true);
    setTabsMovable(true);
    setDocumentMode(true);
    // When a window is closed, the window that was used before comes to the front.
    setActivationOrder(QMdiArea::ActivationHistoryOrder);
    connect(this, &QMdiArea::subWindowActivated, this,
            [this](QMdiSubWindow* frame) { Q_EMIT windowActivated(windowIn(frame)); });
}

DocumentArea::~DocumentArea() = default;

void DocumentArea::add(MDIWindow* window)
{
    QMdiSubWindow* const frame = addSubWindow(window);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setWindowIcon(window->windowIcon());
    removeShortcuts(*frame);
    window->show();
    if (viewMode() == QMdiArea::TabbedView)
        frame->showMaximized();
    else
        frame->show();
    showTabTexts();
    connect(frame, &QObject::destroyed, this, &DocumentArea::windowDestroyed);
}

void DocumentArea::remove(const MDIWindow* window)
{
    QMdiSubWindow* const frame = frameOf(window);
    if (frame != nullptr)
        watchFocus(*frame);
    delete frame;
}

void DocumentArea::removeAll()
{
    // A closed window is no longer in the list, but exists until the event loop destroys it.
    qDeleteAll(viewport()->findChildren<QMdiSubWindow*>(QString(), Qt::FindDirectChildrenOnly));
}

void DocumentArea::activate(MDIWindow* window)
{
    if (QMdiSubWindow* const frame = frameOf(window)) {
        setActiveSubWindow(frame);
        window->setFocus();
    }
}

MDIWindow* DocumentArea::activeWindow() const
{
    MDIWindow* const window = windowIn(frontFrame());
    return window != nullptr && !isClosed(*window) ? window : nullptr;
}

QList<MDIWindow*> DocumentArea::windows() const
{
    QList<MDIWindow*> windows;
    for (const QMdiSubWindow* const frame : subWindowList())
        if (MDIWindow* const window = windowIn(frame); window != nullptr && !isClosed(*window))
            windows << window;
    return windows;
}

void DocumentArea::closeActive()
{
    if (QMdiSubWindow* const frame = frontFrame())
        frame->close();
}

void DocumentArea::tile()
{
    setViewMode(QMdiArea::SubWindowView);
    tileSubWindows();
}

void DocumentArea::cascade()
{
    setViewMode(QMdiArea::SubWindowView);
    cascadeSubWindows();
}

void DocumentArea::showAsTabs()
{
    setViewMode(QMdiArea::TabbedView);
    showTabTexts();
}

bool DocumentArea::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const frame = qobject_cast<const QMdiSubWindow*>(watched);
    if (frame != nullptr && event->type() == QEvent::Close)
        watchFocus(*frame);
    const bool isFiltered = QMdiArea::eventFilter(watched, event);
    if (frame != nullptr && (event->type() == QEvent::WindowTitleChange || event->type() == QEvent::ModifiedChange))
        showTabTexts();
    return isFiltered;
}

/// If the window that is about to close has the keyboard focus, and closes, says so when the event loop is next idle.
void DocumentArea::watchFocus(const QMdiSubWindow& frame)
{
    // While a question about the window closes, no window is active.
    const QWidget* const focus = window()->focusWidget();
    if (focus == nullptr || !frame.isAncestorOf(focus))
        return;
    QTimer::singleShot(0, this, [this, closing = QPointer<const QMdiSubWindow>(&frame)] {
        if (closing == nullptr || closing->isHidden())
            Q_EMIT focusedWindowClosed();
    });
}

void DocumentArea::showTabTexts()
{
    auto* const tabs = findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
    const QList<QMdiSubWindow*> frames = subWindowList();
    for (int tab = 0; tabs != nullptr && tab < std::min(tabs->count(), frames.size()); ++tab)
        tabs->setTabText(tab,
                         escapedForMnemonics(shownTitle(frames[tab]->windowTitle(), frames[tab]->isWindowModified())));
}

QMdiSubWindow* DocumentArea::frontFrame() const
{
    if (QMdiSubWindow* const current = currentSubWindow())
        return current;
    // No window is current before the main window has been shown.
    const QList<QMdiSubWindow*> frames = subWindowList(QMdiArea::ActivationHistoryOrder);
    return frames.isEmpty() ? nullptr : frames.last();
}

QMdiSubWindow* DocumentArea::frameOf(const MDIWindow* window) const
{
    for (QMdiSubWindow* const frame : subWindowList())
        if (window != nullptr && windowIn(frame) == window)
            return frame;
    return nullptr;
}

} // namespace Gui
