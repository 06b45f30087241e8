#pragma once

#include "projectfile/ProjectStore.h"

#include <QDateTime>
#include <QString>

#include <string>
#include <vector>

namespace kelta {

/// A copy of a project that was not saved, kept beside the user's settings until it is. While the program that made it
/// runs, its lock keeps others away.
class RecoveryCopy
{
public:
    /// A copy yet to be written, under a name that no other one has.
    RecoveryCopy();
    RecoveryCopy(RecoveryCopy&&) noexcept = default;
    RecoveryCopy& operator=(RecoveryCopy&&) noexcept = default;
    ~RecoveryCopy() = default;

    /// The copies that programs have left behind which run no more, the oldest first. They are locked from now on.
    static std::vector<RecoveryCopy> findAbandoned();

    const QString& path() const { return m_path; }
    QDateTime time() const;

    /// Replaces the copy whole or not at all.
    /// \throws projectfile::StoreError
    void write(const std::string& text);
    /// \throws projectfile::StoreError
    std::string read() const;
    /// Destroys the copy; nothing when there is none.
    void remove();

private:
    explicit RecoveryCopy(const QString& path);

    QString m_path;
    projectfile::FileLock m_lock;
};

} // namespace kelta
