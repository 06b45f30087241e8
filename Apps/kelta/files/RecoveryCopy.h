#pragma once

#include "projectfile/ProjectStore.h"

#include <QDateTime>
#include <QString>

#include <string>
#include <vector>

namespace desktop {

/// A copy of a project with changes, kept beside the user's settings until the project is saved. While the program that
/// made it runs, a lock keeps other programs away.
class RecoveryCopy
{
public:
    /// A copy that is not written yet, under a name that no other copy has.
    RecoveryCopy();
    RecoveryCopy(RecoveryCopy&&) noexcept = default;
    RecoveryCopy& operator=(RecoveryCopy&&) noexcept = default;
    ~RecoveryCopy() = default;

    /// Returns the copies that programs left which no longer run, the oldest first. They are locked from now on.
    static std::vector<RecoveryCopy> findAbandoned();

    const QString& path() const { return m_path; }
    QDateTime time() const;

    /// Replaces the copy whole or not at all.
    /// \throws projectfile::StoreError
    void write(const std::string& text);
    /// \throws projectfile::StoreError
    std::string read() const;
    /// Destroys the copy; nothing if there is none.
    void remove();

private:
    explicit RecoveryCopy(const QString& path);

    QString m_path;
    projectfile::FileLock m_lock;
};

} // namespace desktop
