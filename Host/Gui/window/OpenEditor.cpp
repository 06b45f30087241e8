#include "window/OpenEditor.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>

namespace Gui {

void finishEditing(QAbstractItemView& view, const QModelIndex& edited)
{
    QWidget* const editor = view.indexWidget(edited);
    QAbstractItemDelegate* const delegate = view.itemDelegate(edited);
    if (editor == nullptr || delegate == nullptr)
        return;
    Q_EMIT delegate->commitData(editor);
    Q_EMIT delegate->closeEditor(editor, QAbstractItemDelegate::NoHint);
}

} // namespace Gui
