#include "window/CenterArea.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace Gui {

CenterArea::CenterArea(QWidget* content)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { followFocus(now); });
}

CenterArea::~CenterArea()
{
    // The focus moves while the content is destroyed.
    disconnect(qApp, nullptr, this, nullptr);
}

bool CenterArea::eventFilter(QObject* watched, QEvent* event)
{
    // The widget has handled the key by the time when the user releases it.
    if (watched == m_focused && event->type() == QEvent::KeyRelease)
        QTimer::singleShot(0, this, &CenterArea::showFocus);
    return QScrollArea::eventFilter(watched, event);
}

void CenterArea::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    showFocus();
}

void CenterArea::followFocus(QWidget* focused)
{
    if (m_focused != nullptr)
        m_focused->removeEventFilter(this);
    m_focused = focused != nullptr && widget()->isAncestorOf(focused) ? focused : nullptr;
    if (m_focused == nullptr)
        return;
    m_focused->installEventFilter(this);
    // A widget must not move away from the mouse that clicks it.
    if (QApplication::mouseButtons() == Qt::NoButton)
        showFocus();
}

void CenterArea::showFocus()
{
    constexpr int margin = 4;
    if (m_focused != nullptr)
        ensureWidgetVisible(m_focused, margin, margin);
}

} // namespace Gui
