#include "tree/NodeIcons.h"

#include "Gui/PictureFactory.h"

#include <QPainter>

namespace Gui {

namespace {

constexpr int iconSize = 32;

QPixmap draw(const QString& pixmapName, const QColor& dot)
{
    QPixmap pixmap = PictureFactory::get_pixmap(pixmapName, iconSize);
    if (!dot.isValid())
        return pixmap;
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::white);
    painter.setBrush(dot);
    painter.drawEllipse(QRectF(iconSize * 0.58, iconSize * 0.58, iconSize * 0.38, iconSize * 0.38));
    return pixmap;
}

} // namespace

QIcon NodeIcons::get(const QString& pixmapName, const QColor& dot)
{
    if (pixmapName.isEmpty())
        return {};
    QIcon& icon = m_icons[pixmapName + (dot.isValid() ? dot.name() : QString())];
    if (icon.isNull())
        icon = QIcon(draw(pixmapName, dot));
    return icon;
}

} // namespace Gui
