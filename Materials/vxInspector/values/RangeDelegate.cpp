#include "values/RangeDelegate.h"

#include "table/ContentModel.h"
#include "table/TextPieces.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <optional>

namespace vxInspector {

namespace {

const Cell& cellOf(const QModelIndex& index)
{
    return static_cast<const ContentModel*>(index.model())->cell(index);
}

int textMargin(const QWidget* widget)
{
    const QStyle* const style = widget != nullptr ? widget->style() : QApplication::style();
    return style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, widget) + 1;
}

/// Paints one bar into a rectangle.
class BarPainter
{
public:
    BarPainter(QPainter& painter, const QStyleOptionViewItem& option) : m_painter(painter)
    {
        const bool isSelected = (option.state & QStyle::State_Selected) != 0;
        m_ink = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
        const int margin = option.fontMetrics.averageCharWidth();
        m_area = QRectF(option.rect).adjusted(margin, 0, -margin, 0);
        m_area.setHeight(std::min(m_area.height(), 2.0 * option.fontMetrics.lineSpacing()));
        m_unit = option.fontMetrics.height() / 8.0;
    }

    void paint(const RangeBar& bar)
    {
        QColor faint = m_ink;
        faint.setAlphaF(0.15);
        m_painter.fillRect(QRectF(m_area.left(), middle() - 2.0 * m_unit, m_area.width(), 4.0 * m_unit), faint);
        for (const RangeBar::Span& span : bar.spans)
            paint(span);
        for (const RangeBar::Mark& mark : bar.marks)
            paint(mark);
    }

private:
    double middle() const { return m_area.center().y(); }
    double at(double position) const { return m_area.left() + position * m_area.width(); }

    /// The states of matter are lines below each other, so that overlapping ranges can be told apart.
    void paint(const RangeBar::Span& span)
    {
        QColor colour = m_ink;
        colour.setAlphaF(0.55);
        const double line = static_cast<double>(span.matter) - 1.0;
        const double width = std::max(at(span.to) - at(span.from), 1.0);
        m_painter.fillRect(QRectF(at(span.from), middle() + (1.3 * line - 0.45) * m_unit, width, 0.9 * m_unit), colour);
    }

    void paint(const RangeBar::Mark& mark)
    {
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_ink);
        const double x = at(mark.position);
        if (mark.side == RangeBar::Side::Inside) {
            m_painter.drawRect(QRectF(x - 0.5 * m_unit, middle() - 3.0 * m_unit, m_unit, 6.0 * m_unit));
            return;
        }
        const double outward = (mark.side == RangeBar::Side::Below ? -1.0 : 1.0) * 3.0 * m_unit;
        const QPointF triangle[] = {
            {x + outward, middle()}, {x, middle() - 3.0 * m_unit}, {x, middle() + 3.0 * m_unit}};
        m_painter.drawPolygon(triangle, 3);
    }

    QPainter& m_painter;
    QColor m_ink;
    QRectF m_area;
    double m_unit = 1.0; ///< an eighth of the height of the font
};

} // namespace

void RangeDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (cellOf(index).isFixed) {
        option->features &= ~QStyleOptionViewItem::ViewItemFeatures(QStyleOptionViewItem::WrapText);
        return;
    }
    option->decorationAlignment = Qt::AlignLeft | Qt::AlignTop;
    option->text = shownText(cellOf(index));
    const bool isName = index.column() == 0; // is elided
    const int width = textWidth(*option, index);
    if (cellOf(index).isInOneLine && QFontMetricsF(option->font).horizontalAdvance(option->text) > width)
        option->text = cellOf(index).text; // may be broken at its blanks
    if (!isName && width > 0)
        option->text = breakable(option->text, QFontMetricsF(option->font), width);
}

QString RangeDelegate::shownText(const Cell& cell)
{
    if (cell.isFixed)
        return cell.text;
    QString text = withWholeUnits(cell.text);
    return cell.isInOneLine ? text.replace(QLatin1Char(' '), QChar(QChar::Nbsp)) : text;
}

int RangeDelegate::marginOf(const QAbstractItemView& view, const Cell& cell)
{
    const int margin = textMargin(&view);
    return 2 * margin + 1 + (cell.hasSign ? view.iconSize().width() + 2 * margin : 0); // advances are rounded
}

int RangeDelegate::textWidth(const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const auto* const view = qobject_cast<const QAbstractItemView*>(option.widget);
    return view != nullptr ? option.rect.width() - marginOf(*view, cellOf(index)) : 0;
}

bool RangeDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                              const QModelIndex& index)
{
    if (event == nullptr || view == nullptr || event->type() != QEvent::ToolTip || !index.isValid() ||
        index.column() != 0)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const Cell& cell = cellOf(index);
    if (pieceWidths(shownText(cell), QFontMetricsF(option.font)).longest <= textWidth(option, index))
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString text = cell.toolTip.isEmpty() ? cell.text : cell.text + QStringLiteral("\n\n") + cell.toolTip;
    QToolTip::showText(event->globalPos(), plainToolTip(text), view);
    return true;
}

void RangeDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const std::optional<RangeBar>& bar = cellOf(index).bar;
    if (!bar)
        return QStyledItemDelegate::paint(painter, option, index);
    QStyleOptionViewItem background = option;
    initStyleOption(&background, index);
    background.text.clear();
    const QStyle* const style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &background, painter, option.widget);
    painter->save();
    BarPainter(*painter, background).paint(*bar);
    painter->restore();
}

QSize RangeDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (!cellOf(index).bar)
        return QStyledItemDelegate::sizeHint(option, index);
    constexpr int characters = 12;
    return {characters * option.fontMetrics.averageCharWidth(), option.fontMetrics.lineSpacing()};
}

} // namespace vxInspector
