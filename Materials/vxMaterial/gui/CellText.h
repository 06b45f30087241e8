#pragma once

#include <QFont>
#include <QSize>
#include <QString>

class QStyleOptionViewItem;
class QWidget;

/// How cells of the property table draw their texts: over several lines where they are long, broken inside a word if it is
/// wider than the cell, and behind the separators of a list without blanks.
namespace MatGui {

/// The most lines that a cell shows; the rest of a longer text is left out.
constexpr int mostLines = 10;

/// Returns a text with a line feed at the end of each line. The lines are no wider than `size`, and only so many as fit into
/// its height; an ellipsis ends a text that has more.
QString wrapCellText(const QString& text, const QFont& font, const QSize& size);

/// Returns the size of a text whose lines are no wider than `width`, without margins.
QSize cellTextSize(const QString& text, const QFont& font, int width);

/// Returns the width that views leave free on each side of a text.
int cellTextMargin(const QWidget* view);

/// Returns a text wrapped for the cell of `option`. A delegate draws it into the whole rectangle of the cell: the rectangle
/// that its base class offers is that of the text without line breaks.
QString wrappedForCell(const QString& text, const QStyleOptionViewItem& option);

} // namespace MatGui
