#include "UserSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTextCodec>

namespace desktop {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("kelta", text);
}

void storeIn(const QString& folder)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder);
}

/// No file can be made below a file. An empty path would mean the current folder.
void storeNowhere()
{
    storeIn(QStringLiteral("/dev/null"));
}

/// Without a home, Qt would use the root folder.
bool hasFolder()
{
    const QString home = qEnvironmentVariable("HOME");
    return QDir::isAbsolutePath(qEnvironmentVariable("XDG_CONFIG_HOME")) ||
           (QDir::isAbsolutePath(home) && QFileInfo(home).isDir());
}

/// Returns whether a file cannot be one of settings: it has a zero byte or is not UTF-8. QSettings ignores such bytes.
bool isDamaged(const QString& path)
{
    QFile file(path);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    QTextCodec::ConverterState state;
    static_cast<void>(QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state));
    return bytes.contains('\0') || state.invalidChars != 0 || state.remainingChars != 0;
}

} // namespace

QString chooseUserSettings()
{
    if (!hasFolder()) {
        storeNowhere();
        return tr("HOME is not the name of a folder. The settings of this run are not stored.");
    }
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QLatin1Char('/') +
                           QCoreApplication::organizationName();
    const QString file = QStringLiteral("%1/%2.conf").arg(folder, QCoreApplication::applicationName());
    // Reading a pipe or a device may never begin or never end.
    for (const QString& read : {file, file + QStringLiteral(".lock"), folder + QStringLiteral(".conf")})
        if (const QFileInfo info(read); info.exists() && !info.isFile()) {
            storeNowhere();
            return tr("\"%1\" is not a regular file. The settings of this run are not stored.")
                .arg(QDir::toNativeSeparators(read));
        }
    if (!isDamaged(file) && QSettings().status() == QSettings::NoError)
        return {};
    return tr("The settings file \"%1\" is damaged or cannot be read. Settings that cannot be read have their "
              "defaults.")
        .arg(QDir::toNativeSeparators(file));
}

void chooseOwnSettings(const QString& folder)
{
    if (folder.isEmpty())
        storeNowhere();
    else
        storeIn(folder);
}

} // namespace desktop
