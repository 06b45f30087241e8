#pragma once

class QAbstractItemView;
class QModelIndex;

namespace Gui {

/// Closes the editor in which the user edits an item of a view, and keeps the typed or chosen value. Does nothing if
/// there is no such editor.
void finishEditing(QAbstractItemView& view, const QModelIndex& edited);

} // namespace Gui
