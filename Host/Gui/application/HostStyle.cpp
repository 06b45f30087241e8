#include "application/HostStyle.h"

#include "pictures/LazyIcon.h"

#include <QPointer>

namespace Gui {

HostStyle::HostStyle() = default;

HostStyle::~HostStyle() = default;

QIcon HostStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption* option, const QWidget* widget) const
{
    switch (standardIcon) {
    case SP_ToolBarHorizontalExtensionButton:
    case SP_ToolBarVerticalExtensionButton:
        return makeLazyIcon([style = QPointer<const HostStyle>(this), standardIcon](const QSize& size) {
            return style != nullptr ? style->QProxyStyle::standardIcon(standardIcon).pixmap(size) : QPixmap();
        });
    case SP_TitleBarNormalButton:
    case SP_TitleBarCloseButton:
    case SP_DockWidgetCloseButton: {
        QIcon& icon = m_titleIcons[standardIcon];
        if (icon.isNull())
            icon = QProxyStyle::standardIcon(standardIcon, option, widget);
        return icon;
    }
    default:
        return QProxyStyle::standardIcon(standardIcon, option, widget);
    }
}

} // namespace Gui
