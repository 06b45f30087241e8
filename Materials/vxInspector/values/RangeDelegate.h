#pragma once

#include <QStyledItemDelegate>

namespace vxInspector {

struct Cell;

/// Breaks words that are wider than their cell, but not the lines of cards, because each line has a meaning. Elides names,
/// those of the first column, which their tool tips show whole. Paints the cells with a bar as a bar: a line for the range of each state of matter, and a mark for each value. A triangle at an end
/// shows a value beyond the known range.
class RangeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit RangeDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

    /// Returns the text of a cell as it is painted: units are not broken at their blanks.
    static QString shownText(const Cell& cell);

    /// Returns the width of a cell in a view beside its text: the margins, and the sign.
    static int marginOf(const QAbstractItemView& view, const Cell& cell);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    static int textWidth(const QStyleOptionViewItem& option, const QModelIndex& index);
};

} // namespace vxInspector
