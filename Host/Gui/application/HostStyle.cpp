#include "application/HostStyle.h"

#include "Gui/PictureFactory.h"
#include "Gui/WindowTitle.h"

#include <QApplication>
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

/// Returns a colour between two others; `weight` is the weight of the first.
QColor between(const QColor& one, const QColor& other, double weight)
{
    const auto mixed = [weight](double first, double second) { return weight * first + (1.0 - weight) * second; };
    return QColor::fromRgbF(mixed(one.redF(), other.redF()), mixed(one.greenF(), other.greenF()),
                            mixed(one.blueF(), other.blueF()));
}

/// Returns whether the keyboard acts on a view. Lists that pop up have the keyboard without the focus.
bool hasKeyboard(const QWidget& view)
{
    const QWidget* const focus = QApplication::focusWidget();
    return view.window()->windowType() == Qt::Popup || view.hasFocus() ||
           (focus != nullptr && view.isAncestorOf(focus));
}

/// Returns the option of an item in a view on which the keyboard does not act: its selection is paler.
QStyleOptionViewItem withoutKeyboard(QStyleOptionViewItem option)
{
    constexpr double strength = 0.35;
    const auto active = [&option](QPalette::ColorRole role) { return option.palette.color(QPalette::Active, role); };
    option.palette.setColor(QPalette::Inactive, QPalette::Highlight,
                            between(active(QPalette::Highlight), active(QPalette::Base), strength));
    option.palette.setColor(QPalette::Inactive, QPalette::HighlightedText, active(QPalette::Text));
    option.state &= ~QStyle::State_Active;
    return option;
}

bool isDark(const QPalette& colors)
{
    constexpr int middle = 128;
    return colors.color(QPalette::Base).lightness() < middle;
}

/// Draws the frame of a check box again: the base style draws it darker than the ground.
void drawBrightFrame(const QStyleOption& option, QPainter& painter)
{
    constexpr double strength = 0.6;
    const QPalette::ColorGroup group =
        (option.state & QStyle::State_Enabled) != 0 ? QPalette::Active : QPalette::Disabled;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        between(option.palette.color(group, QPalette::Text), option.palette.color(group, QPalette::Base), strength));
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

} // namespace

HostStyle::HostStyle() = default;

HostStyle::~HostStyle() = default;

QIcon HostStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption* option, const QWidget* widget) const
{
    switch (standardIcon) {
    case SP_LineEditClearButton:
        // The base style would load the plug-ins of all picture formats, which makes the start longer (gui_bench).
        return PictureFactory::getIcon(QStringLiteral("kelta_erase"));
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
    const auto* const item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element == PE_IndicatorTabClose && option != nullptr && painter != nullptr) {
        drawTabClose(*option, *painter);
    } else if (item != nullptr && widget != nullptr && !hasKeyboard(*widget)) {
        const QStyleOptionViewItem pale = withoutKeyboard(*item);
        QProxyStyle::drawPrimitive(element, &pale, painter, widget);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    if (element == PE_IndicatorCheckBox && option != nullptr && painter != nullptr && isDark(option->palette))
        drawBrightFrame(*option, *painter);
}

void HostStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    const auto* const title = qstyleoption_cast<const QStyleOptionToolBox*>(option);
    const auto* const item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element == CE_ToolBoxTabLabel && title != nullptr) {
        drawToolBoxTitle(*title, painter, widget);
    } else if (element == CE_ItemViewItem && item != nullptr && widget != nullptr && !hasKeyboard(*widget)) {
        const QStyleOptionViewItem pale = withoutKeyboard(*item);
        QProxyStyle::drawControl(element, &pale, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
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
