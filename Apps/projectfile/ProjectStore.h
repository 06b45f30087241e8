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

/// A file that could not be read or written, and why, in the user's words. Its name is in the message.
class PROJECTFILE_EXPORT StoreError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
    ~StoreError() override;
};

/// What a file was when it was last read or written here, to notice that another program has changed it since.
struct PROJECTFILE_EXPORT FileStamp
{
    qint64 size = -1; ///< -1 when there was no file
    QDateTime modified;
    QByteArray checksum;
};

/// The whole content of a file, and what it was then.
/// \throws StoreError when it cannot be read, is no regular file, or changes while it is read
PROJECTFILE_EXPORT std::string readFile(const QString& path, FileStamp* stamp = nullptr);

/// Replaces the file whole or not at all: beside it first, made safe on the disk, then by renaming. An existing file
/// keeps its permissions; of a symbolic link the target is replaced. Answers what the file is then.
/// \throws StoreError when that fails; an existing file is then as it was
PROJECTFILE_EXPORT FileStamp writeFile(const QString& path, const std::string& text);

/// Whether the content of the file is another than when `stamp` was taken, or the file has gone. A file that was only
/// touched has not changed.
PROJECTFILE_EXPORT bool hasChanged(const QString& path, const FileStamp& stamp);

/// Keeps other programs that ask for it from the same file, while it lives: a lock file beside the file (or beside the
/// target of a symbolic link). One whose program has ended without taking it back does not count.
class PROJECTFILE_EXPORT FileLock
{
public:
    explicit FileLock(const QString& path);
    ~FileLock();
    FileLock(FileLock&&) noexcept;
    FileLock& operator=(FileLock&&) noexcept;

    /// False when another program has the file, which holder() then names, or when no lock file can be made.
    bool tryLock();
    bool isLocked() const;
    /// "kelta (1234 on host)" of the program that has the file; empty when none has, as far as can be told.
    QString holder() const;

private:
    QString m_lockPath;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace projectfile
