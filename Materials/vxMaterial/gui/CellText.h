#pragma once

#include <QFont>
#include <QSize>
#include <QString>

class QStyleOptionViewItem;
class QWidget;

/// The drawing of texts in cells of the property table. A long text has several lines. Lines break between words,
/// after the separators of a list without blanks, and, with a hyphen, inside a word that is wider than the cell. A number never breaks: one
/// that is wider than the cell is cut, and ends with an ellipsis.
namespace MatGui {

/// The maximum number of lines in a cell; the rest of a longer text is omitted.
constexpr int mostLines = 10;

/// Returns a text with a line feed at the end of each line. The lines are not wider than `size`, and their number is
/// limited by its height. An ellipsis ends a text that has more lines.
QString wrapCellText(const QString& text, const QFont& font, const QSize& size);

/// Returns whether wrapCellText leaves out a part of the text.
bool isCellTextCut(const QString& text, const QFont& font, const QSize& size);

/// Returns the size of a text whose lines are not wider than `width`, without margins.
QSize cellTextSize(const QString& text, const QFont& font, int width);

/// Returns the width that views leave free on each side of a text.
int cellTextMargin(const QWidget* view);

/// Returns the size of the text in a cell of this size.
QSize cellTextArea(const QSize& cell, const QWidget* view);

/// Returns a text wrapped for the cell of `option`. A delegate draws it into the whole rectangle of the cell: the base
/// class of the delegate offers the rectangle of the text without line breaks.
QString wrappedForCell(const QString& text, const QStyleOptionViewItem& option);

} // namespace MatGui
