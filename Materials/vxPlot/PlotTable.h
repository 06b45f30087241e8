#pragma once

#include "vxPlot/PlotData.h"

#include <string>
#include <vector>

namespace vxPlot {

/// The points of a plot as a table.
struct PlotTable
{
    std::vector<std::string> headers;              ///< "stretch [1]", "Seal: nominal stress [MPa]"
    std::vector<std::vector<std::string>> columns; ///< one for each header; a gap is an empty cell

    std::size_t rows() const; ///< the length of the longest column
};

/// Returns the table of a plot. Series with the same abscissas share their column. Each number is the shortest text that
/// reads back to it, with a decimal point.
PlotTable plotTable(const PlotData& plot);

/// Returns the text of a table: one line for each row, the headers first, each line with an end. With a comma, cells
/// are quoted where needed, as in CSV files; with a tab, tabs and ends of lines in headers become blanks.
std::string tableText(const PlotTable& table, char separator);

} // namespace vxPlot
