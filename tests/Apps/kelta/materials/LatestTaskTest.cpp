#include "decks/LatestTask.h"

#include "Waiting.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QThread>
#include <gmock/gmock.h>

#include <atomic>
#include <memory>
#include <vector>

namespace {

using desktop::LatestTask;
using testing::ElementsAre;
using testing::IsEmpty;
using vxtest::waitFor;

/// What works and the task share. It outlives the test, because the task does not wait for works.
struct Shared
{
    QSemaphore begun; ///< one for each work that has begun
    QSemaphore gate;  ///< a work that waits here ends when the test lets it through
    QSemaphore ended; ///< one for each work that has ended
    std::atomic<int> atOnce{0};
    std::atomic<int> mostAtOnce{0};
    std::atomic<bool> sawDrop{false};
};

class LatestTaskOfAWindow : public testing::Test
{
protected:
    /// Returns a work that ends when the test lets it through, and whose result notes a number.
    LatestTask::Work waitingWork(int number)
    {
        return [this, shared = m_shared, number](const std::atomic<bool>& isDropped) -> LatestTask::Finish {
            const int now = ++shared->atOnce;
            shared->mostAtOnce = std::max(shared->mostAtOnce.load(), now);
            shared->begun.release();
            shared->gate.acquire();
            shared->sawDrop = isDropped.load();
            --shared->atOnce;
            shared->ended.release();
            return [this, number] { results.push_back(number); };
        };
    }
    void waitUntilBegun() { ASSERT_TRUE(m_shared->begun.tryAcquire(1, 10000)); }
    void let(int works) { m_shared->gate.release(works); }
    void waitUntilEnded() { ASSERT_TRUE(m_shared->ended.tryAcquire(1, 10000)); }
    /// Gives the results of works that have ended the time to arrive.
    static void settle()
    {
        QThread::msleep(20);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }

    std::vector<int> results;
    std::shared_ptr<Shared> m_shared = std::make_shared<Shared>();
};

TEST_F(LatestTaskOfAWindow, UsesTheResultInItsOwnThread)
{
    LatestTask task;
    const QThread* worker = nullptr;
    const QThread* user = nullptr;
    task.begin([&](const std::atomic<bool>&) -> LatestTask::Finish {
        worker = QThread::currentThread();
        return [&] { user = QThread::currentThread(); };
    });
    ASSERT_TRUE(waitFor([&] { return user != nullptr; }));
    EXPECT_EQ(user, QThread::currentThread());
    EXPECT_NE(worker, user);
}

TEST_F(LatestTaskOfAWindow, UsesOnlyTheResultOfTheLastOfManyWorksAndRunsOneAtATime)
{
    LatestTask task;
    task.begin(waitingWork(1));
    waitUntilBegun();
    task.begin(waitingWork(2));
    task.begin(waitingWork(3));
    let(3);
    ASSERT_TRUE(waitFor([&] { return !results.empty(); }));
    settle();
    EXPECT_THAT(results, ElementsAre(3));
    EXPECT_EQ(m_shared->mostAtOnce, 1);
    EXPECT_EQ(m_shared->gate.available(), 1) << "the second work has not begun";
}

TEST_F(LatestTaskOfAWindow, TellsAWorkThatItsResultIsNotWanted)
{
    LatestTask task;
    task.begin(waitingWork(1));
    waitUntilBegun();
    task.drop();
    let(1);
    waitUntilEnded();
    settle();
    EXPECT_TRUE(m_shared->sawDrop);
    EXPECT_THAT(results, IsEmpty());
}

TEST_F(LatestTaskOfAWindow, UsesNoResultThatArrivesAfterADrop)
{
    LatestTask task;
    task.begin(waitingWork(1));
    let(1);
    waitUntilEnded();
    QThread::msleep(20); // the end of the work is then in the queue of events
    task.drop();
    settle();
    EXPECT_THAT(results, IsEmpty());
}

TEST_F(LatestTaskOfAWindow, CanBeDestroyedWhileAWorkRuns)
{
    auto task = std::make_unique<LatestTask>();
    task->begin(waitingWork(1));
    waitUntilBegun();
    task->begin(waitingWork(2));
    task.reset();
    let(2);
    waitUntilEnded();
    settle();
    EXPECT_TRUE(m_shared->sawDrop);
    EXPECT_THAT(results, IsEmpty());
    EXPECT_EQ(m_shared->gate.available(), 1) << "the second work has not begun";
}

TEST_F(LatestTaskOfAWindow, CanBeginAWorkFromTheResultOfAnother)
{
    LatestTask task;
    task.begin([&](const std::atomic<bool>&) -> LatestTask::Finish {
        return [&] {
            results.push_back(1);
            task.begin(waitingWork(2));
        };
    });
    let(1);
    ASSERT_TRUE(waitFor([&] { return results.size() == 2; }));
    EXPECT_THAT(results, ElementsAre(1, 2));
}

} // namespace
