#include "Gui/PictureFactory.h"

#include "pictures/LazyIcon.h"

#include "Kelta/MessageLog.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>

#include <algorithm>

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

/// Null when there is no picture. Drawings do not go through the image reader, which would load the plug-ins of all other
/// formats first.
QImage read(const QString& path, const QSize& size)
{
    if (!QFileInfo::exists(path))
        return {};
    if (!path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
        QImageReader reader(path);
        reader.setScaledSize(size);
        return reader.read();
    }
    QSvgRenderer drawing(path);
    if (!drawing.isValid())
        return {};
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    return image;
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
    const QImage image = read(path, {size, size});
    if (!image.isNull())
        return QPixmap::fromImage(image);
    reportMissing(path);
    return makePlaceholder(size);
}

QIcon PictureFactory::get_icon(const QString& nameOrPath)
{
    return makeLazyIcon([path = pathOf(nameOrPath)](const QSize& size) {
        return get_pixmap(path, std::min(size.width(), size.height()));
    });
}

} // namespace Gui
