#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>

#include <cstdio>
#include <ctime>
#include <functional>
#include <utility>

namespace vxbench {

/// Tells the measuring program that a moment has come, with the time in milliseconds for which the processor has worked
/// for this program.
inline void tell(char moment)
{
    std::printf("%c %.3f\n", moment, 1e3 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC);
}

constexpr char painted = 'p';
constexpr char completed = 'c';

/// Tells when a window has been painted for the first time, and the picture has been given to the screen.
class PaintWatch final : public QObject
{
public:
    /// Calls `told` after the message. Install the watch last: the filter that was installed last sees an event first.
    explicit PaintWatch(
        const QObject& window, std::function<void()> told = [] {})
        : m_window(window), m_told(std::move(told))
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool hasTold() const { return m_hasTold; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // The other widgets are painted after the window, before the event loop is idle.
        if (event->type() == QEvent::Paint && watched == &m_window)
            QTimer::singleShot(0, this, &PaintWatch::tellOnce);
        return false;
    }

private:
    void tellOnce()
    {
        if (std::exchange(m_hasTold, true))
            return;
        tell(painted);
        m_told();
    }

    const QObject& m_window;
    std::function<void()> m_told;
    bool m_hasTold = false;
};

} // namespace vxbench
