#pragma once

#include "vxConstitutive/data/TestTable.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxConstitutive {

/// No column beyond this one is read, so that a hostile line cannot ask for any amount of memory.
inline constexpr std::size_t mostColumns = 64;

/// Splits a line into its cells, trimmed; `cells` is emptied first. A cell in double quotes may contain separators.
/// With ' ', each run of blanks separates, and those around the line do not count.
void splitCells(std::string_view line, char separator, std::vector<std::string_view>& cells);

/// The finite number that fills a cell; absent if there is none.
std::optional<double> readCell(std::string_view cell, char decimalMark);

/// What the cells of a line are.
struct CellCount
{
    std::size_t numbers = 0;
    std::size_t texts = 0;
};

CellCount countCells(const std::vector<std::string_view>& cells, char decimalMark);

/// How a table is written, and how many columns hold numbers.
struct DetectedFormat
{
    TableFormat format;
    std::size_t columns = 0;    ///< 0 if no line has two numbers
    bool singleNumbers = false; ///< there are lines of one number
};

/// Finds the separator and decimal mark by which most lines are numbers, from at most some thousand lines spread over
/// the text.
DetectedFormat detectFormat(std::string_view text, std::size_t lines, const TableOptions& options);

/// A name and its unit.
struct HeaderCell
{
    std::string name;
    std::string unit;
};

/// Whether a text is a unit of some dimension. "1" and "-" are units of numbers.
bool isUnit(std::string_view text, const UnitFactor& units);

/// Takes "Stress [MPa]", "stress/MPa" and the like apart.
HeaderCell readHeaderCell(std::string_view cell, const UnitFactor& units);

} // namespace vxConstitutive
