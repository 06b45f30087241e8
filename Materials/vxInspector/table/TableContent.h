#pragma once

#include "values/RangeBar.h"
#include "vxUnits/Plausibility.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <vector>

/// The tables of the inspector without widgets: their cells, and their text for other programs.
namespace vxInspector {

/// A cell of a table. All texts are plain text.
struct Cell
{
    QString text = {};    ///< the shown text, which may be a shortened one
    QString toolTip = {}; ///< empty for none
    QString whole = {};   ///< the text that is copied; empty if it is `text`
    bool isBold = false;
    bool isFixed = false;                       ///< shown with characters of equal width
    std::optional<RangeBar> bar = std::nullopt; ///< shown in place of the text
    bool isInOneLine = false;                   ///< shown without breaks at its blanks
    bool hasSign = false;                       ///< shown with a warning sign before the text

    const QString& copied() const { return whole.isEmpty() ? text : whole; }
};

/// The row of a material's editor to which a row of a table leads.
struct RowPlace
{
    std::uint32_t projectId = 0; ///< 0 if the row leads nowhere
    std::uint32_t objectId = 0;
    std::int32_t propertyId = 0; ///< 0 for the material as a whole

    bool isSet() const { return projectId != 0; }
    friend bool operator==(const RowPlace& one, const RowPlace& other)
    {
        return one.projectId == other.projectId && one.objectId == other.objectId && one.propertyId == other.propertyId;
    }
};

struct Row
{
    std::vector<Cell> cells; ///< one for each column; further ones are not shown
    RowPlace place = {};
    std::optional<vxUnits::Remedy> remedy = std::nullopt; ///< of a finding
};

struct TableContent
{
    QString sentence; ///< says what the table shows, and what it does not show
    QStringList headers;
    std::vector<Row> rows;
};

/// Returns a text that is at most `most` characters long, with an ellipsis at the end if it was longer.
QString shortened(const QString& text, int most = 120);

inline constexpr int mostInToolTip = 2000; ///< characters

/// Returns a cell with a text of any length: it shows the beginning, and its tool tip and the clipboard have more.
Cell textCell(const QString& text);

/// The part of a table that is copied: numbers of rows and columns, in the order of the result.
struct TablePart
{
    std::vector<int> rows;
    std::vector<int> columns;
};

/// Returns all rows and columns of a table.
TablePart wholeOf(const TableContent& table);

/// Returns headers and cells separated by tabs, one line for each row. A text with tabs or several lines is in quotes, so
/// that a spreadsheet gets one cell for each cell, and the lines of a card are kept.
QString toTabText(const TableContent& table, const TablePart& part);

/// Returns headers and cells as an HTML table, with the special characters of the texts escaped.
QString toHtml(const TableContent& table, const TablePart& part);

} // namespace vxInspector
