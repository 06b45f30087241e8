#include "cells/ListNames.h"

#include <QHelpEvent>
#include <QListWidget>
#include <QToolTip>

namespace desktop {

void ListNames::fitInto(const QWidget& parent)
{
    for (QListWidget* const list : parent.findChildren<QListWidget*>())
        list->setItemDelegate(new ListNames(list)); // the list owns it
}

QSize ListNames::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
}

bool ListNames::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                          const QModelIndex& index)
{
    const bool isCut = QStyledItemDelegate::sizeHint(option, index).width() > option.rect.width();
    if (event->type() != QEvent::ToolTip || !isCut)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), index.data().toString(), view);
    return true;
}

void ListNames::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->textElideMode = Qt::ElideMiddle;
}

} // namespace desktop
