#pragma once

#include <QStyledItemDelegate>

class QWidget;

namespace desktop {

/// Shows the names in the lists of a material editor as wide as the list is. A name that is too long loses its middle, because
/// names of quantities often differ at their end only, as "Material Constant C10" and "C01" do. Its tool tip has the whole name.
class ListNames : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Gives each list inside `parent` a delegate, which belongs to the list.
    static void fitInto(const QWidget& parent);

    /// Needs no width, so that the list has no horizontal scroll bar.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace desktop
