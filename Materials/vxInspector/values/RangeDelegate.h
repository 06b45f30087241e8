#pragma once

#include <QStyledItemDelegate>

namespace vxInspector {

/// Breaks words that are wider than their cell, but not the lines of cards, because each line has a meaning. Paints the
/// cells with a bar as a bar: a line for the range of each state of matter, and a mark for each value. A triangle at an end
/// shows a value beyond the known range.
class RangeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit RangeDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace vxInspector
