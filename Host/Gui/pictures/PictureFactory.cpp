#include "Gui/PictureFactory.h"

#include "Kelta/MessageLog.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QSet>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>

#include <algorithm>
#include <utility>

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

/// Returns whether windows are dark now.
bool isDark()
{
    constexpr int middle = 128;
    return QGuiApplication::palette().color(QPalette::Window).lightness() < middle;
}

/// Returns the text of a drawing. On dark windows, its lines in the colour of writing are bright.
QByteArray readDrawing(const QString& path)
{
    QFile file(path);
    QByteArray drawing = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return isDark() ? drawing.replace("#44525f", "#c3ccd5") : drawing;
}

/// Returns a null image if there is no picture. Does not read drawings with the image reader, which would load the
/// plug-ins of all other formats first.
QImage read(const QString& path, const QSize& size)
{
    if (!QFileInfo::exists(path))
        return {};
    if (!path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
        QImageReader reader(path);
        reader.setScaledSize(size);
        return reader.read();
    }
    QSvgRenderer drawing(readDrawing(path));
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

/// Returns a picture for a disabled entry: grey, and much paler than the picture on light and on dark ground. The style
/// makes it grey only, which on dark ground hardly differs.
QPixmap faded(const QPixmap& picture)
{
    constexpr double opacity = 0.35;
    QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const int gray = qGray(pixel);
            image.setPixel(x, y, qRgba(gray, gray, gray, static_cast<int>(qAlpha(pixel) * opacity)));
        }
    return QPixmap::fromImage(image);
}

/// An icon that is drawn on first display, at the displayed size. With Qt's own icon for drawings, which
/// loads a plug-in, the start is 4 % longer (gui_bench).
class DrawnIcon final : public QIconEngine
{
public:
    explicit DrawnIcon(QString path) : m_path(std::move(path)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QSize pixels = rect.size() * painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(pixels, mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        const int side = std::min(size.width(), size.height());
        const QString key =
            QStringLiteral("Gui::DrawnIcon %1 %2 %3 %4").arg(m_path).arg(side).arg(mode).arg(isDark() ? 1 : 0);
        QPixmap picture;
        if (!QPixmapCache::find(key, &picture)) {
            picture = draw(side, mode);
            QPixmapCache::insert(key, picture);
        }
        return picture;
    }

    QIconEngine* clone() const override { return new DrawnIcon(*this); }

private:
    QPixmap draw(int side, QIcon::Mode mode) const
    {
        const QPixmap picture = PictureFactory::get_pixmap(m_path, side);
        if (mode == QIcon::Normal)
            return picture;
        if (mode == QIcon::Disabled)
            return faded(picture);
        QStyleOption option;
        option.palette = QGuiApplication::palette();
        return QApplication::style()->generatedIconPixmap(mode, picture, &option);
    }

    QString m_path;
};

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

QIcon PictureFactory::getIcon(const QString& nameOrPath)
{
    return QIcon(new DrawnIcon(pathOf(nameOrPath)));
}

} // namespace Gui
