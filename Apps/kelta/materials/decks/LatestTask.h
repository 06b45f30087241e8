#pragma once

#include <QFutureWatcher>
#include <QObject>

#include <functional>
#include <optional>

namespace desktop {

/// Carries out works in another thread, one at a time. A new work replaces the ones before it: those that have not begun are
/// dropped, and the result of the present one is. The destructor waits for nothing.
class LatestTask : public QObject
{
    Q_OBJECT

public:
    /// Uses the result, in the thread of the task.
    using Finish = std::function<void()>;
    /// Does the work in another thread. Refers to nothing that may be destroyed before it ends. Throws nothing.
    using Work = std::function<Finish()>;

    explicit LatestTask(QObject* parent = nullptr);
    ~LatestTask() override;

    /// Begins a work, when the present one has ended. Its Finish is called from the event loop, unless another work is begun
    /// or dropped before.
    void begin(Work work);
    /// Drops the present work.
    void drop();

private:
    void finish();

    QFutureWatcher<Finish> m_watcher;
    std::optional<Work> m_next; ///< that begins when the present one has ended
    bool m_isWanted = false;    ///< whether the result of the present work is used
};

} // namespace desktop
