#pragma once

#include "table/TableContent.h"

#include <QAbstractTableModel>

namespace vxInspector {

/// Returns a tool tip that shows a plain text, whatever characters it contains; empty for an empty text.
QString plainToolTip(const QString& text);

/// The model of a table of the inspector.
class ContentModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit ContentModel(QObject* parent);
    ~ContentModel() override;

    const TableContent& content() const { return m_content; }
    /// Replaces the content. Keeps the indexes of the cells if the rows and columns have the same meaning as before.
    void setContent(TableContent content);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Returns the cell of an index, which must be valid.
    const Cell& cell(const QModelIndex& index) const;

private:
    TableContent m_content;
};

} // namespace vxInspector
