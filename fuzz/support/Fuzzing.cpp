#include "Fuzzing.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>

namespace vxfuzz {

namespace {

QTemporaryDir& ownFolder()
{
    static QTemporaryDir folder;
    return folder;
}

} // namespace

void enterOwnFolder()
{
    const QString path = ownFolder().path();
    if (!ownFolder().isValid() || !QDir::setCurrent(path))
        std::abort();
    for (const char* const variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, QFile::encodeName(path));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, path);
}

void emptyOwnFolder()
{
    QDir folder(ownFolder().path());
    for (const QFileInfo& entry :
         folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
    {
        if (entry.isDir() && !entry.isSymLink())
            QDir(entry.filePath()).removeRecursively();
        else
            QFile::remove(entry.filePath());
    }
}

std::string withoutSlashes(std::string_view text)
{
    std::string changed(text);
    std::replace(changed.begin(), changed.end(), '/', '_');
    return changed;
}

void writeFile(const QString& name, std::string_view content)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(content.data(), static_cast<qint64>(content.size())) < 0)
        std::abort();
}

void useNoDisplay()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

} // namespace vxfuzz
