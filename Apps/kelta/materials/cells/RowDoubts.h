#pragma once

#include "vxUnits/Plausibility.h"

#include <QString>
#include <QStringList>

#include <vector>

class QAbstractItemModel;
class QModelIndex;

namespace desktop {

/// The doubts about the values in the rows of a material editor, applied or not.
class RowDoubts
{
public:
    /// Returns the doubt about the value of a row, in the language of the user; empty if there is none. Checks the values
    /// again only if a row has changed.
    QString about(const QModelIndex& cell);

private:
    QStringList m_checked; ///< the ids and values of the rows that were checked last
    std::vector<vxUnits::Doubt> m_doubts;
};

} // namespace desktop
