#include "decks/LatestTask.h"

#include <QtConcurrentRun>

#include <utility>

namespace desktop {

LatestTask::LatestTask(QObject* parent) : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcherBase::finished, this, &LatestTask::finish);
}

LatestTask::~LatestTask() = default;

void LatestTask::begin(Work work)
{
    drop();
    if (m_watcher.isRunning()) {
        m_next = std::move(work);
        return;
    }
    m_isWanted = true;
    m_watcher.setFuture(QtConcurrent::run(std::move(work)));
}

void LatestTask::drop()
{
    m_next.reset();
    m_isWanted = false;
}

void LatestTask::finish()
{
    if (m_next)
        return begin(*std::exchange(m_next, std::nullopt));
    if (std::exchange(m_isWanted, false))
        m_watcher.result()();
}

} // namespace desktop
