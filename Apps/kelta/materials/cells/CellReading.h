#pragma once

#include "vxUnits/Result.h"

#include <QModelIndex>
#include <QString>

#include <optional>

namespace desktop {

/// The meaning of a text in the value cell of a material editor's table, for the user.
struct CellReading
{
    bool isRead = false;
    bool isBlank = false; ///< the text is empty or has only blanks
    QString
        stored; ///< the text for the cell: the number in the SI unit of the quantity; the text itself if it is not read
    QString remark; ///< what the text becomes ("210 GPa = 2.1e+11 Pa"), the reason why it cannot be read, or, for a
                    ///< blank text, what to type; at most a few lines long
};

/// Reads a text for a value cell of the table MatGui::SheetTableView. An empty list is a value. Absent if the row of the
/// cell takes no numbers. The remark is in the language of the user.
std::optional<CellReading> readCell(const QModelIndex& cell, const QString& text);

/// Returns the reason why a typed text cannot be read, in the language of the user. Shortens a long suggestion to the part
/// that differs from the typed text.
QString reasonOf(vxUnits::Failure failure, const QString& typed);

} // namespace desktop
