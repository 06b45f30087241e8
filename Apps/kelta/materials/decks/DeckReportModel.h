#pragma once

#include "vxInspector/decks/DeckLines.h"

#include <QAbstractTableModel>

#include <vector>

namespace desktop {

/// The report of a deck as a table: outcome, quantities, reason, materials.
class DeckReportModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column : int
    {
        Outcome,
        Quantities,
        Reason,
        Materials,
        ColumnCount,
    };

    explicit DeckReportModel(QObject* parent = nullptr);
    ~DeckReportModel() override;

    void setLines(std::vector<vxInspector::DeckLine> lines);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<vxInspector::DeckLine> m_lines;
};

} // namespace desktop
