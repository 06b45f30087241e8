#pragma once

#include "RowDoubts.h"

#include "vxMaterial/gui/SheetTableDelegate.h"

#include <QString>

#include <map>

namespace desktop {

/// Edits values with units in the table of a material editor. What the user types is read as TypedValue.h describes; the
/// cell gets the number in the SI unit of the quantity. While a cell is edited, a note beside it says what the text
/// becomes. Words and switches are edited as without this delegate.
///
/// Return, Tab and the keys that move to another row do not close a cell with a text that cannot be read. Other ways to end an edit, such as a click on
/// another cell or a command, store the text as typed, so that nothing is lost; it is marked in the table, and Apply
/// refuses it. An edit goes on if the window is left for another program.
class ValueCellDelegate : public MatGui::SheetTableDelegate
{
    Q_OBJECT

public:
    explicit ValueCellDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool eventFilter(QObject* object, QEvent* event) override;
    QString textToStore(const QLineEdit& editor, const QModelIndex& index) const override;
    QString findFault(const QModelIndex& index) const override;

    /// Marks values that cannot be read, and gives doubtful ones a warning sign.
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Shows the magnitude of a number also in a narrow cell.
    void drawDisplay(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                     const QString& text) const override;
    /// Shows the fault of a value, or the doubt about it, as its tool tip.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    /// The text of a cell when it was last painted.
    struct Painted
    {
        QString text;
        bool isUnreadable = false;
    };

    bool isUnreadable(const QModelIndex& index) const;

    mutable std::map<int, Painted> m_painted; ///< by the id of the quantity
    mutable RowDoubts m_doubts;
};

} // namespace desktop
