#pragma once

class QAbstractItemView;
class QWidget;

namespace Gui {

/// Returns the list or table with a current cell that is, or contains, `widget`; null if there is none, or if `widget` is
/// null.
QAbstractItemView* findCells(QWidget* widget);

/// Copies the selected cells of a list or table, as the platform's key for copying does there.
void copyCells(QAbstractItemView& view);

} // namespace Gui
