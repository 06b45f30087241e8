#pragma once

#include <QTableView>

namespace vxInspector {

/// Shows the first column of a table in its place while the table is scrolled sideways, so that the user sees to which row
/// the other cells belong. It has the model, the selection and the keyboard of the table.
class FrozenColumn : public QTableView
{
    Q_OBJECT

public:
    /// `table`, which has a model and a delegate, owns the column.
    explicit FrozenColumn(QTableView& table);
    ~FrozenColumn() override;

    /// Shows or hides the column, and lays it over the first column of the table. The table calls it when its columns or
    /// rows have changed.
    void follow();

    /// Returns the width of the table that the column covers; 0 if it is hidden.
    int coveredWidth() const;

private:
    bool isNeeded() const;
    void connectTable();

    QTableView& m_table;
};

} // namespace vxInspector
