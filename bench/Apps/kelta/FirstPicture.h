#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>

namespace vxbench {

/// Counts the paint events of the widgets of the program.
class PaintCount final : public QObject
{
public:
    int value() const { return m_value; }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        m_value += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int m_value = 0;
};

/// Shows `window` until it is painted. Returns the exit status: 0 if it was painted.
inline int paintOnce(QWidget& window)
{
    PaintCount paints;
    QCoreApplication::instance()->installEventFilter(&paints);
    window.show();
    QCoreApplication::processEvents();
    return paints.value() > 0 ? 0 : 1;
}

} // namespace vxbench
