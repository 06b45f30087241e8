#include "vxPlot/PlotTable.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxPlot {

namespace {

std::string withUnit(const std::string& name, const Axis& axis)
{
    return name + " [" + (axis.unit.empty() ? "1" : axis.unit) + ']';
}

std::vector<std::string> cellsOf(const std::vector<double>& numbers)
{
    std::vector<std::string> cells;
    cells.reserve(numbers.size());
    for (const double number : numbers)
        cells.push_back(std::isnan(number) ? std::string() : vxMat::formatNumber(number));
    return cells;
}

std::string quoted(const std::string& cell)
{
    if (cell.find_first_of(",\"\r\n") == std::string::npos)
        return cell;
    std::string text = "\"";
    for (const char one : cell) {
        if (one == '"')
            text += '"';
        text += one;
    }
    return text + '"';
}

std::string inOneCell(std::string cell)
{
    std::replace_if(
        cell.begin(), cell.end(), [](char one) { return one == '\t' || one == '\r' || one == '\n'; }, ' ');
    return cell;
}

std::string written(const std::string& cell, char separator)
{
    return separator == ',' ? quoted(cell) : inOneCell(cell);
}

} // namespace

std::size_t PlotTable::rows() const
{
    std::size_t most = 0;
    for (const std::vector<std::string>& column : columns)
        most = std::max(most, column.size());
    return most;
}

PlotTable plotTable(const PlotData& plot)
{
    PlotTable table;
    const Series* before = nullptr;
    for (const Series& series : plot.series) {
        if (before == nullptr || before->x != series.x) {
            table.headers.push_back(withUnit(plot.x.name, plot.x));
            table.columns.push_back(cellsOf(series.x));
        }
        table.headers.push_back(withUnit(series.name + ": " + plot.y.name, plot.y));
        table.columns.push_back(cellsOf(series.y));
        before = &series;
    }
    return table;
}

std::string tableText(const PlotTable& table, char separator)
{
    std::string text;
    const auto addLine = [&](const auto& cellIn) {
        for (std::size_t column = 0; column < table.columns.size(); ++column) {
            if (column > 0)
                text += separator;
            text += written(cellIn(column), separator);
        }
        text += '\n';
    };
    addLine([&](std::size_t column) { return table.headers[column]; });
    for (std::size_t row = 0; row < table.rows(); ++row)
        addLine([&](std::size_t column) {
            const std::vector<std::string>& cells = table.columns[column];
            return row < cells.size() ? cells[row] : std::string();
        });
    return text;
}

} // namespace vxPlot
