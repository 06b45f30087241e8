#include "Fuzzing.h"

#include "projectfile/ProjectStore.h"

#include <QDateTime>
#include <QFile>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

const QString lockName = QStringLiteral(".project.vxmat.lock");

/// Gives the lock file an age at which programs may remove it if nothing uses it.
void makeOld()
{
    QFile file(lockName);
    if (file.open(QIODevice::ReadWrite))
        file.setFileTime(QDateTime::currentDateTime().addSecs(-3600), QFileDevice::FileModificationTime);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    vxfuzz::enterOwnFolder();
    return 0;
}

/// A lock file with any content either stays, or is replaced by the lock of this program, which is then removed with it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    for (const bool isOld : {false, true}) {
        vxfuzz::writeFile(lockName, vxfuzz::textOf(data, size));
        if (isOld)
            makeOld();
        bool taken = false;
        {
            projectfile::FileLock lock(QStringLiteral("project.vxmat"));
            taken = lock.tryLock();
            if (taken != lock.isLocked() || (taken && lock.holder().isEmpty()))
                std::abort();
            if (!taken)
                lock.holder();
        }
        if (taken == QFile::exists(lockName))
            std::abort();
        QFile::remove(lockName);
    }
    return 0;
}
