#include "RecentFiles.h"

#include <QSettings>

namespace desktop {

namespace {

constexpr const char* settingsKey = "files/recent";
constexpr int mostFiles = 10;

void store(const QStringList& files)
{
    QSettings().setValue(QLatin1String(settingsKey), files);
}

} // namespace

QStringList RecentFiles::list()
{
    return QSettings().value(QLatin1String(settingsKey)).toStringList();
}

void RecentFiles::add(const QString& path)
{
    QStringList files = list();
    files.removeAll(path);
    files.prepend(path);
    store(files.mid(0, mostFiles));
}

void RecentFiles::remove(const QString& path)
{
    QStringList files = list();
    if (files.removeAll(path) != 0)
        store(files);
}

} // namespace desktop
