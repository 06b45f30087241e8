#include "projectfile/ProjectStore.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>

/// Tries to lock a file and prints "yes" or "no". Releases the lock after the end of the standard input.
///
///     lock_holder FILE
int main(int argc, char** argv)
try {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("lock_holder"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2)
        return 2;
    projectfile::FileLock lock(arguments[1]);
    std::puts(lock.tryLock() ? "yes" : "no");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
} catch (const std::exception& error) {
    std::fputs(error.what(), stderr);
    return 1;
}
