#include "decks/LatestTask.h"

#include <QtConcurrentRun>

#include <utility>

namespace desktop {

LatestTask::LatestTask(QObject* parent) : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcherBase::finished, this, &LatestTask::finish);
}

LatestTask::~LatestTask()
{
    drop();
}

void LatestTask::begin(Work work)
{
    drop();
    if (m_watcher.isRunning()) {
        m_next = std::move(work);
        return;
    }
    m_isDropped = std::make_shared<std::atomic<bool>>(false);
    m_watcher.setFuture(
        QtConcurrent::run([work = std::move(work), isDropped = m_isDropped] { return work(*isDropped); }));
}

void LatestTask::drop()
{
    m_next.reset();
    if (const auto isDropped = std::exchange(m_isDropped, nullptr))
        *isDropped = true;
}

void LatestTask::finish()
{
    if (m_next)
        return begin(*std::exchange(m_next, std::nullopt));
    if (std::exchange(m_isDropped, nullptr) != nullptr)
        m_watcher.result()();
}

} // namespace desktop
