#pragma once

#include <string>
#include <vector>

namespace commandline {

/// A table of texts with a heading. Each column is as wide as its widest cell.
class TextTable
{
public:
    using Row = std::vector<std::string>;

    explicit TextTable(Row heading);
    void add(Row row);
    std::string text() const;

private:
    std::vector<Row> m_rows;
};

} // namespace commandline
