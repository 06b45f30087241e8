#include "decks/DeckReportModel.h"

#include <QFont>

#include <utility>

namespace desktop {

namespace {

using vxInspector::DeckLine;

QString textOf(const DeckLine& line, int column)
{
    switch (column) {
    case DeckReportModel::Outcome:
        return nameOf(line.kind);
    case DeckReportModel::Quantities:
        return line.quantities;
    case DeckReportModel::Reason:
        return line.reason;
    default:
        return line.materials;
    }
}

} // namespace

DeckReportModel::DeckReportModel(QObject* parent) : QAbstractTableModel(parent) {}

DeckReportModel::~DeckReportModel() = default;

void DeckReportModel::setLines(std::vector<DeckLine> lines)
{
    beginResetModel();
    m_lines = std::move(lines);
    endResetModel();
}

int DeckReportModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

int DeckReportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant DeckReportModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const DeckLine& line = m_lines[static_cast<std::size_t>(index.row())];
    if (role == Qt::FontRole && index.column() == Outcome && line.kind <= DeckLine::Kind::Lost) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignLeft | Qt::AlignTop);
    return role == Qt::DisplayRole || role == Qt::ToolTipRole ? textOf(line, index.column()) : QVariant();
}

QVariant DeckReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    const QString titles[] = {tr("Outcome"), tr("Quantities"), tr("Reason"), tr("Materials")};
    return section >= 0 && section < ColumnCount ? titles[section] : QVariant();
}

} // namespace desktop
