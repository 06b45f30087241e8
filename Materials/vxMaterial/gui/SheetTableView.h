#pragma once

#include "vxMaterial/project/PluginExport.h"

#include <QHeaderView>
#include <QItemDelegate>
#include <QMap>
#include <QTableView>

#include <memory>
#include <optional>
#include <vector>

class QStandardItemModel;

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace vxMat {
class MaterialBase;
class MaterialProperty;
} // namespace vxMat

namespace MatGui {

class NotEditableDelegate;

/// A header of the property table.
class VXMATERIAL_EXPORT SheetViewHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit SheetViewHeader(Qt::Orientation orientation, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user has let the mouse go, after which sections have the sizes that they keep.
    void resizeFinished();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

/// Edits a cell as a line of text; Return commits it at once.
class VXMATERIAL_EXPORT SheetTableDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit SheetTableDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    /// An invalid size: cells under this delegate ask for none.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool eventFilter(QObject* object, QEvent* event) override;

public Q_SLOTS:
    /// Commits and closes the line of text that sent the signal; nothing for another sender.
    void commitAndCloseEditor();
};

/// A row whose value is no text that its property could be made from.
struct UnreadableRow
{
    enum class Reason
    {
        NoNumber,  ///< a number is needed, and the text does not begin with one
        OutOfRange ///< a double cannot hold the number
    };
    int number; ///< of the row, counted from 1
    QString name;
    QString value;
    Reason reason;
};

/// The properties of the material that is being edited, one a row: the working copy that Apply writes into the
/// material object. Only values can be edited. Id, key and unit stand in hidden columns.
///
/// Rows come and go by the operations here alone. The entries of the context menus are there for users to find but
/// do nothing.
class VXMATERIAL_EXPORT SheetTableView : public QTableView
{
    Q_OBJECT

    QModelIndex m_lastEdited;

public:
    /// The material object whose material is edited, not owned; set by the window around the table. Without one the
    /// table takes no rows from materials and writes none.
    Mat::MaterialObject* materialObject = nullptr;

    enum Column : int
    {
        Id,
        Name,
        Value,
        Description,
        Key,
        Unit,
        ColumnCount
    };

    explicit SheetTableView(QWidget* parent = nullptr);
    ~SheetTableView() override;

    /// Shows the material of the material object instead of the present rows.
    void loadMaterialObject();
    /// Shows `material` instead of the present rows; nothing for null. Properties that the catalogue does not know are
    /// left out.
    void showMaterial(vxMat::MaterialBase* material);
    /// Appends a row for the property when `checked`, though there may be one; else removes every row with its id.
    /// Nothing for null.
    void togglePropertyRow(bool checked, const vxMat::MaterialProperty* property);

    /// Whether the rows are acceptable by the rules of PropertyRules.h; if not, `message` says why, else it is left
    /// alone. Rows that pass may still be unreadable.
    bool validateRows(QString& message) const;
    /// The first row that applyToMaterial could not write; absent when there is none.
    std::optional<UnreadableRow> findUnreadableRow() const;
    /// Replaces the properties of the material object's material by the rows, in their order; of two rows of one id the
    /// later one stays. Nothing without a material.
    /// \throws std::invalid_argument, std::out_of_range when a row is unreadable; the material is unchanged
    void applyToMaterial();

    /// Whether the catalogue of the material object's project knows the id.
    bool isCatalogued(int id) const;

    /// Takes over what the user has typed into a cell that is still being edited.
    void finishEditing();
    /// Sets the texts of headers and menus anew, after the language has changed.
    void retranslate();

    using QTableView::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;

public Q_SLOTS:
    void commitData(QWidget* editor) override;
    void insertRows();
    void removeRows();
    void insertColumns();
    void removeColumns();
    void cellProperties();

protected:
    int sizeHintForColumn(int column) const override;
    int sizeHintForRow(int row) const override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    using Rows = std::vector<QStringList>;

    void createActions();
    void createHeaders();
    void createDelegates();
    void setReadablePalette();
    void setupModel();
    void connectActions();
    Rows rowsOf(const vxMat::MaterialBase& material) const;
    void replaceRows(const Rows& rows);
    int rowId(int row) const;
    QString cellText(int row, int column) const;
    void addRowTo(vxMat::MaterialBase& material, int row) const;
    std::optional<UnreadableRow::Reason> unreadableReason(int row) const;
    QSize textSize(int row, int column, int width) const;
    int cellMargin() const;
    int longestWord(int column) const;
    int fittingWidth(int column) const;
    void fitColumns();
    void widenColumns();

    std::unique_ptr<NotEditableDelegate> m_readOnlyDelegate;
    std::unique_ptr<SheetTableDelegate> m_valueDelegate;
    std::unique_ptr<QStandardItemModel> m_model;
    // Kept for extensions that mark rows and columns; nothing here uses them.
    QMap<int, int> m_rowMarks;
    QMap<int, int> m_columnMarks;

    QAction* m_insertRows = nullptr;
    QAction* m_removeRows = nullptr;
    QAction* m_insertColumns = nullptr;
    QAction* m_removeColumns = nullptr;
    QAction* m_properties = nullptr;
    bool m_sized = false;
};

} // namespace MatGui
