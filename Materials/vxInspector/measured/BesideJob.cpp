#include "measured/BesideJob.h"

#include "Kelta/Exceptions.h"

#include <utility>

namespace vxInspector {

BesideJob::BesideJob(std::function<void()> work, QObject* parent) : QObject(parent)
{
    m_thread = std::thread([this, work = std::move(work)] { run(work); });
}

BesideJob::~BesideJob()
{
    m_thread.join();
}

void BesideJob::run(const std::function<void()>& work)
{
    try {
        work();
    } catch (...) {
        m_failure = Kelta::currentExceptionText();
    }
    QMetaObject::invokeMethod(this, &BesideJob::finished, Qt::QueuedConnection);
}

} // namespace vxInspector
