#include "Gui/PictureFactory.h"

#include "Kelta/MessageLog.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSet>

namespace Gui {

namespace {

QString pathOf(const QString& nameOrPath)
{
    const bool isPath = nameOrPath.startsWith(QLatin1Char(':')) || nameOrPath.contains(QLatin1Char('/'));
    return isPath ? nameOrPath : QStringLiteral(":icons/%1.svg").arg(nameOrPath);
}

void reportMissing(const QString& path)
{
    static QSet<QString> reported;
    if (reported.contains(path))
        return;
    reported.insert(path);
    Kelta::MessageLog::warning(
        QCoreApplication::translate("Gui::PictureFactory", "The picture %1 is missing.").arg(path));
}

QPixmap makePlaceholder(int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect().adjusted(size / 8, size / 8, -size / 8, -size / 8), Qt::gray);
    return pixmap;
}

} // namespace

QPixmap PictureFactory::get_pixmap(const QString& nameOrPath, int size)
{
    const QString path = pathOf(nameOrPath);
    QImageReader reader(path);
    reader.setScaledSize({size, size});
    const QImage image = reader.read();
    if (!image.isNull())
        return QPixmap::fromImage(image);
    reportMissing(path);
    return makePlaceholder(size);
}

} // namespace Gui
