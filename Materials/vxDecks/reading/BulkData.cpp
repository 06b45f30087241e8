#include "reading/BulkData.h"

#include "reading/TextOfDeck.h"
#include "texts/BulkTexts.h"
#include "vxDecks/DeckReading.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <array>
#include <map>
#include <sstream>
#include <utility>

namespace vxDecks {

namespace {

constexpr std::size_t smallWidth = 8;
constexpr std::size_t largeWidth = 16;
constexpr std::size_t continuationColumn = 72; ///< of the last field, from 0
constexpr std::size_t smallFields = 8;         ///< between the first and the last field of a line
constexpr std::size_t largeFields = 4;
constexpr std::size_t mostFields = 200000;

/// One line of an entry: its first field, eight or four fields, and the last field.
struct Row
{
    std::string first;
    std::vector<std::string_view> fields;
    std::string_view last;
    bool isLarge = false;

    bool isContinuation() const { return first.empty() || first.front() == '+' || first.front() == '*'; }
};

/// Returns the name that the last field of an entry and the first field of its continuation have in common: "A1" of "+A1".
/// Empty if there is none.
std::string_view continuationName(std::string_view mark)
{
    return mark.substr(std::min(mark.find_first_not_of("+*"), mark.size()));
}

bool isLargeMark(std::string_view first)
{
    return !first.empty() && (first.front() == '*' || first.back() == '*');
}

/// Returns a part of a line without blanks at its ends; empty if the line ends before it.
std::string_view columns(std::string_view line, std::size_t from, std::size_t count)
{
    return from < line.size() ? trimmed(line.substr(from, count)) : std::string_view();
}

Row fixedRow(std::string_view line)
{
    Row row;
    row.first = columns(line, 0, smallWidth);
    row.isLarge = isLargeMark(row.first);
    const std::size_t width = row.isLarge ? largeWidth : smallWidth;
    for (std::size_t at = smallWidth; at < continuationColumn; at += width)
        row.fields.push_back(columns(line, at, width));
    row.last = columns(line, continuationColumn, smallWidth);
    return row;
}

std::vector<std::string_view> splitAtCommas(std::string_view line)
{
    std::vector<std::string_view> parts;
    for (std::size_t comma = 0; comma != std::string_view::npos; line.remove_prefix(std::min(comma + 1, line.size()))) {
        comma = line.find(',');
        parts.push_back(trimmed(line.substr(0, comma)));
    }
    return parts;
}

/// Returns whether a text is the name of a continuation and no number: "+", "+A1", "*M2".
bool isContinuationMark(std::string_view text)
{
    if (text.empty() || (text.front() != '+' && text.front() != '*'))
        return false;
    return text.size() == 1 || text.front() == '*' || (text[1] >= 'A' && text[1] <= 'Z');
}

/// Returns the rows of a line in free fields. A line may have several, because an entry can continue on its line:
/// "MATT1,1,2,3,4,5,6,7,8,+,+,9".
std::vector<Row> freeRows(std::string_view line)
{
    const std::vector<std::string_view> parts = splitAtCommas(line);
    std::vector<Row> rows;
    for (std::size_t at = 0; at < parts.size();) {
        Row row;
        row.first = parts[at++];
        row.isLarge = isLargeMark(row.first);
        const std::size_t count = row.isLarge ? largeFields : smallFields;
        const std::size_t end = std::min(parts.size(), at + count);
        row.fields.assign(parts.begin() + static_cast<std::ptrdiff_t>(at),
                          parts.begin() + static_cast<std::ptrdiff_t>(end));
        const bool isLast = end == parts.size();
        if (isLast && !row.fields.empty() && isContinuationMark(row.fields.back())) {
            row.last = row.fields.back();
            row.fields.pop_back();
        }
        row.fields.resize(count);
        if (!isLast)
            row.last = parts[end];
        at = end + 1;
        rows.push_back(std::move(row));
    }
    return rows;
}

/// Returns whether a line has free fields. A comma behind the first fields is in a comment behind the last column.
bool isFree(std::string_view line)
{
    constexpr std::size_t firstColumns = 10;
    return line.substr(0, firstColumns).find(',') != std::string_view::npos;
}

/// Returns a line in which each tab is replaced by blanks up to the next field of eight columns.
std::string withoutTabs(std::string_view line)
{
    std::string text;
    for (const char c : line) {
        if (c == '\t')
            text.append(smallWidth - text.size() % smallWidth, ' ');
        else
            text += c;
    }
    return text;
}

/// An entry that may have further lines.
struct OpenEntry
{
    BulkEntry entry;
    std::string continuation; ///< the name of its continuation; empty if there is none
    bool isWanted = false;
};

class BulkDataReader
{
public:
    BulkDataReader(std::istream& file, BulkVisitor& visitor) : m_lines(file), m_visitor(visitor) {}

    void read();

private:
    bool takeStatement(std::string_view line);
    void takeLine(std::string_view line);
    void takeRow(const Row& row);
    void beginEntry(const Row& row);
    void continueEntry(const Row& row);
    void append(const Row& row);
    void close();
    void closeAll();

    DeckLines m_lines;
    BulkVisitor& m_visitor;
    std::optional<OpenEntry> m_open;
    std::map<std::string, OpenEntry, std::less<>> m_waiting; ///< entries whose continuation is not the next line
    bool m_isAtEnd = false;
};

void BulkDataReader::read()
{
    while (!m_isAtEnd && m_lines.next()) {
        std::string_view line = m_lines.line();
        if (!line.empty() && line.front() == '$') {
            m_visitor.comment(line, m_lines.number());
            continue;
        }
        line = line.substr(0, line.find('$'));
        if (!trimmed(line).empty() && !takeStatement(trimmed(line)))
            takeLine(line);
    }
    closeAll();
}

/// Returns the word at the beginning of a line in capitals.
std::string firstWord(std::string_view line)
{
    return vxMat::toUpperAscii(line.substr(0, line.find_first_of(" \t,=*'\"")));
}

/// Takes a line that is no entry but a statement, and returns whether it is one.
bool BulkDataReader::takeStatement(std::string_view line)
{
    const std::string word = firstWord(line);
    const std::string_view rest = trimmed(line.substr(word.size()));
    if (word == "BEGIN") {
        closeAll();
        m_visitor.beginBulk();
    } else if (word == "INCLUDE") {
        const std::string_view quotes = "'\"";
        std::string_view file = rest;
        file.remove_prefix(std::min(file.find_first_not_of(quotes), file.size()));
        m_visitor.include(file.substr(0, file.find_first_of(quotes)), m_lines.number());
    } else if (word == "ENDDATA") {
        m_isAtEnd = true;
    } else {
        return false;
    }
    return true;
}

void BulkDataReader::takeLine(std::string_view line)
{
    const std::string text = vxMat::toUpperAscii(line);
    if (!isFree(text)) {
        takeRow(fixedRow(withoutTabs(text)));
        return;
    }
    for (const Row& row : freeRows(text))
        takeRow(row);
}

void BulkDataReader::takeRow(const Row& row)
{
    if (row.isContinuation())
        continueEntry(row);
    else
        beginEntry(row);
}

void BulkDataReader::beginEntry(const Row& row)
{
    close();
    m_open.emplace();
    m_open->entry.name = row.first.substr(0, row.first.find('*'));
    m_open->entry.line = m_lines.number();
    m_open->isWanted = m_visitor.begin(m_open->entry);
    append(row);
}

/// Adds a line to the entry before it, or to an earlier one that waits for a line of this name.
void BulkDataReader::continueEntry(const Row& row)
{
    const std::string_view name = continuationName(row.first);
    const auto waiting = m_waiting.find(name);
    const bool isOfOpen = m_open && (name.empty() || name == m_open->continuation);
    if (!isOfOpen && waiting != m_waiting.end()) {
        OpenEntry continued = std::move(waiting->second);
        m_waiting.erase(waiting);
        close();
        m_open = std::move(continued);
        append(row);
    } else if (isOfOpen || (m_open && m_open->continuation.empty())) {
        append(row);
    }
}

void BulkDataReader::append(const Row& row)
{
    m_open->continuation = continuationName(row.last);
    if (!m_open->isWanted)
        return;
    auto& fields = m_open->entry.fields;
    if (!row.isLarge)
        fields.resize((fields.size() + smallFields - 1) / smallFields * smallFields);
    fields.insert(fields.end(), row.fields.begin(), row.fields.end());
    if (fields.size() > mostFields || m_lines.isCut())
        throw DeckError(makeMessage(BulkText::TooManyFields, {m_open->entry.name, std::to_string(mostFields)}),
                        m_lines.number());
}

/// Ends the entry, unless a line that continues it may come later.
void BulkDataReader::close()
{
    if (!m_open)
        return;
    OpenEntry ended = std::move(*m_open);
    m_open.reset();
    if (!ended.isWanted)
        return;
    const auto known = m_waiting.find(ended.continuation);
    if (ended.continuation.empty() || known != m_waiting.end())
        m_visitor.take(std::move(ended.entry));
    else
        m_waiting.emplace(ended.continuation, std::move(ended));
}

void BulkDataReader::closeAll()
{
    close();
    for (auto& [name, waiting] : std::exchange(m_waiting, {})) {
        waiting.entry.missing = name;
        m_visitor.take(std::move(waiting.entry));
    }
}

/// Returns the names of entries by which bulk data is recognised.
const std::vector<std::string_view>& knownEntries()
{
    static const std::vector<std::string_view> names{
        "CBAR",  "CBEAM", "CHEXA", "CPENTA", "CQUAD4", "CREEP",  "CROD",   "CTETRA", "CTRIA3",
        "GRID",  "MAT1",  "MAT10", "MAT2",   "MAT3",   "MAT4",   "MAT5",   "MAT8",   "MAT9",
        "MATHP", "MATS1", "MATT1", "PBAR",   "PBEAM",  "PSHELL", "PSOLID", "SPC1",   "TABLES1"};
    return names;
}

bool isInteger(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool isKnownEntry(std::string_view line)
{
    const std::string text = vxMat::toUpperAscii(line);
    const std::string expanded = withoutTabs(text);
    const Row row = isFree(text) ? freeRows(text).front() : fixedRow(expanded);
    const auto& names = knownEntries();
    return std::find(names.begin(), names.end(), row.first.substr(0, row.first.find('*'))) != names.end() &&
           isInteger(row.fields.front());
}

} // namespace

std::string_view BulkEntry::field(std::size_t index) const
{
    return index < fields.size() ? std::string_view(fields[index]) : std::string_view();
}

void readBulkData(std::istream& file, BulkVisitor& visitor)
{
    BulkDataReader(file, visitor).read();
}

bool isBulkData(std::string_view beginning)
{
    std::istringstream lines{std::string(beginning)};
    for (std::string line; std::getline(lines, line);) {
        const std::string_view text = trimmed(std::string_view(line).substr(0, line.find('$')));
        const std::string word = firstWord(text);
        if (word == "CEND" || (word == "BEGIN" && vxMat::toUpperAscii(text).find("BULK") != std::string::npos))
            return true;
        if (!text.empty() && isKnownEntry(text))
            return true;
    }
    return false;
}

} // namespace vxDecks
