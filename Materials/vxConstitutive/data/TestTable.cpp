#include "vxConstitutive/data/TestTable.h"

#include "data/TableCells.h"
#include "data/TextDecoding.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace vxConstitutive {

namespace {

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

std::size_t countLines(std::string_view text)
{
    std::size_t count = 0;
    Lines lines(text);
    for (std::string_view line; lines.next(line);)
        ++count;
    return count;
}

/// A number of lines, and the first of them.
struct Tally
{
    std::size_t number = 0;
    std::size_t firstLine = 0;

    void add(std::size_t line)
    {
        if (number++ == 0)
            firstLine = line;
    }
};

/// Returns whether a cell may be a number in groups of three digits or one with a decimal comma: "1,000".
bool mayGroupThousands(std::string_view cell)
{
    const std::size_t comma = cell.find(',');
    constexpr std::size_t group = 3;
    return comma != std::string_view::npos && comma > 0 && comma <= group && cell.size() == comma + 1 + group &&
           cell.front() != '0';
}

/// A line before the numbers that may be a header.
struct EarlierLine
{
    std::string_view text;
    std::size_t number = 0;
};

/// Reads the rows of a table whose format is known.
class RowReader
{
public:
    RowReader(TestTable& table, std::size_t columns) : m_table(table) { m_table.columns.resize(columns); }

    void read(std::string_view text)
    {
        Lines lines(text);
        std::size_t number = 0;
        for (std::string_view line; lines.next(line);)
            readLine(line, ++number);
        m_table.lines = number;
    }

    /// Returns the last lines before the first row, the nearest first.
    const std::vector<EarlierLine>& linesInFront() const { return m_linesInFront; }

    void report() const
    {
        const auto note = [this](FindingId id, const Tally& tally) {
            if (tally.number > 0)
                m_table.findings.push_back(
                    makeFinding(id, {static_cast<double>(tally.number), static_cast<double>(tally.firstLine)}));
        };
        note(FindingId::LinesSkipped, m_skippedLines);
        note(FindingId::CellsSkipped, m_skippedCells);
        if (m_table.format.decimalMark == ',' && m_commas > 0)
            m_table.findings.push_back(makeFinding(FindingId::DecimalCommaUnderstood));
        if (m_commas > 0 && m_commas == m_grouped)
            m_table.findings.push_back(makeFinding(FindingId::CommaMayGroupThousands, {m_firstGrouped}));
    }

private:
    void readLine(std::string_view line, std::size_t number)
    {
        splitCells(line, m_table.format.separator, m_cells);
        const CellCount count = countCells(m_cells, m_table.format.decimalMark);
        if (count.numbers >= 2)
            return addRow(number);
        if (m_table.rows() > 0 && count.numbers + count.texts > 0)
            m_skippedLines.add(number);
        if (m_table.rows() == 0 && count.texts > 0) {
            constexpr std::size_t kept = 2;
            m_linesInFront.insert(m_linesInFront.begin(), {line, number});
            m_linesInFront.resize(std::min(m_linesInFront.size(), kept));
        }
    }

    void addRow(std::size_t number)
    {
        for (std::size_t i = 0; i < m_table.columns.size(); ++i) {
            const std::string_view cell = i < m_cells.size() ? m_cells[i] : std::string_view();
            const auto value = readCell(cell, m_table.format.decimalMark);
            if (!value && !cell.empty())
                m_skippedCells.add(number);
            if (value && m_table.format.decimalMark == ',')
                noteComma(cell);
            m_table.columns[i].cells.push_back(value.value_or(noNumber));
        }
        if (m_cells.size() > m_table.columns.size())
            m_skippedCells.add(number);
    }

    void noteComma(std::string_view cell)
    {
        if (cell.find(',') == std::string_view::npos)
            return;
        ++m_commas;
        if (!mayGroupThousands(cell))
            return;
        if (m_grouped++ == 0)
            m_firstGrouped = cell;
    }

    TestTable& m_table;
    std::vector<std::string_view> m_cells;
    std::vector<EarlierLine> m_linesInFront;
    Tally m_skippedLines;
    Tally m_skippedCells;
    std::size_t m_commas = 0;
    std::size_t m_grouped = 0;
    std::string m_firstGrouped;
};

/// Splits the header of a table with columns separated by blanks. A unit in brackets belongs to the name before it.
void joinBrackets(std::vector<std::string>& cells)
{
    std::vector<std::string> joined;
    for (std::string& cell : cells) {
        const bool bracket = !cell.empty() && (cell.front() == '[' || cell.front() == '(');
        if (bracket && !joined.empty())
            joined.back() += " " + cell;
        else
            joined.push_back(std::move(cell));
    }
    cells = std::move(joined);
}

std::vector<std::string> splitHeader(std::string_view line, char separator)
{
    std::vector<std::string_view> views;
    splitCells(line, separator, views);
    std::vector<std::string> cells(views.begin(), views.end());
    if (separator == ' ')
        joinBrackets(cells);
    return cells;
}

bool areUnits(const std::vector<std::string>& cells, const UnitFactor& units)
{
    return std::all_of(cells.begin(), cells.end(), [&](const std::string& cell) {
        const HeaderCell parts = readHeaderCell(cell, units);
        return cell.empty() || isUnit(cell, units) || (parts.name.empty() && !parts.unit.empty());
    });
}

/// Returns whether a line has a cell for each column; the last columns may have none.
bool fits(const std::vector<std::string>& cells, const TestTable& table)
{
    return cells.size() >= 2 && (table.format.separator != ' ' || cells.size() == table.columns.size());
}

void readHeader(TestTable& table, const std::vector<EarlierLine>& lines, const UnitFactor& units)
{
    if (lines.empty())
        return;
    std::vector<std::string> names = splitHeader(lines[0].text, table.format.separator);
    std::vector<std::string> unitCells;
    std::size_t line = 0;
    if (fits(names, table) && areUnits(names, units) && lines.size() > 1) {
        unitCells = std::move(names);
        line = 1;
        names = splitHeader(lines[1].text, table.format.separator);
    }
    if (!fits(names, table))
        return;
    table.headerLine = lines[line].number;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        HeaderCell parts = i < names.size() ? readHeaderCell(names[i], units) : HeaderCell();
        table.columns[i].name = std::move(parts.name);
        table.columns[i].unit = std::move(parts.unit);
        if (i >= unitCells.size() || unitCells[i].empty())
            continue;
        const HeaderCell unit = readHeaderCell(unitCells[i], units);
        table.columns[i].unit = unit.name.empty() ? unit.unit : unitCells[i];
    }
}

} // namespace

TestTable readTestTable(std::string_view bytes, const UnitFactor& units, const TableOptions& options)
{
    const DecodedText decoded = decodeText(bytes);
    const std::string_view text = decoded.text();
    TestTable table;
    if (const auto binary = findBinary(text)) {
        table.findings.push_back(makeFinding(FindingId::NotText, {static_cast<double>(*binary)}));
        return table;
    }
    table.lines = countLines(text);
    const DetectedFormat format = detectFormat(text, table.lines, options);
    if (format.columns == 0) {
        table.findings.push_back(makeFinding(format.singleNumbers ? FindingId::OneColumn : FindingId::NoNumbers));
        return table;
    }
    table.format = format.format;
    RowReader reader(table, format.columns);
    reader.read(text);
    readHeader(table, reader.linesInFront(), units);
    reader.report();
    return table;
}

} // namespace vxConstitutive
