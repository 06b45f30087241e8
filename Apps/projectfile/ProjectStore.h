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

/// Why a file could not be read or written. The message begins with the name of the file and is in the user's language.
class PROJECTFILE_EXPORT StoreError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
    ~StoreError() override;
};

/// The state of a file when this program last read or wrote it, by which a change by another program is noticed.
struct PROJECTFILE_EXPORT FileStamp
{
    qint64 size = -1; ///< -1 if there was no file
    QDateTime modified;
    QByteArray checksum;
};

/// Returns the whole content of a file, and its state in `stamp` unless that is null.
/// \throws StoreError if it cannot be read, is not a regular file, is larger than 2 GiB, or changes while it is read
PROJECTFILE_EXPORT std::string readFile(const QString& path, FileStamp* stamp = nullptr);

/// Replaces a file whole or not at all: the new file is written beside it, brought to the disk, and renamed. The
/// permissions of an existing file stay; of a symbolic link the target is replaced. Returns the new state of the file.
/// \throws StoreError if that fails; an existing file is then as it was
PROJECTFILE_EXPORT FileStamp writeFile(const QString& path, const std::string& text);

/// Whether the content of the file has changed since `stamp` was taken, or the file was deleted. A file that was only
/// touched has not changed.
PROJECTFILE_EXPORT bool hasChanged(const QString& path, const FileStamp& stamp);

/// Reserves a file, as long as this object lives, among the programs that use such locks: by a lock file beside the file
/// (or beside the target of a symbolic link). The lock file of a program that ended without removing it does not count.
class PROJECTFILE_EXPORT FileLock
{
public:
    explicit FileLock(const QString& path);
    ~FileLock();
    FileLock(FileLock&&) noexcept;
    FileLock& operator=(FileLock&&) noexcept;

    /// Returns false if another program has the file, which holder() then names, or if no lock file can be made.
    bool tryLock();
    bool isLocked() const;
    /// Returns the program that has the file, "kelta (1234 on host)"; empty if none has, as far as can be told.
    QString holder() const;

private:
    QString m_lockPath;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace projectfile
