#include "commands/CellCopy.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>

namespace Gui {

QAbstractItemView* findCells(QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget())
        if (auto* const view = qobject_cast<QAbstractItemView*>(widget))
            return view->currentIndex().isValid() ? view : nullptr;
    return nullptr;
}

void copyCells(QAbstractItemView& view)
{
    for (QAction* const action : view.actions())
        if (action->shortcut() == QKeySequence(QKeySequence::Copy))
            return action->trigger();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
    QCoreApplication::sendEvent(&view, &key);
}

} // namespace Gui
