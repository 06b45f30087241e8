#include "application/HostStyle.h"

#include "Gui/PictureFactory.h"

namespace Gui {

HostStyle::HostStyle() = default;

HostStyle::~HostStyle() = default;

QIcon HostStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption* option, const QWidget* widget) const
{
    switch (standardIcon) {
    case SP_ToolBarHorizontalExtensionButton:
        return PictureFactory::getIcon(QStringLiteral("kelta_more_right"));
    case SP_ToolBarVerticalExtensionButton:
        return PictureFactory::getIcon(QStringLiteral("kelta_more_below"));
    default:
        return QProxyStyle::standardIcon(standardIcon, option, widget);
    }
}

} // namespace Gui
