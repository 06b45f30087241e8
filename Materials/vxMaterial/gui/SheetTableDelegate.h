#pragma once

#include "vxMaterial/project/PluginExport.h"

#include <QItemDelegate>

namespace MatGui {

/// Edits a cell as a line of text of any length; Return commits it at once. In the row of a quantity whose value is a
/// word, the allowed words complete the text. Long texts, including lists without blanks, have several lines.
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

public Q_SLOTS:
    /// Commits and closes the line of text that sent the signal. Does nothing for another sender.
    void commitAndCloseEditor();

protected:
    void drawDisplay(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                     const QString& text) const override;
};

} // namespace MatGui
