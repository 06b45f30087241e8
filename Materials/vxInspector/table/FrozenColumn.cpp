#include "table/FrozenColumn.h"

#include <QHeaderView>
#include <QScrollBar>

namespace vxInspector {

FrozenColumn::FrozenColumn(QTableView& table) : QTableView(&table), m_table(table)
{
    setObjectName(QStringLiteral("frozenColumn"));
    setModel(table.model());
    delete selectionModel();
    setSelectionModel(table.selectionModel());
    setItemDelegate(table.itemDelegate());
    setEditTriggers(NoEditTriggers);
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::NoContextMenu); // the table shows its menu
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setAlternatingRowColors(true);
    setShowGrid(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setDefaultAlignment(table.horizontalHeader()->defaultAlignment());
    hide();
    connectTable();
}

FrozenColumn::~FrozenColumn() = default;

void FrozenColumn::connectTable()
{
    QScrollBar* const ofTable = m_table.verticalScrollBar();
    connect(ofTable, &QScrollBar::valueChanged, verticalScrollBar(), &QScrollBar::setValue);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, ofTable, &QScrollBar::setValue);
    connect(m_table.horizontalScrollBar(), &QScrollBar::valueChanged, this, &FrozenColumn::follow);
    connect(m_table.horizontalScrollBar(), &QScrollBar::rangeChanged, this, &FrozenColumn::follow);
    connect(m_table.horizontalHeader(), &QHeaderView::sectionResized, this, &FrozenColumn::follow);
    connect(this, &QTableView::clicked, &m_table, &QTableView::clicked);
}

/// A column that covers most of the table would hide what the user scrolls to.
bool FrozenColumn::isNeeded() const
{
    return m_table.horizontalScrollBar()->value() > 0 && m_table.model()->columnCount() > 0 &&
           2 * m_table.columnWidth(0) <= m_table.viewport()->width();
}

int FrozenColumn::coveredWidth() const
{
    return isHidden() ? 0 : width();
}

void FrozenColumn::follow()
{
    if (!isNeeded())
        return hide();
    for (int column = 0; column < model()->columnCount(); ++column)
        setColumnHidden(column, column != 0);
    setColumnWidth(0, m_table.columnWidth(0));
    for (int row = 0; row < model()->rowCount(); ++row)
        setRowHeight(row, m_table.rowHeight(row));
    const QHeaderView* const header = m_table.horizontalHeader();
    horizontalHeader()->setFixedHeight(header->height());
    setGeometry(m_table.viewport()->x(), header->y(), m_table.columnWidth(0),
                header->height() + m_table.viewport()->height());
    show();
    raise();
    verticalScrollBar()->setValue(m_table.verticalScrollBar()->value());
}

} // namespace vxInspector
