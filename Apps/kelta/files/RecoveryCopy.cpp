#include "RecoveryCopy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUuid>

namespace desktop {

namespace {

QDir recoveryFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/recovery"));
}

} // namespace

RecoveryCopy::RecoveryCopy()
    : RecoveryCopy(
          recoveryFolder().filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + QStringLiteral(".vxmat")))
{}

RecoveryCopy::RecoveryCopy(const QString& path) : m_path(path), m_lock(path) {}

std::vector<RecoveryCopy> RecoveryCopy::findAbandoned()
{
    std::vector<RecoveryCopy> copies;
    const QDir folder = recoveryFolder();
    for (const QString& name : folder.entryList({QStringLiteral("*.vxmat")}, QDir::Files, QDir::Time | QDir::Reversed))
    {
        RecoveryCopy copy(folder.filePath(name));
        // The program that had the lock may have removed the copy just before.
        if (copy.m_lock.tryLock() && QFileInfo::exists(copy.m_path))
            copies.push_back(std::move(copy));
    }
    return copies;
}

QDateTime RecoveryCopy::time() const
{
    return QFileInfo(m_path).lastModified();
}

void RecoveryCopy::write(const std::string& text)
{
    const QString folder = QFileInfo(m_path).absolutePath();
    QDir().mkpath(folder);
    // The file of the project may be private, so other users must not read the copy.
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // Locked before it exists, so that no other program takes it for the copy of a program that ended.
    if (!m_lock.isLocked())
        m_lock.tryLock();
    projectfile::writeFile(m_path, text);
}

std::string RecoveryCopy::read() const
{
    return projectfile::readFile(m_path);
}

void RecoveryCopy::remove()
{
    QFile::remove(m_path);
    m_lock = projectfile::FileLock(m_path);
}

} // namespace desktop
