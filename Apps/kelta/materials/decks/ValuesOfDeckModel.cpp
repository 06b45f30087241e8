#include "decks/ValuesOfDeckModel.h"

#include <utility>

namespace desktop {

ValuesOfDeckModel::ValuesOfDeckModel(QObject* parent) : QAbstractTableModel(parent) {}

ValuesOfDeckModel::~ValuesOfDeckModel() = default;

void ValuesOfDeckModel::setValues(ValuesOfDeck values)
{
    beginResetModel();
    m_values = std::move(values);
    endResetModel();
}

int ValuesOfDeckModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_values.materials.size());
}

int ValuesOfDeckModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_values.quantities.size() + 2;
}

QString ValuesOfDeckModel::textOf(const QModelIndex& index) const
{
    const ValuesOfDeck::Material& material = m_values.materials[static_cast<std::size_t>(index.row())];
    if (index.column() == 0)
        return material.name;
    return index.column() <= m_values.quantities.size() ? material.values[index.column() - 1] : material.findings;
}

QVariant ValuesOfDeckModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const bool isFindings = index.column() == columnCount({}) - 1;
    return role == Qt::ToolTipRole && isFindings
               ? m_values.materials[static_cast<std::size_t>(index.row())].findingTexts
               : textOf(index);
}

QVariant ValuesOfDeckModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (section == 0)
        return tr("Material");
    return section <= m_values.quantities.size() ? m_values.quantities[section - 1] : tr("Findings");
}

} // namespace desktop
