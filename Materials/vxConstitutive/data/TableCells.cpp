#include "data/TableCells.h"

#include "data/TextDecoding.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vxConstitutive {

namespace {

constexpr std::string_view blanks = " \t";

/// Returns the place of the quotation mark that closes the one at `open`. Two marks inside are one of the text.
std::size_t findClosingMark(std::string_view text, std::size_t open)
{
    std::size_t at = text.find('"', open + 1);
    while (at != std::string_view::npos && text.substr(at + 1, 1) == "\"")
        at = text.find('"', at + 2);
    return at;
}

std::string withSingleMarks(std::string_view cell)
{
    std::string text(cell);
    for (std::size_t at = text.find("\"\""); at != std::string::npos; at = text.find("\"\"", at + 1))
        text.erase(at, 1);
    return text;
}

/// Removes the next cell from `rest` and returns it. Separators in quotation marks do not end a cell.
std::string_view takeCell(std::string_view& rest, char separator)
{
    std::size_t from = 0;
    const std::string_view start = trimmed(rest);
    const bool quoted = !start.empty() && start.front() == '"';
    if (quoted) {
        const std::size_t close = findClosingMark(rest, rest.find('"'));
        if (close != std::string_view::npos)
            from = close;
    }
    const std::size_t end = std::min(rest.find(separator, from), rest.size());
    std::string_view cell = trimmed(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (cell.size() >= 2 && cell.front() == '"' && cell.back() == '"')
        cell = trimmed(cell.substr(1, cell.size() - 2));
    return cell;
}

void splitAtBlanks(std::string_view line, std::vector<std::string_view>& cells)
{
    std::size_t at = line.find_first_not_of(blanks);
    while (at != std::string_view::npos && cells.size() <= mostColumns) {
        const std::size_t end = std::min(line.find_first_of(blanks, at), line.size());
        cells.push_back(line.substr(at, end - at));
        at = line.find_first_not_of(blanks, end);
    }
}

bool canBeginNumber(char c)
{
    return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.' || c == ',';
}

/// A candidate for the format of a table. Candidates are in order of preference: the first of equals is chosen.
constexpr std::array<TableFormat, 10> candidates{{{'\t', '.'},
                                                  {'\t', ','},
                                                  {';', '.'},
                                                  {';', ','},
                                                  {'|', '.'},
                                                  {'|', ','},
                                                  {',', '.'},
                                                  {' ', '.'},
                                                  {' ', ','},
                                                  {',', ','}}};

struct Score
{
    std::size_t points = 0;
    std::size_t columns = 0;
    bool singleNumbers = false;
};

void score(Score& result, const std::vector<std::string_view>& cells, char decimalMark)
{
    constexpr std::size_t onlyNumbers = 4; // in lines with texts, the split may be wrong
    const CellCount count = countCells(cells, decimalMark);
    result.singleNumbers = result.singleNumbers || (count.numbers == 1 && count.texts == 0);
    if (count.numbers < 2)
        return;
    result.points += count.texts == 0 ? onlyNumbers : 1;
    result.columns = std::max(result.columns, cells.size());
}

/// Returns up to some thousand lines, spread over a text.
std::vector<std::string_view> sampleLines(std::string_view text, std::size_t lines)
{
    constexpr std::size_t wanted = 2000;
    const std::size_t stride = lines / wanted + 1;
    std::vector<std::string_view> sample;
    Lines all(text);
    std::size_t number = 0;
    for (std::string_view line; all.next(line); ++number) {
        if (number % stride == 0 || number < wanted / 10)
            sample.push_back(line);
    }
    return sample;
}

bool isAllowed(const TableFormat& candidate, const TableOptions& options)
{
    return candidate.separator == options.separator.value_or(candidate.separator) &&
           candidate.decimalMark == options.decimalMark.value_or(candidate.decimalMark);
}

/// Returns whether a text in round brackets is a kind of strain or stress, not a unit.
bool isMeasureWord(std::string_view text)
{
    constexpr std::array<std::string_view, 9> words{"TRUE", "ENG",    "NOM",  "LOG",  "CAUCHY",
                                                    "TECH", "HENCKY", "WAHR", "PLAST"};
    const std::string upper = vxMat::toUpperAscii(text);
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return upper.find(word) != std::string::npos; });
}

/// Returns the text between the last `open` and the `close` after it; nothing if there is none.
std::optional<HeaderCell> readBrackets(std::string_view cell, char open, char close)
{
    const std::size_t from = cell.rfind(open);
    if (from == std::string_view::npos)
        return std::nullopt;
    const std::size_t to = cell.find(close, from);
    if (to == std::string_view::npos)
        return std::nullopt;
    return HeaderCell{std::string(trimmed(cell.substr(0, from))),
                      std::string(trimmed(cell.substr(from + 1, to - from - 1)))};
}

/// Returns the name and the unit around a mark: "stress/MPa", "stress in MPa", "stress MPa".
std::optional<HeaderCell> readAround(std::string_view cell, std::size_t at, std::size_t length, const UnitFactor& units)
{
    if (at == std::string_view::npos || at == 0)
        return std::nullopt;
    std::string_view name = trimmed(cell.substr(0, at));
    const std::string_view unit = trimmed(cell.substr(at + length));
    if (unit == "1" || unit == "-" || !isUnit(unit, units))
        return std::nullopt;
    while (!name.empty() && (name.back() == ',' || name.back() == ':'))
        name = trimmed(name.substr(0, name.size() - 1));
    return HeaderCell{std::string(name), std::string(unit)};
}

} // namespace

void splitCells(std::string_view line, char separator, std::vector<std::string_view>& cells)
{
    cells.clear();
    if (separator == ' ')
        return splitAtBlanks(line, cells);
    while (!line.empty() && cells.size() <= mostColumns)
        cells.push_back(takeCell(line, separator));
}

std::optional<double> readCell(std::string_view cell, char decimalMark)
{
    constexpr std::string_view minusSign = "\xE2\x88\x92";
    const bool minus = cell.substr(0, minusSign.size()) == minusSign;
    if (minus)
        cell.remove_prefix(minusSign.size());
    constexpr std::size_t longest = 64;
    if (cell.empty() || cell.size() > longest || !canBeginNumber(cell.front()))
        return std::nullopt;
    std::array<char, longest> buffer{};
    auto* const end = std::copy(cell.begin(), cell.end(), buffer.begin());
    if (decimalMark == ',') {
        if (std::find(buffer.begin(), end, '.') != end)
            return std::nullopt;
        auto* const comma = std::find(buffer.begin(), end, ',');
        if (comma != end)
            *comma = '.';
    }
    const auto number = vxMat::readWholeNumber({buffer.data(), cell.size()});
    if (!number || !std::isfinite(*number))
        return std::nullopt;
    return minus ? -*number : *number;
}

CellCount countCells(const std::vector<std::string_view>& cells, char decimalMark)
{
    CellCount count;
    for (const std::string_view cell : cells) {
        if (cell.empty())
            continue;
        ++(readCell(cell, decimalMark) ? count.numbers : count.texts);
    }
    return count;
}

DetectedFormat detectFormat(std::string_view text, std::size_t lines, const TableOptions& options)
{
    const std::vector<std::string_view> sample = sampleLines(text, lines);
    DetectedFormat best;
    std::size_t most = 0;
    std::vector<std::string_view> cells;
    for (const TableFormat& candidate : candidates) {
        if (!isAllowed(candidate, options))
            continue;
        Score result;
        for (const std::string_view line : sample) {
            splitCells(line, candidate.separator, cells);
            score(result, cells, candidate.decimalMark);
        }
        best.singleNumbers = best.singleNumbers || result.singleNumbers;
        if (result.points > most) {
            most = result.points;
            best.format = candidate;
            best.columns = std::min(result.columns, mostColumns);
        }
    }
    return best;
}

bool isUnit(std::string_view text, const UnitFactor& units)
{
    if (text == "1" || text == "-")
        return true;
    constexpr std::array<Dimension, 4> all{Dimension::Number, Dimension::Stress, Dimension::Time, Dimension::Rate};
    // The word is a unit of numbers too, but in a header it is the name of a column.
    const bool isName = vxMat::equalIgnoringAsciiCase(text, "strain");
    return !text.empty() && !isName && units &&
           std::any_of(all.begin(), all.end(), [&](Dimension dimension) { return units(text, dimension).has_value(); });
}

HeaderCell readHeaderCell(std::string_view marked, const UnitFactor& units)
{
    const std::string cell = withSingleMarks(marked);
    if (const auto square = readBrackets(cell, '[', ']'))
        return *square;
    const auto round = readBrackets(cell, '(', ')');
    if (round && !isMeasureWord(round->unit))
        return *round;
    constexpr std::string_view in = " in ";
    for (const auto& [at, length] :
         {std::pair(cell.find('/'), std::size_t(1)), std::pair(cell.rfind('/'), std::size_t(1)),
          std::pair(cell.rfind(in), in.size()), std::pair(cell.rfind(' '), std::size_t(1))})
    {
        if (const auto parts = readAround(cell, at, length, units))
            return *parts;
    }
    return {cell, {}};
}

} // namespace vxConstitutive
