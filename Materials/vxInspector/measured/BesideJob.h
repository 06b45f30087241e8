#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <thread>

namespace vxInspector {

/// Work in a thread of its own, beside the interface. The destructor waits for its end.
class BesideJob : public QObject
{
    Q_OBJECT

public:
    /// `work` runs at once in another thread.
    explicit BesideJob(std::function<void()> work, QObject* parent = nullptr);
    ~BesideJob() override;

    /// Returns why the work failed; empty if it did not. Valid after finished().
    const QString& failure() const { return m_failure; }

Q_SIGNALS:
    void finished(); ///< sent in the thread of the job object

private:
    void run(const std::function<void()>& work);

    QString m_failure;
    std::thread m_thread;
};

} // namespace vxInspector
