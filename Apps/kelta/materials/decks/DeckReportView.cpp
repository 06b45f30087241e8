#include "decks/DeckReportView.h"

#include "decks/DeckReportModel.h"

#include <QHeaderView>

#include <utility>

namespace desktop {

namespace {

/// More rows are not wrapped, because it takes too long to find their heights.
constexpr int mostWrappedRows = 300;

} // namespace

DeckReportView::DeckReportView(QWidget* parent) : QTableView(parent), m_lines(new DeckReportModel(this))
{
    setObjectName(QStringLiteral("deckReport"));
    setAccessibleName(tr("Report"));
    setModel(m_lines);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setVerticalScrollMode(ScrollPerPixel);
    setAlternatingRowColors(true);
    setShowGrid(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

DeckReportView::~DeckReportView() = default;

void DeckReportView::setLines(std::vector<vxInspector::DeckLine> lines)
{
    m_lines->setLines(std::move(lines));
    fitRows();
}

void DeckReportView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    fitRows();
}

void DeckReportView::fitRows()
{
    resizeColumnToContents(DeckReportModel::Outcome);
    const int rest = viewport()->width() - columnWidth(DeckReportModel::Outcome);
    setColumnWidth(DeckReportModel::Quantities, rest * 30 / 100);
    setColumnWidth(DeckReportModel::Reason, rest * 45 / 100);
    if (m_lines->rowCount() <= mostWrappedRows)
        resizeRowsToContents();
}

} // namespace desktop
