#pragma once

#include "CellReading.h"

#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>

class QLineEdit;

namespace desktop {

class ValueHint;

/// Reads what the user types into the editor of a value, and says beside the editor what it becomes, or why it cannot be
/// read. The editor has the same text as its accessible description.
class ValueEditing : public QObject
{
    Q_OBJECT

public:
    /// Makes the editor its parent. The row of the cell must take numbers.
    ValueEditing(QLineEdit& editor, const QModelIndex& cell);
    ~ValueEditing() override;

    /// Returns the object of an editor; null if the editor has none, as the editors of words.
    static ValueEditing* of(const QObject& editor);

    /// Returns whether the text can be stored.
    bool isRead() const { return m_reading.isRead; }

    /// Draws the attention of the user to the reason why the text cannot be read.
    void insist();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void read();

    QLineEdit& m_editor;
    QPersistentModelIndex m_cell;
    CellReading m_reading;
    QPointer<ValueHint> m_hint; ///< owned by the parent of the editor
};

} // namespace desktop
