#include "projectfile/ProjectStore.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QSysInfo>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace projectfile {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("projectfile::ProjectStore", text);
}

QString reasonOf(int errorNumber)
{
    return QString::fromLocal8Bit(std::strerror(errorNumber));
}

[[noreturn]] void fail(const QString& path, const QString& reason)
{
    throw StoreError(QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(path), reason).toStdString());
}

/// Returns a name in the encoding of the system.
QByteArray systemName(const QString& path)
{
    if (path.isEmpty())
        throw StoreError(tr("The name of a file is empty.").toStdString());
    return QFile::encodeName(path);
}

/// Returns a path that Qt treats as a file. Qt treats a path that begins with a colon as a resource.
QString filePath(const QString& path)
{
    return path.startsWith(QLatin1Char(':')) ? QStringLiteral("./") + path : path;
}

/// Returns the target of a path after following symbolic links. The target need not exist.
QString targetOf(const QString& path)
{
    constexpr int mostLinks = 40; // the limit of the system
    QString target = filePath(path);
    for (int links = 0; QFileInfo(target).isSymLink(); ++links) {
        if (links == mostLinks)
            fail(path, reasonOf(ELOOP));
        target = QFileInfo(target).symLinkTarget();
    }
    return target;
}

/// A file descriptor. The destructor closes it.
class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (m_number >= 0)
            close(m_number);
    }
    int number() const { return m_number; }

private:
    int m_number;
};

struct stat statusOf(int descriptor, const QString& path)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0)
        fail(path, reasonOf(errno));
    return status;
}

[[noreturn]] void refuseKind(const QString& path, mode_t mode)
{
    fail(path, S_ISDIR(mode) ? tr("This is a folder; a file is needed.")
                             : tr("This is a device or a pipe; a file is needed."));
}

QDateTime timeOf(const struct stat& status)
{
    constexpr qint64 perSecond = 1000;
    constexpr qint64 nanoseconds = 1000000;
    return QDateTime::fromMSecsSinceEpoch(status.st_mtim.tv_sec * perSecond + status.st_mtim.tv_nsec / nanoseconds);
}

FileStamp stampOf(const struct stat& status, const std::string& content)
{
    // The checksum detects accidental changes, not forgeries. MD5 is the fastest algorithm of Qt.
    QCryptographicHash hash(QCryptographicHash::Md5);
    constexpr std::size_t block = 1U << 30U; // addData() takes the length as an int
    for (std::size_t at = 0; at < content.size(); at += block)
        hash.addData(content.data() + at, static_cast<int>(std::min(block, content.size() - at)));
    return {static_cast<qint64>(status.st_size), timeOf(status), hash.result()};
}

/// Reads up to `size` bytes, and one more byte if the file is longer.
std::string readUpTo(std::size_t size, int descriptor, const QString& path)
{
    std::string content(size + 1, '\0');
    std::size_t count = 0;
    while (count < content.size()) {
        const ssize_t got = read(descriptor, content.data() + count, content.size() - count);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            fail(path, reasonOf(errno));
        if (got == 0)
            break;
        count += static_cast<std::size_t>(got);
    }
    content.resize(count);
    return content;
}

bool isSame(const struct stat& before, const struct stat& after)
{
    return before.st_size == after.st_size && before.st_mtim.tv_sec == after.st_mtim.tv_sec &&
           before.st_mtim.tv_nsec == after.st_mtim.tv_nsec;
}

/// Checks that the file may be replaced, or created if there is none.
void checkTarget(const QString& path, const QString& target)
{
    struct stat status = {};
    if (stat(systemName(target).constData(), &status) == 0) {
        if (!S_ISREG(status.st_mode))
            refuseKind(path, status.st_mode);
        return;
    }
    if (errno != ENOENT && errno != ENOTDIR)
        fail(path, reasonOf(errno));
    const QFileInfo folder(QFileInfo(target).path());
    if (!folder.exists())
        fail(path, tr("The folder '%1' does not exist.").arg(QDir::toNativeSeparators(folder.filePath())));
    if (!folder.isDir())
        fail(path, tr("'%1' is a file; a folder is needed.").arg(QDir::toNativeSeparators(folder.filePath())));
}

constexpr const char* accessList = "system.posix_acl_access";

/// Returns the POSIX access list of a file in the form of the system; empty if it has none.
std::string readAccessList(const QByteArray& name)
{
    const ssize_t size = getxattr(name.constData(), accessList, nullptr, 0);
    std::string list(size > 0 ? static_cast<std::size_t>(size) : 0, '\0');
    const ssize_t got = size > 0 ? getxattr(name.constData(), accessList, list.data(), list.size()) : 0;
    list.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return list;
}

/// Gives a new file the owner and the group of the old one, as far as the system allows that. Returns whether it has
/// them.
bool keepOwner(const struct stat& old, int descriptor)
{
    struct stat ours = {};
    if (fstat(descriptor, &ours) == 0 && ours.st_uid == old.st_uid && ours.st_gid == old.st_gid)
        return true;
    if (fchown(descriptor, old.st_uid, old.st_gid) == 0)
        return true;
    static_cast<void>(fchown(descriptor, static_cast<uid_t>(-1), old.st_gid));
    return fstat(descriptor, &ours) == 0 && ours.st_uid == old.st_uid && ours.st_gid == old.st_gid;
}

/// Gives a new file the rights of the old one: owner, group, mode and access list. If the system does not allow that,
/// the new file has fewer rights, so that nobody gains any. A file that replaces none keeps the rights of its folder.
void keepRights(const QString& target, int descriptor)
{
    constexpr mode_t allRights = 07777U;
    constexpr mode_t rightsOfOwner = 0700U;
    const QByteArray name = systemName(target);
    struct stat old = {};
    if (stat(name.constData(), &old) != 0)
        return;
    const mode_t mode = old.st_mode & allRights;
    const std::string list = readAccessList(name);
    // The folder may have given the new file a list of its own.
    static_cast<void>(fremovexattr(descriptor, accessList));
    if (!keepOwner(old, descriptor)) {
        static_cast<void>(fchmod(descriptor, mode & rightsOfOwner));
        return;
    }
    // Beside a list, the rights of the group in the mode are those of the list's mask.
    static_cast<void>(fchmod(descriptor, list.empty() ? mode : mode & rightsOfOwner));
    if (!list.empty() && fsetxattr(descriptor, accessList, list.data(), list.size(), 0) == 0)
        static_cast<void>(fchmod(descriptor, mode));
}

/// Waits until the file is on the disk. Returns true also if the file system does not support this.
bool reachesDisk(int descriptor)
{
    return fsync(descriptor) == 0 || errno == EINVAL || errno == ENOSYS;
}

void syncFolder(const QString& folder)
{
    const Descriptor opened(open(systemName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // Errors are ignored: the file is complete under its old or its new name, and not every system can sync a folder.
    if (opened.number() >= 0)
        static_cast<void>(fsync(opened.number()));
}

/// Returns the path of the lock file of a file.
QString lockPathOf(const QString& path)
{
    const QFileInfo target(targetOf(path));
    QString lockPath = QDir(target.path()).filePath(QStringLiteral(".%1.lock").arg(target.fileName()));
    // Reading a pipe or a device may never begin or never end.
    struct stat status = {};
    if (stat(systemName(lockPath).constData(), &status) == 0 && !S_ISREG(status.st_mode))
        fail(path, tr("Its lock file '%1' is not a regular file. Remove it.").arg(QDir::toNativeSeparators(lockPath)));
    return lockPath;
}

} // namespace

StoreError::~StoreError() = default;

std::string readFile(const QString& path, FileStamp* stamp)
{
    constexpr off_t most = off_t{1} << 31U;
    // Without O_NONBLOCK, opening a pipe would wait for a writer.
    const Descriptor file(open(systemName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (file.number() < 0)
        fail(path, reasonOf(errno));
    const struct stat before = statusOf(file.number(), path);
    if (!S_ISREG(before.st_mode))
        refuseKind(path, before.st_mode);
    if (before.st_size > most)
        fail(path, tr("The file is too large for a project."));

    std::string content;
    try {
        content = readUpTo(static_cast<std::size_t>(before.st_size), file.number(), path);
    } catch (const std::bad_alloc&) {
        fail(path, tr("The file is too large for the memory."));
    }
    if (content.size() != static_cast<std::size_t>(before.st_size) || !isSame(before, statusOf(file.number(), path)))
        fail(path, tr("Another program changed the file while it was read. Try again."));
    if (stamp != nullptr)
        *stamp = stampOf(before, content);
    return content;
}

FileStamp writeFile(const QString& path, const std::string& text)
{
    static_cast<void>(systemName(path));
    const QString target = targetOf(path);
    checkTarget(path, target);

    const auto size = static_cast<qint64>(text.size());
    QSaveFile file(target);
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly))
        fail(path, file.errorString());
    keepRights(target, file.handle());
    // A disk that is nearly full accepts a part of the text. The next attempt returns the reason.
    for (qint64 at = 0; at < size;) {
        const qint64 written = file.write(text.data() + at, size - at);
        if (written <= 0)
            fail(path, file.errorString());
        at += written;
    }
    // Unlike commit(), flush() reports that the end of the text could not be written.
    if (!file.flush())
        fail(path, file.errorString());
    if (!reachesDisk(file.handle()))
        fail(path, reasonOf(errno));
    FileStamp stamp = stampOf(statusOf(file.handle(), path), text);
    if (!file.commit())
        fail(path, file.errorString());
    syncFolder(QFileInfo(target).path());
    return stamp;
}

bool hasChanged(const QString& path, const FileStamp& stamp)
{
    struct stat status = {};
    if (stat(systemName(path).constData(), &status) != 0)
        return stamp.size >= 0;
    if (stamp.size < 0 || stamp.size != static_cast<qint64>(status.st_size))
        return true;
    // The modification time is no proof: it may differ although the content is the same, and it may be the same if the
    // file was written just after the stamp was taken.
    try {
        FileStamp now;
        readFile(path, &now);
        return now.checksum != stamp.checksum;
    } catch (const StoreError&) {
        return true;
    }
}

FileLock::FileLock(const QString& path) : m_lockPath(lockPathOf(path)), m_lock(std::make_unique<QLockFile>(m_lockPath))
{
    // The program of an old lock may still run.
    m_lock->setStaleLockTime(0);
}

FileLock::~FileLock() = default;
FileLock::FileLock(FileLock&&) noexcept = default;
FileLock& FileLock::operator=(FileLock&&) noexcept = default;

bool FileLock::tryLock()
{
    if (m_lock->tryLock(0))
        return true;
    // A crash just after a program created the lock file leaves a file without the name of the program. Such a file is
    // removed only if it is old and no program has it open, because a program may be about to write its name into it.
    constexpr qint64 moment = 10000; // ms
    qint64 process = 0;
    QString host;
    QString program;
    if (m_lock->error() != QLockFile::LockFailedError || m_lock->getLockInfo(&process, &host, &program))
        return false;
    const QFileInfo file(m_lockPath);
    const bool isOld = file.lastModified().msecsTo(QDateTime::currentDateTime()) > moment;
    return isOld && m_lock->removeStaleLockFile() && m_lock->tryLock(0);
}

void FileLock::unlock()
{
    m_lock->unlock();
}

bool FileLock::isLocked() const
{
    return m_lock->isLocked();
}

QString FileLock::holder() const
{
    qint64 process = 0;
    QString host;
    QString program;
    if (!m_lock->getLockInfo(&process, &host, &program))
        return {};
    const bool isHere = host == QSysInfo::machineHostName();
    if (isHere && kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH)
        return {};
    return tr("%1 (%2 on %3)").arg(program, QString::number(process), host);
}

bool FileLock::isHeldElsewhere() const
{
    qint64 process = 0;
    QString host;
    QString program;
    return !isLocked() && m_lock->getLockInfo(&process, &host, &program) && host != QSysInfo::machineHostName();
}

bool FileLock::takeOver()
{
    return isHeldElsewhere() && m_lock->removeStaleLockFile() && m_lock->tryLock(0);
}

} // namespace projectfile
