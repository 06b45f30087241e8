#include "RecoveryCopy.h"

#include "Kelta/MessageLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUuid>

#include <optional>
#include <utility>

namespace desktop {

namespace {

/// Returns the folder of the copies; absent if neither HOME nor XDG_DATA_HOME names a folder. Qt would then use a folder
/// of the root or of the current folder.
std::optional<QDir> recoveryFolder()
{
    const QString home = qEnvironmentVariable("HOME");
    const bool hasHome = QDir::isAbsolutePath(home) && QFileInfo(home).isDir();
    if (!hasHome && !QDir::isAbsolutePath(qEnvironmentVariable("XDG_DATA_HOME")))
        return std::nullopt;
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/recovery"));
}

QString newPath()
{
    const auto folder = recoveryFolder();
    if (!folder)
        throw projectfile::StoreError(
            QCoreApplication::translate("desktop::ProjectFiles", "HOME is not the name of a folder.").toStdString());
    return folder->filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + QStringLiteral(".vxmat"));
}

/// Adds the copy of a program that no longer runs, and locks it.
void addAbandoned(RecoveryCopy copy, std::vector<RecoveryCopy>& copies)
{
    // The program that had the lock may have removed the copy just before.
    if (copy.tryLock() && QFileInfo::exists(copy.path()))
        copies.push_back(std::move(copy));
}

} // namespace

RecoveryCopy::RecoveryCopy() : RecoveryCopy(newPath()) {}

RecoveryCopy::RecoveryCopy(const QString& path) : m_path(path), m_lock(path) {}

std::vector<RecoveryCopy> RecoveryCopy::findAbandoned()
{
    std::vector<RecoveryCopy> copies;
    const auto folder = recoveryFolder();
    if (!folder)
        return copies;
    for (const QString& name : folder->entryList({QStringLiteral("*.vxmat")}, QDir::Files, QDir::Time | QDir::Reversed))
        try {
            addAbandoned(RecoveryCopy(folder->filePath(name)), copies);
        } catch (const projectfile::StoreError& error) {
            Kelta::MessageLog::warning(QString::fromUtf8(error.what()));
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
    m_lock.unlock();
}

} // namespace desktop
