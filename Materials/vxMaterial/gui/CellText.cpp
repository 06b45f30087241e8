#include "CellText.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLocale>
#include <QRegularExpression>
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

bool isNumber(const QString& word)
{
    bool isRead = false;
    QLocale::c().toDouble(word, &isRead);
    return isRead;
}

/// Shortens the numbers that are wider than a line: a part of a number could be read as another number.
QString withFittingNumbers(const QString& text, const QFont& font, int width)
{
    static const QRegularExpression separators(QStringLiteral("(?<=[\\s,;])|(?=[\\s,;])"));
    const QFontMetrics metrics(font);
    const int digit = metrics.horizontalAdvance(QLatin1Char('0'));
    // The signs may be wider than digits. Most texts have no such number, and splitting costs time.
    const auto mayBeTooWide = [&](const QString& part) { return (part.size() + 2) * digit > width; };
    if (!mayBeTooWide(text))
        return text;
    QStringList words = text.split(separators);
    for (QString& word : words)
        if (mayBeTooWide(word) && isNumber(word) && metrics.horizontalAdvance(word) > width)
            word = metrics.elidedText(word, Qt::ElideRight, width);
    return words.join(QString());
}

/// Returns a text with places for line breaks. Cuts it to more than any cell can show, so that long lists cost no time.
QString withBreakPlaces(QString text, const QFont& font, int width)
{
    constexpr int most = 4000;
    if (text.size() > most)
        text = text.left(most) + ellipsis;
    text = withFittingNumbers(text, font, width);
    for (const char separator : {',', ';'})
        text.replace(QLatin1Char(separator), QString(QLatin1Char(separator)) + breakPlace);
    // The layout treats a line feed as a normal character.
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    return text;
}

constexpr QChar hyphen('-');

/// Returns whether a line that ends at a place cuts a word. Chinese texts have no words of letters.
bool cutsWord(const QString& text, int end)
{
    constexpr ushort firstRadical = 0x2e80; // the blocks of Chinese, Japanese and Korean begin here
    const auto isOfWord = [](QChar one) { return one.isLetter() && one.unicode() < firstRadical; };
    return end > 0 && end < text.size() && isOfWord(text[end - 1]) && isOfWord(text[end]);
}

int endOf(const QTextLine& line)
{
    return line.textStart() + line.textLength();
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
        if (cutsWord(layout.text(), endOf(line)))
            line.setLineWidth(width - QFontMetrics(layout.font()).horizontalAdvance(hyphen));
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
    return cutsWord(text, endOf(line)) ? part + hyphen : part;
}

} // namespace

bool isCellTextCut(const QString& text, const QFont& font, const QSize& size)
{
    return wrapCellText(text, font, size).count(ellipsis) > text.count(ellipsis);
}

QString wrapCellText(const QString& text, const QFont& font, const QSize& size)
{
    const QString breakable = withBreakPlaces(text, font, size.width());
    QTextLayout layout(breakable, font);
    layOut(layout, size.width());
    QStringList lines;
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        if (i > 0 && line.y() + line.height() > size.height()) {
            if (cutsWord(breakable, line.textStart()))
                lines.back().chop(1);
            lines.back() = QFontMetrics(font).elidedText(lines.back() + ellipsis, Qt::ElideRight, size.width());
            break;
        }
        lines << lineText(breakable, line);
    }
    return lines.join(QLatin1Char('\n'));
}

QSize cellTextSize(const QString& text, const QFont& font, int width)
{
    QTextLayout layout(withBreakPlaces(text, font, width), font);
    layOut(layout, width);
    const QRectF bounds = layout.boundingRect();
    qreal widest = 0.0;
    for (int i = 0; i < layout.lineCount(); ++i) {
        const bool hasHyphen = cutsWord(layout.text(), endOf(layout.lineAt(i)));
        widest = std::max(widest, layout.lineAt(i).naturalTextWidth() +
                                      (hasHyphen ? QFontMetrics(font).horizontalAdvance(hyphen) : 0));
    }
    return {static_cast<int>(std::ceil(widest)), static_cast<int>(std::ceil(bounds.height()))};
}

int cellTextMargin(const QWidget* view)
{
    const QStyle* const style = view != nullptr ? view->style() : QApplication::style();
    return style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view) + 1;
}

QSize cellTextArea(const QSize& cell, const QWidget* view)
{
    return {cell.width() - 2 * cellTextMargin(view), cell.height()};
}

QString wrappedForCell(const QString& text, const QStyleOptionViewItem& option)
{
    return wrapCellText(text, option.font, cellTextArea(option.rect.size(), option.widget));
}

} // namespace MatGui
