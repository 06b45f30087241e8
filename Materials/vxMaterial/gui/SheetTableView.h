#pragma once

#include "vxMaterial/gui/SheetRow.h"
#include "vxMaterial/gui/SheetTableDelegate.h"
#include "vxMaterial/project/PluginExport.h"

#include <QHeaderView>
#include <QMap>
#include <QTableView>

#include <memory>
#include <optional>
#include <set>
#include <vector>

class QStandardItemModel;

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace vxMat {
class MaterialBase;
class MaterialProperty;
struct RuleFailure;
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
    /// Sent when the user releases the mouse button over the header.
    void resizeFinished();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

/// The properties of the edited material, one in each row: the working copy that Apply writes into the material object.
/// Only values can be edited. Id, key and unit are in hidden columns. Rows have the order of the catalogue; rows that
/// the user adds are at the end.
///
/// Only the operations of this class add and remove rows. The entries of the context menus do nothing.
class VXMATERIAL_EXPORT SheetTableView : public QTableView
{
    Q_OBJECT

    QModelIndex m_lastEdited;

public:
    /// The material object whose material is edited, not owned. The window that contains the table sets it. While it is
    /// null, the table shows no materials and writes none.
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

    /// Replaces the rows by the properties of the material object's material; removes all rows if it has no material.
    void loadMaterialObject();
    /// Replaces the rows by the properties of `material`; does nothing for null. Omits properties that the catalogue
    /// does not have.
    void showMaterial(vxMat::MaterialBase* material);
    /// If `checked`, appends a row for the property, even if one exists; otherwise removes every row with its id. Does
    /// nothing for null.
    void togglePropertyRow(bool checked, const vxMat::MaterialProperty* property);

    std::vector<SheetRow> rows() const;
    /// Returns the rows, including the text that the user is typing into a cell.
    std::vector<SheetRow> rowsWithTypedText() const;
    /// Replaces the rows. The current cell stays in the row of the same id.
    void setRows(const std::vector<SheetRow>& rows);
    /// Returns the first row, from 0, with the id; -1 if there is none.
    int findRow(int id) const;
    /// Makes the value in a row, from 0, the current cell, selects the row and scrolls to it. Does nothing if the row
    /// does not exist.
    void setCurrentRow(int row);
    /// Calls setCurrentRow and takes the keyboard focus.
    void showRow(int row);

    /// Returns whether the rows follow the rules of PropertyRules.h. If not, writes the reason to `message`; otherwise
    /// leaves it unchanged. Rows that follow the rules may still be unreadable.
    bool validateRows(QString& message) const;
    /// Returns the row, from 0, that validateRows refuses, or the row of the elasticity switch if it refuses the
    /// combination of the rows; -1 if it refuses nothing.
    int findRefusedRow() const;
    /// Returns the first row that applyToMaterial could not write; absent if there is none.
    std::optional<UnreadableRow> findUnreadableRow() const;
    /// Returns the first row of which applyToMaterial would ignore a part; absent if there is none.
    std::optional<PartlyReadRow> findPartlyReadRow() const;
    /// Replaces the properties of the material object's material by the rows, in their order. If several rows have the
    /// same id, the last one counts. Does nothing without a material.
    /// \throws std::invalid_argument, std::out_of_range if a row is unreadable; the material is unchanged
    void applyToMaterial();

    /// Returns whether the catalogue of the material object's project has the id.
    bool isCatalogued(int id) const;

    /// Ends the edit of a cell, if one is in progress, and keeps the typed text.
    void finishEditing();
    /// Sets all texts again after the language changes.
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
    bool event(QEvent* event) override;
    /// The tool tip of a cell that cannot show its whole text is the text.
    bool viewportEvent(QEvent* event) override;
    /// The selection is paler while the keyboard acts on another widget.
    QStyleOptionViewItem viewOptions() const override;
    int sizeHintForColumn(int column) const override;
    int sizeHintForRow(int row) const override;
    /// Lets F2 and Return edit the value of the current row, for every current cell of the row.
    void keyPressEvent(QKeyEvent* event) override;
    /// Makes the value the current cell of the row, unless the user clicks another cell.
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void createActions();
    void createHeaders();
    void createDelegates();
    void setReadablePalette();
    void setupModel();
    void connectActions();
    void retranslateHeaders();
    void retranslateRows();
    std::vector<SheetRow> rowsOf(const vxMat::MaterialBase& material) const;
    SheetRow rowAt(int row) const;
    QWidget* openEditor(int row) const;
    const SheetTableDelegate* valueDelegate(int row) const;
    int rowId(int row) const;
    QString cellText(int row, int column) const;
    QString unitOf(int row) const;
    void addRowTo(vxMat::MaterialBase& material, int row) const;
    std::optional<vxMat::RuleFailure> findBrokenRule() const;
    std::optional<UnreadableRow::Reason> unreadableReason(int row) const;
    int cellPadding() const;
    int longestWord(int column) const;
    int fittingWidth(int column) const;
    void noteWidth(int column);
    void fitColumns();
    void fitRows();

    std::unique_ptr<NotEditableDelegate> m_readOnlyDelegate;
    std::unique_ptr<SheetTableDelegate> m_valueDelegate;
    std::unique_ptr<QStandardItemModel> m_model;
    // Reserved for extensions that mark rows and columns; not used here.
    QMap<int, int> m_rowMarks;
    QMap<int, int> m_columnMarks;

    QAction* m_insertRows = nullptr;
    QAction* m_removeRows = nullptr;
    QAction* m_insertColumns = nullptr;
    QAction* m_removeColumns = nullptr;
    QAction* m_properties = nullptr;

    std::set<int> m_columnsOfUser; ///< columns whose width the user has set
    bool m_sized = false;          ///< true after the first fit of the columns
    bool m_fittingColumns = false;
    bool m_fittingRows = false;
    bool m_rowsAreOutdated = false;
    bool m_fitIsPosted = false;
};

} // namespace MatGui
