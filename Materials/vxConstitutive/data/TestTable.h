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
    std::string name;          ///< from the header, without the unit; empty if there is none
    std::string unit;          ///< from the header, without brackets; empty if there is none
    std::vector<double> cells; ///< one for each row; NaN if the cell has no number
};

/// The format of the text of a table.
struct TableFormat
{
    char separator = ','; ///< '\t', ';', '|', ',' or ' ' for any run of blanks
    char decimalMark = '.';
};

/// A table of measured numbers, and the format in which it was read.
struct TestTable
{
    TableFormat format;
    std::vector<TableColumn> columns;
    std::size_t lines = 0;      ///< of the text
    std::size_t headerLine = 0; ///< the number of the line with the names, from 1; 0 if there is none
    std::vector<Finding> findings;

    std::size_t rows() const { return columns.empty() ? 0 : columns.front().cells.size(); }
};

/// Properties of the format that a caller prescribes.
struct TableOptions
{
    std::optional<char> separator;
    std::optional<char> decimalMark;
};

/// Reads a table from the bytes of a file or from pasted text.
///
/// The separator and the decimal mark are those with which most lines are numbers. A line before the numbers is the header if
/// it has as many cells. Units follow the names, as in "Stress [MPa]", "stress (MPa)", "stress/MPa" or "stress in MPa", or are
/// in the line below them. Lines that are not numbers are left out and counted. Cells may be in quotation marks. Reads UTF-8,
/// UTF-16 with a byte order mark, and Latin-1, in any locale.
///
/// Accepts any bytes: for a text without numbers, the table has no columns and a finding that is an error. Takes linear time.
VXCONSTITUTIVE_EXPORT TestTable readTestTable(std::string_view bytes, const UnitFactor& units,
                                              const TableOptions& options = {});

} // namespace vxConstitutive
