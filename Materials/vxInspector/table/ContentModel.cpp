#include "table/ContentModel.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace vxInspector {

namespace {

bool haveSameMeaning(const TableContent& one, const TableContent& other)
{
    const auto haveSamePlace = [](const Row& row, const Row& second) {
        return row.place == second.place && row.cells.front().text == second.cells.front().text;
    };
    return one.headers == other.headers &&
           std::equal(one.rows.begin(), one.rows.end(), other.rows.begin(), other.rows.end(), haveSamePlace);
}

QVariant fontOf(const Cell& cell)
{
    if (cell.isFixed)
        return QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!cell.isBold)
        return {};
    QFont font;
    font.setBold(true);
    return font;
}

} // namespace

QString plainToolTip(const QString& text)
{
    return text.isEmpty() ? text : QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(text.toHtmlEscaped());
}

ContentModel::ContentModel(QObject* parent) : QAbstractTableModel(parent) {}

ContentModel::~ContentModel() = default;

void ContentModel::setContent(TableContent content)
{
    if (haveSameMeaning(m_content, content)) {
        m_content = std::move(content);
        if (!m_content.rows.empty())
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    m_content = std::move(content);
    endResetModel();
}

int ContentModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_content.rows.size());
}

int ContentModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_content.headers.size();
}

const Cell& ContentModel::cell(const QModelIndex& index) const
{
    return m_content.rows[static_cast<std::size_t>(index.row())].cells[static_cast<std::size_t>(index.column())];
}

QVariant ContentModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return cell(index).text;
    case Qt::ToolTipRole:
        return plainToolTip(cell(index).toolTip);
    case Qt::FontRole:
        return fontOf(cell(index));
    case Qt::DecorationRole:
        return cell(index).hasSign ? QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning) : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignLeft | Qt::AlignTop);
    default:
        return {};
    }
}

QVariant ContentModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= columnCount())
        return {};
    if (role == Qt::ToolTipRole)
        return plainToolTip(m_content.headers[section]); // the label of a material may be elided
    return role == Qt::DisplayRole ? m_content.headers[section] : QVariant();
}

} // namespace vxInspector
