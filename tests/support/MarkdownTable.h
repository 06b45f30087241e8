#pragma once

#include <string>
#include <vector>

namespace vxtest {

/// Returns a row of a table in Markdown.
inline std::string tableRow(const std::vector<std::string>& cells)
{
    std::string text = "|";
    for (const std::string& cell : cells)
        text += " " + cell + " |";
    return text + "\n";
}

/// Returns the header of a table in Markdown, with the line below it.
inline std::string tableHeader(const std::vector<std::string>& cells)
{
    std::string line = "|";
    for (std::size_t i = 0; i < cells.size(); ++i)
        line += "---|";
    return tableRow(cells) + line + "\n";
}

} // namespace vxtest
