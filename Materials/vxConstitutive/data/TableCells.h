#pragma once

#include "vxConstitutive/data/TestTable.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxConstitutive {

/// Further columns are ignored, so that a hostile line cannot exhaust the memory.
inline constexpr std::size_t mostColumns = 64;

/// Stores the trimmed cells of a line in `cells`. A cell in double quotes may contain separators. If the separator is ' ', each
/// run of blanks separates two cells, and blanks around the line are ignored.
void splitCells(std::string_view line, char separator, std::vector<std::string_view>& cells);

/// Returns the finite number in a cell; nothing if the cell has anything else.
std::optional<double> readCell(std::string_view cell, char decimalMark);

/// The number of cells of each kind in a line.
struct CellCount
{
    std::size_t numbers = 0;
    std::size_t texts = 0;
};

CellCount countCells(const std::vector<std::string_view>& cells, char decimalMark);

/// The format of a table and its number of columns with numbers.
struct DetectedFormat
{
    TableFormat format;
    std::size_t columns = 0;    ///< 0 if no line has two numbers
    bool singleNumbers = false; ///< there are lines of one number
};

/// Returns the separator and decimal mark with which most lines are numbers. Reads at most some thousand lines, spread over the
/// text.
DetectedFormat detectFormat(std::string_view text, std::size_t lines, const TableOptions& options);

/// A name and its unit.
struct HeaderCell
{
    std::string name;
    std::string unit;
};

/// Returns whether a text is a unit of one of the dimensions. "1" and "-" are units of numbers.
bool isUnit(std::string_view text, const UnitFactor& units);

/// Returns the name and unit in "Stress [MPa]", "stress/MPa" and similar texts. Two quotation marks are one, as in quoted cells.
HeaderCell readHeaderCell(std::string_view marked, const UnitFactor& units);

} // namespace vxConstitutive
