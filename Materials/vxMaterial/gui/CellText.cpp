#include "CellText.h"

#include <QApplication>
#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTextLayout>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace MatGui {

namespace {

constexpr QChar ellipsis(0x2026);
constexpr QChar breakPlace(0x200b); // has no width

/// Returns a text with places for line breaks. Cuts it to more than any cell can show, so that long lists cost no time.
QString withBreakPlaces(QString text)
{
    constexpr int most = 4000;
    if (text.size() > most)
        text = text.left(most) + ellipsis;
    for (const char separator : {',', ';'})
        text.replace(QLatin1Char(separator), QString(QLatin1Char(separator)) + breakPlace);
    // The layout treats a line feed as a normal character.
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    return text;
}

void layOut(QTextLayout& layout, int width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    qreal height = 0.0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0.0, height));
        height += line.height();
    }
    layout.endLayout();
}

QString lineText(const QString& text, const QTextLine& line)
{
    QString part = text.mid(line.textStart(), line.textLength());
    if (part.endsWith(QChar::LineSeparator))
        part.chop(1);
    return part;
}

} // namespace

QString wrapCellText(const QString& text, const QFont& font, const QSize& size)
{
    const QString breakable = withBreakPlaces(text);
    QTextLayout layout(breakable, font);
    layOut(layout, size.width());
    QStringList lines;
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        if (i > 0 && line.y() + line.height() > size.height()) {
            lines.back() = QFontMetrics(font).elidedText(lines.back() + ellipsis, Qt::ElideRight, size.width());
            break;
        }
        lines << lineText(breakable, line);
    }
    return lines.join(QLatin1Char('\n'));
}

QSize cellTextSize(const QString& text, const QFont& font, int width)
{
    QTextLayout layout(withBreakPlaces(text), font);
    layOut(layout, width);
    const QRectF bounds = layout.boundingRect();
    qreal widest = 0.0;
    for (int i = 0; i < layout.lineCount(); ++i)
        widest = std::max(widest, layout.lineAt(i).naturalTextWidth());
    return {static_cast<int>(std::ceil(widest)), static_cast<int>(std::ceil(bounds.height()))};
}

int cellTextMargin(const QWidget* view)
{
    const QStyle* const style = view != nullptr ? view->style() : QApplication::style();
    return style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view) + 1;
}

QString wrappedForCell(const QString& text, const QStyleOptionViewItem& option)
{
    const int width = option.rect.width() - 2 * cellTextMargin(option.widget);
    return wrapCellText(text, option.font, QSize(width, option.rect.height()));
}

} // namespace MatGui
