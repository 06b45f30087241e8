#include "projectfile/ProjectStore.h"

#include "FileCalls.h"
#include "KillRounds.h"
#include "ProjectTesting.h"

#include "projectfile/ProjectFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <csignal>
#include <cstdint>
#include <random>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

using projectfile::FileLock;
using projectfile::FileStamp;
using projectfile::hasChanged;
using projectfile::readFile;
using projectfile::StoreError;
using projectfile::writeFile;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

/// The longest time to wait for another program, in milliseconds. Only a failing test takes this long.
constexpr int patience = 120000;

class ProjectStore : public testing::Test
{
protected:
    QString path(const QString& name) const { return m_folder.path() + QLatin1Char('/') + name; }
    QDir folder() const { return {m_folder.path()}; }
    /// Returns the names of all files and folders in the folder, including hidden ones.
    QStringList content() const
    {
        return folder().entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

private:
    QTemporaryDir m_folder;
};

std::string nameOf(const QString& path)
{
    return path.toStdString();
}

/// Returns the message of the error that an action throws. The test fails if it throws none.
template <class Action>
std::string refusalOf(const Action& action)
{
    try {
        action();
    } catch (const StoreError& error) {
        return error.what();
    }
    ADD_FAILURE() << "no error was thrown";
    return {};
}

/// Writes to a file in place, as other programs do.
void scribble(const QString& path, const std::string& text)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << file.errorString().toStdString();
    ASSERT_EQ(file.write(text.data(), static_cast<qint64>(text.size())), static_cast<qint64>(text.size()));
}

mode_t modeOf(const QString& path)
{
    struct stat status = {};
    EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
    return status.st_mode & 07777U;
}

/// Sets the modification time of a file, in seconds since 1970.
void setTime(const QString& path, time_t seconds)
{
    const timeval times[] = {{seconds, 0}, {seconds, 0}};
    ASSERT_EQ(utimes(QFile::encodeName(path).constData(), times), 0);
}

constexpr time_t past = 1000000000;   // in 2001
constexpr time_t future = 9000000000; // in 2255

// --- Reading and writing ---

TEST_F(ProjectStore, ReadsTheTextThatWasWritten)
{
    std::string text = "a\r\n\xE9\x92\xA2";
    text += '\0';
    text += "\xFF end";
    for (const QString& name : {QStringLiteral("a.vxmat"), QStringLiteral("with blanks and \"quotes\" 'here'.vxmat"),
                                QStringLiteral("材料 钢.vxmat"), QStringLiteral(":colon.vxmat"),
                                QStringLiteral("back\\slash\nline.vxmat"), QStringLiteral("-o")})
    {
        const FileStamp written = writeFile(path(name), text);
        FileStamp read;
        EXPECT_EQ(readFile(path(name), &read), text) << nameOf(name);
        EXPECT_EQ(read.size, static_cast<qint64>(text.size()));
        EXPECT_EQ(read.size, written.size);
        EXPECT_EQ(read.modified, written.modified);
        EXPECT_EQ(read.checksum, written.checksum);
        EXPECT_FALSE(hasChanged(path(name), written));
        ASSERT_TRUE(QFile::remove(path(name)));
        EXPECT_THAT(content(), IsEmpty());
    }
}

TEST_F(ProjectStore, TreatsANameThatBeginsWithAColonAsAFileOfTheCurrentFolder)
{
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder().path()));
    writeFile(QStringLiteral(":a.vxmat"), "text");
    EXPECT_EQ(readFile(QStringLiteral(":a.vxmat")), "text");
    ASSERT_TRUE(QDir::setCurrent(before));
    EXPECT_EQ(content(), QStringList{QStringLiteral(":a.vxmat")});
}

TEST_F(ProjectStore, ReplacesAFileByALongerOrShorterOne)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    for (const std::size_t size : {std::size_t{3000000}, std::size_t{10}, std::size_t{0}, std::size_t{100000}}) {
        const std::string text(size, 'x');
        writeFile(file, text);
        EXPECT_EQ(readFile(file), text);
    }
    EXPECT_EQ(content(), QStringList{QStringLiteral("a.vxmat")});
}

TEST_F(ProjectStore, KeepsThePermissionsOfTheFile)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    writeFile(file, "old");
    for (const mode_t mode : {mode_t{0600}, mode_t{0640}, mode_t{0664}, mode_t{0755}, mode_t{0666}}) {
        ASSERT_EQ(chmod(QFile::encodeName(file).constData(), mode), 0);
        writeFile(file, "new");
        EXPECT_EQ(modeOf(file), mode);
    }
}

TEST_F(ProjectStore, GivesANewFileTheUsualPermissions)
{
    const mode_t before = umask(027);
    writeFile(path(QStringLiteral("a.vxmat")), "text");
    umask(before);
    EXPECT_EQ(modeOf(path(QStringLiteral("a.vxmat"))), mode_t{0640});
}

TEST_F(ProjectStore, KeepsTheOwnerOfTheFile)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make a file that belongs to another user";
    const QString file = path(QStringLiteral("a.vxmat"));
    writeFile(file, "old");
    constexpr uid_t other = 12345;
    ASSERT_EQ(chown(QFile::encodeName(file).constData(), other, other), 0);
    ASSERT_EQ(chmod(QFile::encodeName(file).constData(), 0640), 0);
    writeFile(file, "new");
    struct stat status = {};
    ASSERT_EQ(stat(QFile::encodeName(file).constData(), &status), 0);
    EXPECT_EQ(status.st_uid, other);
    EXPECT_EQ(status.st_gid, other);
    EXPECT_EQ(modeOf(file), mode_t{0640});
}

/// Returns a POSIX access list in the form of the system: the owner has all rights, the user 4711 may read and write, the
/// group and others have no rights.
std::string makeAccessList(std::uint16_t mask)
{
    struct Entry
    {
        std::uint16_t tag;
        std::uint16_t rights;
        std::uint32_t id;
    };
    constexpr std::uint32_t none = 0xFFFFFFFFU;
    const Entry entries[] = {{1, 7, none}, {2, 6, 4711}, {4, 0, none}, {16, mask, none}, {32, 0, none}};
    constexpr std::uint32_t version = 2;
    std::string list(reinterpret_cast<const char*>(&version), sizeof version);
    return list.append(reinterpret_cast<const char*>(entries), sizeof entries);
}

constexpr const char* accessList = "system.posix_acl_access";
constexpr const char* defaultList = "system.posix_acl_default";

std::string accessListOf(const QString& path)
{
    std::string list(1000, '\0');
    const ssize_t size = getxattr(QFile::encodeName(path).constData(), accessList, list.data(), list.size());
    list.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return list;
}

TEST_F(ProjectStore, KeepsTheAccessListOfTheFile)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    scribble(file, "old");
    const std::string list = makeAccessList(6);
    if (setxattr(QFile::encodeName(file).constData(), accessList, list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "the file system has no access lists";
    ASSERT_EQ(modeOf(file), 0760U) << "the mode has the mask in place of the group";
    writeFile(file, "new");
    EXPECT_EQ(accessListOf(file), list);
    EXPECT_EQ(modeOf(file), 0760U);
}

TEST_F(ProjectStore, TakesNoRightsFromTheAccessListOfTheFolder)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    scribble(file, "old");
    ASSERT_EQ(chmod(QFile::encodeName(file).constData(), 0640), 0);
    const std::string list = makeAccessList(7);
    if (setxattr(QFile::encodeName(path({})).constData(), defaultList, list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "the file system has no access lists";
    writeFile(file, "new");
    EXPECT_EQ(accessListOf(file), "");
    EXPECT_EQ(modeOf(file), 0640U);
}

TEST_F(ProjectStore, GivesNobodyMoreRightsIfTheOwnerCannotBeKept)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make a file of another owner";
    const QString file = path(QStringLiteral("a.vxmat"));
    scribble(file, "old");
    ASSERT_EQ(chown(QFile::encodeName(file).constData(), 4711, 4712), 0);
    ASSERT_EQ(chmod(QFile::encodeName(file).constData(), 0666), 0);
    ASSERT_EQ(chmod(QFile::encodeName(path({})).constData(), 0777), 0);
    const pid_t child = fork();
    if (child == 0) {
        const bool isOther = setgid(4713) == 0 && setuid(4713) == 0;
        writeFile(file, "new");
        _exit(isOther ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    EXPECT_EQ(modeOf(file), 0600U);
}

TEST_F(ProjectStore, WritesTheTargetOfAChainOfSymbolicLinks)
{
    ASSERT_TRUE(folder().mkdir(QStringLiteral("deep")));
    ASSERT_TRUE(folder().mkdir(QStringLiteral("links")));
    scribble(path(QStringLiteral("deep/target.vxmat")), "old");
    ASSERT_TRUE(QFile::link(QStringLiteral("../deep/target.vxmat"), path(QStringLiteral("links/second.vxmat"))));
    ASSERT_TRUE(QFile::link(QStringLiteral("links/second.vxmat"), path(QStringLiteral("first.vxmat"))));

    const FileStamp stamp = writeFile(path(QStringLiteral("first.vxmat")), "new");
    EXPECT_TRUE(QFileInfo(path(QStringLiteral("first.vxmat"))).isSymLink());
    EXPECT_TRUE(QFileInfo(path(QStringLiteral("links/second.vxmat"))).isSymLink());
    EXPECT_FALSE(QFileInfo(path(QStringLiteral("deep/target.vxmat"))).isSymLink());
    EXPECT_EQ(readFile(path(QStringLiteral("deep/target.vxmat"))), "new");
    EXPECT_FALSE(hasChanged(path(QStringLiteral("first.vxmat")), stamp));
    EXPECT_FALSE(hasChanged(path(QStringLiteral("deep/target.vxmat")), stamp));
}

TEST_F(ProjectStore, CreatesTheMissingTargetOfASymbolicLink)
{
    ASSERT_TRUE(QFile::link(QStringLiteral("target.vxmat"), path(QStringLiteral("link.vxmat"))));
    writeFile(path(QStringLiteral("link.vxmat")), "text");
    EXPECT_TRUE(QFileInfo(path(QStringLiteral("link.vxmat"))).isSymLink());
    EXPECT_EQ(readFile(path(QStringLiteral("target.vxmat"))), "text");
}

TEST_F(ProjectStore, RefusesCircularSymbolicLinks)
{
    ASSERT_TRUE(QFile::link(QStringLiteral("b.vxmat"), path(QStringLiteral("a.vxmat"))));
    ASSERT_TRUE(QFile::link(QStringLiteral("a.vxmat"), path(QStringLiteral("b.vxmat"))));
    const QString file = path(QStringLiteral("a.vxmat"));
    EXPECT_THAT(refusalOf([&] { writeFile(file, "text"); }), HasSubstr(nameOf(file)));
    EXPECT_THAT(refusalOf([&] { readFile(file); }), HasSubstr(nameOf(file)));
}

// --- Invalid files ---

TEST_F(ProjectStore, RefusesToReadAndWriteAFolder)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    ASSERT_TRUE(folder().mkdir(QStringLiteral("a.vxmat")));
    EXPECT_THAT(refusalOf([&] { readFile(file); }), AllOf(HasSubstr(nameOf(file)), HasSubstr("folder")));
    EXPECT_THAT(refusalOf([&] { writeFile(file, "text"); }), AllOf(HasSubstr(nameOf(file)), HasSubstr("folder")));
}

TEST_F(ProjectStore, RefusesAPathWithoutAValidFolder)
{
    const QString missing = path(QStringLiteral("none/a.vxmat"));
    EXPECT_THAT(refusalOf([&] { readFile(missing); }), HasSubstr(nameOf(missing)));
    EXPECT_THAT(refusalOf([&] { writeFile(missing, "text"); }),
                AllOf(HasSubstr(nameOf(missing)), HasSubstr("does not exist")));
    scribble(path(QStringLiteral("file")), "text");
    const QString inFile = path(QStringLiteral("file/a.vxmat"));
    EXPECT_THAT(refusalOf([&] { readFile(inFile); }), HasSubstr(nameOf(inFile)));
    EXPECT_THAT(refusalOf([&] { writeFile(inFile, "text"); }),
                AllOf(HasSubstr(nameOf(inFile)), HasSubstr("is a file")));
}

TEST_F(ProjectStore, RefusesAMissingFileAndInvalidNames)
{
    EXPECT_THAT(refusalOf([&] { readFile(path(QStringLiteral("none.vxmat"))); }),
                AllOf(HasSubstr("none.vxmat"), HasSubstr("No such file")));
    EXPECT_THAT(refusalOf([] { readFile(QString()); }), HasSubstr("empty"));
    EXPECT_THAT(refusalOf([] { writeFile(QString(), "text"); }), HasSubstr("empty"));
    const QString tooLong = path(QString(300, QLatin1Char('a')));
    EXPECT_THAT(refusalOf([&] { writeFile(tooLong, "text"); }), HasSubstr("aaa"));
}

TEST_F(ProjectStore, RefusesDevicesAndPipes)
{
    const QString pipe = path(QStringLiteral("pipe.vxmat"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& device : {QStringLiteral("/dev/zero"), QStringLiteral("/dev/full"), pipe}) {
        EXPECT_THAT(refusalOf([&] { readFile(device); }),
                    AllOf(HasSubstr(nameOf(device)), HasSubstr("device or a pipe")));
        EXPECT_THAT(refusalOf([&] { writeFile(device, "text"); }),
                    AllOf(HasSubstr(nameOf(device)), HasSubstr("device or a pipe")));
    }
    struct stat status = {};
    ASSERT_EQ(stat("/dev/full", &status), 0);
    EXPECT_TRUE(S_ISCHR(status.st_mode));
}

TEST_F(ProjectStore, RefusesAFileWhoseSizeTheSystemDoesNotReport)
{
    // The system reports the size 0 for this file.
    EXPECT_THAT(refusalOf([] { readFile(QStringLiteral("/proc/self/status")); }), HasSubstr("changed"));
}

TEST_F(ProjectStore, RefusesAFileThatIsLargerThanAnyProject)
{
    const QString file = path(QStringLiteral("large.vxmat"));
    scribble(file, "");
    ASSERT_EQ(truncate(QFile::encodeName(file).constData(), off_t{1} << 40U), 0);
    EXPECT_THAT(refusalOf([&] { readFile(file); }), AllOf(HasSubstr("large.vxmat"), HasSubstr("too large")));
}

enum class Saving
{
    Succeeded,
    Failed,        ///< with a message that names the file
    FailedUnnamed, ///< with another message
    NotTried,      ///< because the process could not be prepared
};

/// Saves in another process, if `prepare` returns true in that process.
template <class Prepare>
Saving saveElsewhere(const QString& file, const std::string& text, const Prepare& prepare)
{
    const pid_t child = fork();
    if (child == 0) {
        auto saving = Saving::NotTried;
        try {
            if (prepare()) {
                writeFile(file, text);
                saving = Saving::Succeeded;
            }
        } catch (const StoreError& error) {
            const bool isNamed = std::string(error.what()).find(nameOf(file) + ": ") == 0;
            saving = isNamed ? Saving::Failed : Saving::FailedUnnamed;
        }
        _exit(static_cast<int>(saving));
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status)) << status;
    return static_cast<Saving>(WEXITSTATUS(status));
}

TEST_F(ProjectStore, LeavesTheFileUnchangedIfItsFolderIsReadOnly)
{
    ASSERT_TRUE(folder().mkdir(QStringLiteral("shut")));
    const QString shut = path(QStringLiteral("shut"));
    const QString file = path(QStringLiteral("shut/a.vxmat"));
    scribble(file, "old");
    ASSERT_EQ(chmod(QFile::encodeName(file).constData(), 0666), 0);
    ASSERT_EQ(chmod(QFile::encodeName(shut).constData(), 0555), 0);
    ASSERT_EQ(chmod(QFile::encodeName(folder().path()).constData(), 0755), 0);
    // Root may write to every file and folder, so another user saves.
    constexpr uid_t nobody = 65534;
    const auto becomeSomebody = [] { return geteuid() != 0 || setuid(nobody) == 0; };
    EXPECT_EQ(saveElsewhere(file, "new", becomeSomebody), Saving::Failed);
    EXPECT_EQ(readFile(file), "old");
    ASSERT_EQ(chmod(QFile::encodeName(shut).constData(), 0755), 0);
    EXPECT_EQ(QDir(shut).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("a.vxmat")});
}

TEST_F(ProjectStore, LeavesTheFileUnchangedIfTheNewFileIsTooLarge)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    writeFile(file, "old");
    const auto limitFiles = [] {
        const rlimit limit{8192, 8192};
        return std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &limit) == 0;
    };
    // One size needs one call to write, the other size needs several calls.
    for (const std::size_t size : {std::size_t{9000}, std::size_t{3000000}}) {
        EXPECT_EQ(saveElsewhere(file, std::string(size, 'x'), limitFiles), Saving::Failed);
        EXPECT_EQ(readFile(file), "old");
        EXPECT_EQ(content(), QStringList{QStringLiteral("a.vxmat")});
    }
    EXPECT_EQ(saveElsewhere(file, std::string(8000, 'x'), limitFiles), Saving::Succeeded);
}

TEST_F(ProjectStore, LeavesTheFileUnchangedIfTheDiskIsFull)
{
    const QString disk = path(QStringLiteral("disk"));
    ASSERT_TRUE(folder().mkdir(QStringLiteral("disk")));
    const QByteArray mountPoint = QFile::encodeName(disk);
    if (mount("tmpfs", mountPoint.constData(), "tmpfs", 0, "size=256k") != 0)
        GTEST_SKIP() << "mounting a small disk needs root and the permission to mount";
    const QString file = disk + QStringLiteral("/a.vxmat");
    const std::string old(100000, 'o');
    writeFile(file, old);
    EXPECT_THAT(refusalOf([&] { writeFile(file, std::string(300000, 'n')); }),
                AllOf(HasSubstr(nameOf(file)), HasSubstr("No space left")));
    EXPECT_EQ(readFile(file), old);
    EXPECT_EQ(QDir(disk).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("a.vxmat")});
    EXPECT_EQ(umount(mountPoint.constData()), 0);
}

// --- Changes by other programs ---

TEST_F(ProjectStore, DetectsAChangeByAnotherProgram)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    const FileStamp stamp = writeFile(file, "one");
    EXPECT_FALSE(hasChanged(file, stamp));
    scribble(file, "two"); // has the same size and possibly the same modification time
    EXPECT_TRUE(hasChanged(file, stamp));
    scribble(file, "three");
    EXPECT_TRUE(hasChanged(file, stamp));
    scribble(file, "one");
    EXPECT_FALSE(hasChanged(file, stamp));
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_TRUE(hasChanged(file, stamp));
    ASSERT_TRUE(folder().mkdir(QStringLiteral("a.vxmat")));
    EXPECT_TRUE(hasChanged(file, stamp));
}

TEST_F(ProjectStore, IgnoresANewModificationTimeAlone)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    const FileStamp stamp = writeFile(file, "one");
    setTime(file, past);
    EXPECT_FALSE(hasChanged(file, stamp));
}

TEST_F(ProjectStore, DetectsThatAFileWasCreated)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    EXPECT_FALSE(hasChanged(file, FileStamp()));
    scribble(file, "");
    EXPECT_TRUE(hasChanged(file, FileStamp()));
}

/// Reads a file. Just before the read call number `which`, replaces the content of the file by `content` and changes
/// its modification time. Returns whether there was such a call.
bool readsWhileAnotherProgramWrites(const QString& file, int which, const std::string& content)
{
    const std::string before(400000, 'a');
    scribble(file, before);
    int readings = 0;
    const vxtest::BeforeReading hook([&] {
        if (++readings != which)
            return;
        scribble(file, content);
        setTime(file, past);
    });
    std::string refusal;
    try {
        EXPECT_EQ(readFile(file), before);
    } catch (const StoreError& error) {
        refusal = error.what();
    }
    EXPECT_EQ(refusal, readings < which ? ""
                                        : nameOf(file) + ": Another program changed the file while it was read. "
                                                         "Try again.");
    return readings >= which;
}

TEST_F(ProjectStore, ReadsTheWholeFileOrFailsIfAnotherProgramWritesIt)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    for (const std::size_t size : {0U, 1U, 399999U, 400000U, 400001U, 2000000U}) {
        int which = 1;
        while (readsWhileAnotherProgramWrites(file, which, std::string(size, 'b')))
            ++which;
        EXPECT_GT(which, 2) << "the file was read in one call";
    }
}

// --- The lock ---

/// A program that tries to lock a file and holds the lock until it ends.
class LockHolder
{
public:
    explicit LockHolder(const QString& file)
    {
        m_process.start(QStringLiteral(LOCK_HOLDER), {file});
        EXPECT_TRUE(m_process.waitForReadyRead(patience)) << m_process.readAllStandardError().toStdString();
        m_answer = m_process.readLine().trimmed();
    }
    LockHolder(const LockHolder&) = delete;
    LockHolder& operator=(const LockHolder&) = delete;
    ~LockHolder() { end(); }

    bool hasLock() const { return m_answer == "yes"; }
    qint64 processId() const { return m_process.processId(); }
    void end()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished(patience);
    }
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished(patience);
    }

private:
    QProcess m_process;
    QByteArray m_answer;
};

TEST_F(ProjectStore, LockExcludesASecondProgramAndNamesTheFirst)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    LockHolder other(file);
    ASSERT_TRUE(other.hasLock());
    FileLock lock(file);
    EXPECT_FALSE(lock.tryLock());
    EXPECT_FALSE(lock.isLocked());
    EXPECT_THAT(lock.holder().toStdString(),
                testing::StartsWith("lock_holder (" + std::to_string(other.processId()) + " on "));
    other.end();
    EXPECT_EQ(lock.holder(), QString());
    EXPECT_TRUE(lock.tryLock());
    EXPECT_TRUE(lock.isLocked());
    EXPECT_FALSE(LockHolder(file).hasLock());
}

TEST_F(ProjectStore, LockOfAProgramThatWasKilledDoesNotCount)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    LockHolder other(file);
    ASSERT_TRUE(other.hasLock());
    other.kill();
    EXPECT_EQ(content(), QStringList{QStringLiteral(".a.vxmat.lock")});
    FileLock lock(file);
    EXPECT_EQ(lock.holder(), QString());
    EXPECT_TRUE(lock.tryLock());
}

TEST_F(ProjectStore, LockOfARunningProgramCountsAtAnyAge)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    const LockHolder other(file);
    ASSERT_TRUE(other.hasLock());
    setTime(path(QStringLiteral(".a.vxmat.lock")), past);
    EXPECT_FALSE(FileLock(file).tryLock());
}

TEST_F(ProjectStore, LockWithoutContentDoesNotCountIfItIsOld)
{
    // A crash between creating the lock file and writing to it leaves such a file.
    const QString file = path(QStringLiteral("a.vxmat"));
    const QString lockFile = path(QStringLiteral(".a.vxmat.lock"));
    scribble(lockFile, "");
    setTime(lockFile, future);
    EXPECT_FALSE(FileLock(file).tryLock());
    setTime(lockFile, past);
    EXPECT_TRUE(FileLock(file).tryLock());
}

TEST_F(ProjectStore, LockOfAnotherComputerCanBeTakenOver)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    scribble(path(QStringLiteral(".a.vxmat.lock")), "4711\nkelta\nfaraway\n\n\n");
    FileLock lock(file);
    EXPECT_FALSE(lock.tryLock());
    EXPECT_EQ(lock.holder(), QStringLiteral("kelta (4711 on faraway)"));
    EXPECT_TRUE(lock.isHeldElsewhere());
    EXPECT_TRUE(lock.takeOver());
    EXPECT_TRUE(lock.isLocked());
    EXPECT_FALSE(lock.isHeldElsewhere());
    EXPECT_FALSE(FileLock(file).tryLock());
}

TEST_F(ProjectStore, LockOfARunningProgramCannotBeTakenOver)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    const LockHolder other(file);
    ASSERT_TRUE(other.hasLock());
    FileLock lock(file);
    EXPECT_FALSE(lock.tryLock());
    EXPECT_FALSE(lock.isHeldElsewhere());
    EXPECT_FALSE(lock.takeOver());
    EXPECT_FALSE(lock.isLocked());
}

TEST_F(ProjectStore, LockFileThatIsNoFileIsRefused)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    ASSERT_EQ(mkfifo(QFile::encodeName(path(QStringLiteral(".a.vxmat.lock"))).constData(), 0600), 0);
    EXPECT_THAT(refusalOf([&] { const FileLock lock(file); }), HasSubstr(".a.vxmat.lock' is not a regular file"));
}

TEST_F(ProjectStore, LockIsTheSameForASymbolicLinkAndItsTarget)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    scribble(file, "text");
    ASSERT_TRUE(folder().mkdir(QStringLiteral("links")));
    const QString link = path(QStringLiteral("links/b.vxmat"));
    ASSERT_TRUE(QFile::link(QStringLiteral("../a.vxmat"), link));
    FileLock lock(link);
    EXPECT_TRUE(lock.tryLock());
    EXPECT_FALSE(FileLock(file).tryLock());
    EXPECT_TRUE(QFileInfo::exists(path(QStringLiteral(".a.vxmat.lock"))));
}

TEST_F(ProjectStore, LockIsReleasedByItsDestructorAndLeavesNoFile)
{
    const QString file = path(QStringLiteral("a.vxmat"));
    {
        FileLock first(file);
        ASSERT_TRUE(first.tryLock());
        FileLock second(std::move(first));
        EXPECT_TRUE(second.isLocked());
        first = FileLock(path(QStringLiteral("b.vxmat")));
        EXPECT_TRUE(first.tryLock());
        EXPECT_EQ(content().size(), 2);
    }
    EXPECT_THAT(content(), IsEmpty());
}

TEST_F(ProjectStore, LockFailsIfNoLockFileCanBeMade)
{
    FileLock lock(path(QStringLiteral("none/a.vxmat")));
    EXPECT_FALSE(lock.tryLock());
    EXPECT_EQ(lock.holder(), QString());
}

// --- Killed while saving ---

/// Another program saves to a file until it is killed.
class KilledSaving : public ProjectStore
{
protected:
    KilledSaving()
    {
        vxtest::Dice dice;
        first = projectfile::writeProject(dice.makeProject(1500));
        second = projectfile::writeProject(dice.makeProject(900));
        EXPECT_GT(second.size(), 1000000U);
        EXPECT_GT(first.size(), second.size());
        EXPECT_TRUE(folder().mkdir(QStringLiteral("saved")));
        scribble(path(QStringLiteral("first")), first);
        scribble(path(QStringLiteral("second")), second);
    }

    /// Returns whether the file has the second state. The test fails if it has neither state.
    bool holdsSecond() const
    {
        const std::string found = readFile(file());
        EXPECT_TRUE(found == first || found == second) << "neither state, but " << found.size() << " bytes";
        return found == second;
    }

    /// Replaces the first state by the second in a program that is killed in call `number` of the calls that change
    /// files. Returns whether it was killed.
    bool diesInCall(int number) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("VX_DIE_IN_FILE_CALL"), QString::number(number));
        environment.insert(QStringLiteral("VX_FILE_CALLS"), path(QStringLiteral("calls")));
        QFile::remove(path(QStringLiteral("calls")));
        scribble(file(), first);
        QProcess saver;
        saver.setProcessEnvironment(environment);
        saver.start(QStringLiteral(SAVE_LOOP), {file(), path(QStringLiteral("second"))});
        EXPECT_TRUE(saver.waitForFinished(patience)) << saver.errorString().toStdString();
        EXPECT_TRUE(saver.exitStatus() == QProcess::CrashExit || saver.exitCode() == 0)
            << saver.readAllStandardError().toStdString();
        return saver.exitStatus() == QProcess::CrashExit;
    }

    /// Returns the calls up to and including the call in which the program was killed.
    QStringList calls() const
    {
        return QString::fromStdString(readFile(path(QStringLiteral("calls")))).split('\n', Qt::SkipEmptyParts);
    }

    QString file() const { return path(QStringLiteral("saved/a.vxmat")); }
    QStringList projects() const
    {
        return QDir(path(QStringLiteral("saved"))).entryList({QStringLiteral("*.vxmat")}, QDir::Files | QDir::Hidden);
    }

    std::string first;
    std::string second;
};

TEST_F(KilledSaving, LeavesTheOldStateBeforeOneCallAndTheNewStateAfterIt)
{
    int dead = 0;
    bool wasSecond = false;
    while (diesInCall(dead + 1)) {
        ++dead;
        SCOPED_TRACE(calls().join(QStringLiteral(", ")).toStdString());
        const bool isSecond = holdsSecond();
        EXPECT_TRUE(isSecond || !wasSecond);
        wasSecond = isSecond;
        EXPECT_EQ(projects(), QStringList{QStringLiteral("a.vxmat")});
    }
    EXPECT_TRUE(holdsSecond());
    const QStringList all = calls();
    EXPECT_EQ(all.size(), dead);
    // The text is on the disk before the new file replaces the old one.
    EXPECT_GT(all.indexOf(QStringLiteral("fsync")), all.lastIndexOf(QStringLiteral("write the rest")));
    EXPECT_GT(all.indexOf(QRegularExpression(QStringLiteral("^rename.*"))), all.indexOf(QStringLiteral("fsync")));
}

TEST_F(KilledSaving, LeavesOneOfTwoStatesIfItIsKilledAtAnyMoment)
{
    const QStringList arguments{file(), path(QStringLiteral("first")), path(QStringLiteral("second"))};
    std::mt19937 engine(7);
    std::uniform_int_distribution<int> savings(1, 5);
    for (int round = 0; round < vxtest::killRounds() && !HasFailure(); ++round) {
        QProcess saver;
        saver.start(QStringLiteral(SAVE_LOOP), arguments);
        const int enough = savings(engine);
        for (int saved = 0; saved < enough; saved += saver.readAllStandardOutput().size())
            ASSERT_TRUE(saver.waitForReadyRead(patience)) << saver.readAllStandardError().toStdString();
        saver.kill();
        ASSERT_TRUE(saver.waitForFinished(patience));
        EXPECT_EQ(saver.exitStatus(), QProcess::CrashExit) << saver.readAllStandardError().toStdString();
        holdsSecond();
        EXPECT_EQ(projects(), QStringList{QStringLiteral("a.vxmat")});
    }
}

} // namespace
