#pragma once

#include "vxMaterial/project/PluginExport.h"

#include <QItemDelegate>

class QLineEdit;

namespace MatGui {

/// Edits a cell as a line of text of any length; Return commits it at once. In the row of a quantity whose value is a
/// word, the allowed words complete the text. Long texts, including lists without blanks, have several lines.
///
/// An application can replace the delegate of the column of values by a derived class, which reads values in its own way.
class VXMATERIAL_EXPORT SheetTableDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit SheetTableDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    /// Places the editor over the first lines of a high cell.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    /// Returns an invalid size: cells with this delegate request none.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool eventFilter(QObject* object, QEvent* event) override;

    /// Returns the text that the cell gets from its editor: the typed text. A derived class may return another text of the
    /// same meaning.
    virtual QString textToStore(const QLineEdit& editor, const QModelIndex& index) const;
    /// Returns the reason, as a sentence in the language of the user, why the text in a cell cannot be read; empty if there
    /// is none, as here. The table quotes it in its messages, and refuses nothing because of it.
    virtual QString findFault(const QModelIndex& index) const;

public Q_SLOTS:
    /// Commits and closes the line of text that sent the signal. Does nothing for another sender.
    void commitAndCloseEditor();

protected:
    void drawDisplay(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                     const QString& text) const override;
};

} // namespace MatGui
