#pragma once

#include "table/TableContent.h"

#include <QTableView>

#include <set>

class QAction;

namespace vxInspector {

class ContentModel;
class FrozenColumn;

/// The widths of a column that its texts need.
struct NeededWidth
{
    int whole;   ///< for texts in one line
    int longest; ///< for the longest word and the header
    int least;   ///< for what is always whole: numbers, bars, lines of cards, units; at most `longest`
    int broken;  ///< as `least`, if units may be broken at their blanks
};

/// A table of the inspector. Long texts wrap; the columns share the width. If there is too little of it, bars become narrow
/// and units are broken first; then names are elided, before numbers and bars are cut. The first column stays in sight when the table is scrolled sideways. Cells can be
/// copied, as text and as an HTML table at once.
class ContentView : public QTableView
{
    Q_OBJECT

public:
    explicit ContentView(QWidget* parent = nullptr);
    ~ContentView() override;

    const TableContent& content() const;
    /// Shows a table. The current cell stays in the row with the same place and the same first cell.
    void setContent(TableContent content);
    /// Sets the texts of the context menu in the language of the user.
    void retranslate();

    /// Copies the selected cells: one cell as its text, several ones with their headers.
    void copySelected() const;
    /// Copies all cells with their headers.
    void copyAll() const;

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    /// Sent when the user clicks a cell, and when the user presses Return.
    void chosen(int row, int column);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createActions();
    void noteWidthOfUser(int column);
    void copy(const TablePart& part) const;
    NeededWidth neededWidth(int column) const;
    NeededWidth neededWidth(const QModelIndex& index) const;
    void fitColumns();
    void fitToWidth();

    ContentModel* m_model;
    FrozenColumn* m_frozen = nullptr;
    QAction* m_copy;
    QAction* m_copyAll;
    QAction* m_selectAll;
    std::set<int> m_columnsOfUser; ///< columns whose width the user has set
    bool m_isHeaderPressed = false;
    bool m_fitting = false;
};

} // namespace vxInspector
