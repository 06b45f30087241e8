#pragma once

#include "decks/DeckPreview.h"

#include <QAbstractTableModel>

namespace desktop {

/// The materials of a deck as a table: name, some values, findings.
class ValuesOfDeckModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit ValuesOfDeckModel(QObject* parent = nullptr);
    ~ValuesOfDeckModel() override;

    void setValues(ValuesOfDeck values);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString textOf(const QModelIndex& index) const;

    ValuesOfDeck m_values;
};

} // namespace desktop
