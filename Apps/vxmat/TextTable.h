#pragma once

#include <string>
#include <vector>

namespace vxmat {

/// Rows of cells under a heading, printed with columns as wide as their widest cell.
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

} // namespace vxmat
