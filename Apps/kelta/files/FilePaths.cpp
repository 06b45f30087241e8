#include "FilePaths.h"

#include <QDir>
#include <QFileInfo>

namespace desktop {

QString canonicalPath(const QString& path)
{
    QFileInfo info(path);
    // Follows a chain of links to a file that does not exist yet. The limit ends a circle of links.
    for (int links = 0; !info.exists() && info.isSymLink() && links < 40; ++links)
        info.setFile(info.symLinkTarget());
    if (info.exists())
        return info.canonicalFilePath();
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? info.absoluteFilePath() : QDir(folder).filePath(info.fileName());
}

QString shownPath(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace desktop
