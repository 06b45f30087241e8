#pragma once

#include "vxMaterial/project/PluginExport.h"

#include <QItemDelegate>
#include <QStyledItemDelegate>

/// Delegates that provide editors for the cells of tables. The property table installs NotEditableDelegate; other
/// modules may use the other delegates.

/// Cells of column 1 have a choice of three words that contain the number of their row. Cells of other columns have the
/// editor of Qt.
class VXMATERIAL_EXPORT ComboBoxItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ComboBoxItemDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Selects the word in the cell, with regard to case. Another text leaves the selection unchanged.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
};

namespace MatGui {

/// Cells that cannot be edited: they have no editor and ignore every event. Long texts have several lines.
class VXMATERIAL_EXPORT NotEditableDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit NotEditableDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    void drawDisplay(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                     const QString& text) const override;
};

/// Cells that hold one of five occupations.
class VXMATERIAL_EXPORT ComboDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit ComboDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Selects the text in the cell, with regard to case. Another text clears the selection.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
};

/// Cells that hold a date as text, year-month-day: "2024-02-29".
class VXMATERIAL_EXPORT DateDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit DateDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Shows no date if the text in the cell has another form.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Leaves the cell unchanged if the editor shows no date.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    /// Lets the user type a date if the editor shows none.
    bool eventFilter(QObject* object, QEvent* event) override;
};

/// Cells that hold a whole number from 0 to 100.
class VXMATERIAL_EXPORT SpinBoxDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit SpinBoxDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
};

/// Cells that hold a whole number from 0 to 10000.
class VXMATERIAL_EXPORT SpinDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit SpinDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
};

} // namespace MatGui
