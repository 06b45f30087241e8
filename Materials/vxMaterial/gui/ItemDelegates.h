#pragma once

#include "vxMaterial/project/PluginExport.h"

#include <QItemDelegate>
#include <QStyledItemDelegate>

/// The editors that a module's tables give their cells. The property table installs NotEditableDelegate; the others
/// are there for tables to come.

/// Cells of column 1 are a choice of three words that name their row, cells of other columns what Qt makes of them.
class VXMATERIAL_EXPORT ComboBoxItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ComboBoxItemDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Selects the word that the cell holds, case included; another text leaves the selection.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
};

namespace MatGui {

/// Cells that nobody edits: there is no editor, and no event does anything.
class VXMATERIAL_EXPORT NotEditableDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit NotEditableDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
};

/// Cells that hold one of five occupations.
class VXMATERIAL_EXPORT ComboDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit ComboDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Selects what the cell holds, case included; another text clears the selection.
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
    /// Another form of text is no date: the editor then shows none.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// An editor that shows no date empties the cell.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
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
