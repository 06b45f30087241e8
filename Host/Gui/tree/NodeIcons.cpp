#include "tree/NodeIcons.h"

#include "Gui/PictureFactory.h"

#include <QPainter>
#include <QStringList>

namespace Gui {

namespace {

constexpr int iconSize = 32;

QPixmap draw(const QString& pixmapName, const QColor& dot, const QColor& square)
{
    QPixmap pixmap = PictureFactory::get_pixmap(pixmapName, iconSize);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 2.0));
    if (dot.isValid()) {
        painter.setBrush(dot);
        painter.drawEllipse(QRectF(iconSize * 0.58, iconSize * 0.58, iconSize * 0.38, iconSize * 0.38));
    }
    if (square.isValid()) {
        painter.setBrush(square);
        painter.drawRect(QRectF(iconSize * 0.04, iconSize * 0.58, iconSize * 0.38, iconSize * 0.38));
    }
    return pixmap;
}

QString nameOf(const QColor& color)
{
    return color.isValid() ? color.name() : QString();
}

} // namespace

QIcon NodeIcons::get(const QString& pixmapName, const QColor& dot, const QColor& square)
{
    if (pixmapName.isEmpty())
        return {};
    QIcon& icon = m_icons[QStringList{pixmapName, nameOf(dot), nameOf(square)}.join(QLatin1Char(' '))];
    if (icon.isNull())
        icon = QIcon(draw(pixmapName, dot, square));
    return icon;
}

} // namespace Gui
