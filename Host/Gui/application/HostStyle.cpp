#include "application/HostStyle.h"

#include "Gui/PictureFactory.h"
#include "Gui/WindowTitle.h"

#include <QPainter>
#include <QStyleOption>

namespace Gui {

namespace {

/// Draws a cross, on a grey ground while the mouse is over it.
void drawTabClose(const QStyleOption& option, QPainter& painter)
{
    const QColor text = option.palette.color(QPalette::Active, QPalette::WindowText);
    const QRectF button = QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if ((option.state & (QStyle::State_Raised | QStyle::State_Sunken | QStyle::State_MouseOver)) != 0) {
        QColor ground = text;
        ground.setAlphaF((option.state & QStyle::State_Sunken) != 0 ? 0.35 : 0.2);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(button, 2.0, 2.0);
    }
    const QRectF cross = button.adjusted(3.0, 3.0, -3.0, -3.0);
    painter.setPen(QPen(text, 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
    painter.restore();
}

} // namespace

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

void HostStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    if (element == PE_IndicatorTabClose && option != nullptr && painter != nullptr)
        drawTabClose(*option, *painter);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void HostStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    const auto* const title = qstyleoption_cast<const QStyleOptionToolBox*>(option);
    if (element == CE_ToolBoxTabLabel && title != nullptr)
        drawToolBoxTitle(*title, painter, widget);
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

/// The base style would cut the text with its marks, perhaps between the two characters of "&&".
void HostStyle::drawToolBoxTitle(const QStyleOptionToolBox& title, QPainter* painter, const QWidget* widget) const
{
    constexpr int margins = 12; // of the base style
    const QString text = withoutMnemonics(title.text);
    // The base style measures each "&" twice.
    const int marks = text.count(QLatin1Char('&')) * title.fontMetrics.horizontalAdvance(QLatin1Char('&'));
    const int width = subElementRect(SE_ToolBoxTabContents, &title, widget).width() - margins - marks;
    QStyleOptionToolBox fitting(title);
    fitting.text = escapedForMnemonics(title.fontMetrics.elidedText(text, Qt::ElideRight, width));
    QProxyStyle::drawControl(CE_ToolBoxTabLabel, &fitting, painter, widget);
}

} // namespace Gui
