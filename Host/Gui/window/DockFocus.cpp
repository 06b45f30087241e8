#include "window/DockFocus.h"

#include "Gui/MainWindow.h"
#include "window/Panes.h"

#include <QApplication>
#include <QDockWidget>
#include <QEvent>

namespace Gui {

DockFocus::DockFocus(QDockWidget& dock, const QMainWindow& window) : QObject(&dock), m_dock(dock), m_window(window)
{
    dock.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &DockFocus::follow);
}

DockFocus::~DockFocus() = default;

bool DockFocus::eventFilter(QObject* watched, QEvent* event)
{
    // A dock is not hidden itself if only its window is.
    if (event->type() == QEvent::Hide && m_dock.isHidden() && m_dock.isAncestorOf(QApplication::focusWidget()))
        giveBack();
    return QObject::eventFilter(watched, event);
}

void DockFocus::follow(QWidget* before, const QWidget* now)
{
    if (before != nullptr && now != nullptr && m_dock.isAncestorOf(now) && !m_dock.isAncestorOf(before))
        m_before = before;
}

void DockFocus::giveBack() const
{
    // While the window is destroyed, it has no center.
    if (MainWindow::get_main_window_inst() == nullptr)
        return;
    QWidget* const center = m_window.centralWidget();
    const bool isInDock = m_before != nullptr && !center->isAncestorOf(m_before);
    if (isInDock && m_before->isVisible() && m_before->isEnabled())
        m_before->setFocus(Qt::OtherFocusReason);
    else
        Panes::focus(*center);
}

} // namespace Gui
