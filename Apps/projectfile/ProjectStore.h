#pragma once

#include "projectfile/ProjectFileExport.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <memory>
#include <stdexcept>
#include <string>

class QLockFile;

namespace projectfile {

/// An error of reading or writing a file. The message begins with the name of the file and is in the user's language.
class PROJECTFILE_EXPORT StoreError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
    ~StoreError() override;
};

/// The state of a file after this program last read or wrote it. Shows whether another program changed the file.
struct PROJECTFILE_EXPORT FileStamp
{
    qint64 size = -1; ///< -1 if there was no file
    QDateTime modified;
    QByteArray checksum;
};

/// Returns the whole content of a file. Stores the state of the file in `stamp` unless `stamp` is null.
/// \throws StoreError if it cannot be read, is not a regular file, is larger than 2 GiB, or changes while it is read
PROJECTFILE_EXPORT std::string readFile(const QString& path, FileStamp* stamp = nullptr);

/// Replaces a file completely or not at all: writes a new file beside it, flushes the new file to the disk, and renames
/// it. Keeps the owner, the permissions and the POSIX access list of an existing file; if the system does not allow
/// that, only the owner of the new file has rights. Replaces the target of a symbolic link. Returns the new state of the
/// file.
/// \throws StoreError if this fails; an existing file is then unchanged
PROJECTFILE_EXPORT FileStamp writeFile(const QString& path, const std::string& text);

/// Returns whether the content of the file has changed since `stamp` was taken, or the file was deleted. A new
/// modification time alone is not a change.
PROJECTFILE_EXPORT bool hasChanged(const QString& path, const FileStamp& stamp);

/// Reserves a file among the programs that use such locks, by a lock file beside the file (or beside the target of a
/// symbolic link). The destructor releases the lock. A lock file left by a program that has ended is ignored.
class PROJECTFILE_EXPORT FileLock
{
public:
    /// \throws StoreError if the path is empty or a circle of links, or if the lock file is not a regular file
    explicit FileLock(const QString& path);
    ~FileLock();
    FileLock(FileLock&&) noexcept;
    FileLock& operator=(FileLock&&) noexcept;

    /// Returns false if another program has the lock, whose name holder() then returns, or if no lock file can be made.
    bool tryLock();
    /// Releases the lock. Does nothing if this program does not have it.
    void unlock();
    bool isLocked() const;
    /// Returns the program that has the lock, for example "kelta (1234 on host)"; empty if no program is known to have
    /// it.
    QString holder() const;
    /// Whether the program that has the lock runs on another computer. This program cannot see whether it still runs.
    bool isHeldElsewhere() const;
    /// Takes the lock of a program on another computer away and locks the file. Returns false, without a change, if the
    /// program runs on this computer, or if the lock file cannot be replaced.
    bool takeOver();

private:
    QString m_lockPath;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace projectfile
