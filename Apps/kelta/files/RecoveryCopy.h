#pragma once

#include "projectfile/ProjectStore.h"

#include <QDateTime>
#include <QString>

#include <string>
#include <vector>

namespace desktop {

/// A copy of a modified project, stored in the data folder of the user until the project is saved. The program that
/// made the copy locks it while the program runs.
class RecoveryCopy
{
public:
    /// Makes a copy with a unique name. The copy has no file before write() is called.
    /// \throws projectfile::StoreError if the user has no folder for data
    RecoveryCopy();
    RecoveryCopy(RecoveryCopy&&) noexcept = default;
    RecoveryCopy& operator=(RecoveryCopy&&) noexcept = default;
    ~RecoveryCopy() = default;

    /// Returns the copies of programs that no longer run, the oldest first, and locks them.
    static std::vector<RecoveryCopy> findAbandoned();

    const QString& path() const { return m_path; }
    /// Returns whether this program has the lock now.
    bool tryLock() { return m_lock.tryLock(); }
    /// Returns the time at which the copy was last written.
    QDateTime time() const;

    /// Replaces the copy. If this fails, the earlier copy is kept.
    /// \throws projectfile::StoreError
    void write(const std::string& text);
    /// \throws projectfile::StoreError
    std::string read() const;
    /// Deletes the copy and releases the lock. Does nothing if there is no copy.
    void remove();

private:
    explicit RecoveryCopy(const QString& path);

    QString m_path;
    projectfile::FileLock m_lock;
};

} // namespace desktop
