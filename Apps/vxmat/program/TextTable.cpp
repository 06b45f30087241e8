#include "program/TextTable.h"

#include <algorithm>
#include <utility>

namespace commandline {

namespace {

constexpr const char* gap = "  ";

/// Returns the number of characters of a UTF-8 text. It is the width of a text in Latin letters.
std::size_t width(const std::string& text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

} // namespace

TextTable::TextTable(Row heading)
{
    add(std::move(heading));
}

void TextTable::add(Row row)
{
    m_rows.push_back(std::move(row));
}

std::string TextTable::text() const
{
    std::vector<std::size_t> widths(m_rows.front().size());
    for (const Row& row : m_rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], width(row[i]));
    }
    std::string text;
    for (const Row& row : m_rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i)
            line += row[i] + std::string(widths[i] - width(row[i]), ' ') + gap;
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

} // namespace commandline
