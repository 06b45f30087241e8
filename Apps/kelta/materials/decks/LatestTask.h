#pragma once

#include <QFutureWatcher>
#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

namespace desktop {

/// Carries out works in another thread, one at a time. A new work replaces the ones before it: those that have not begun are
/// dropped, and the present one is told that its result is not wanted. The destructor drops all works and waits for nothing.
class LatestTask : public QObject
{
    Q_OBJECT

public:
    /// Uses the result, in the thread of the task.
    using Finish = std::function<void()>;
    /// Does the work in another thread. Ends early, with any result, when the flag becomes true. Refers to nothing that may
    /// be destroyed before it ends. Throws nothing.
    using Work = std::function<Finish(const std::atomic<bool>& isDropped)>;

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
    std::optional<Work> m_next;                     ///< that begins when the present one has ended
    std::shared_ptr<std::atomic<bool>> m_isDropped; ///< of the present work; null if its result is not used
};

} // namespace desktop
