#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Finding.h"
#include "vxConstitutive/data/TestData.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxConstitutive {

/// A column of a table of measured numbers.
struct TableColumn
{
    std::string name;          ///< from the header, without its unit; empty if there is none
    std::string unit;          ///< from the header, without brackets; empty if there is none
    std::vector<double> cells; ///< one for each row; NaN where the cell has no number
};

/// How the text of a table is written.
struct TableFormat
{
    char separator = ','; ///< '\t', ';', '|', ',' or ' ' for any run of blanks
    char decimalMark = '.';
};

/// A table of measured numbers, and what was understood of its text.
struct TestTable
{
    TableFormat format;
    std::vector<TableColumn> columns;
    std::size_t lines = 0;      ///< of the text
    std::size_t headerLine = 0; ///< the line, counted from 1, that the names are from; 0 if there is none
    std::vector<Finding> findings;

    std::size_t rows() const { return columns.empty() ? 0 : columns.front().cells.size(); }
};

/// What a caller knows better than the text says.
struct TableOptions
{
    std::optional<char> separator;
    std::optional<char> decimalMark;
};

/// Reads a table from a file's bytes or pasted text.
///
/// Separator and decimal mark are those by which most lines are numbers. Lines in front are the header if they are
/// written in as many cells; units stand behind the names, as in "Stress [MPa]", "stress (MPa)", "stress/MPa" or
/// "stress in MPa", or in a line below them. Lines that are not numbers are left out and counted. Cells may be quoted.
/// UTF-8, UTF-16 with a byte order mark, and Latin-1 are read. The locale plays no part.
///
/// Any bytes can be read; a text without numbers gives a table without columns and a finding that is an error. The time
/// is proportional to the length.
VXCONSTITUTIVE_EXPORT TestTable readTestTable(std::string_view bytes, const UnitFactor& units,
                                              const TableOptions& options = {});

} // namespace vxConstitutive
