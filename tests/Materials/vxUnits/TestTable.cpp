#include "TestTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

namespace vxtest {

std::vector<std::vector<std::string>> readTestTable(const std::string& name)
{
    std::ifstream file(std::string(VX_UNITS_TEST_DATA) + "/" + name);
    EXPECT_TRUE(file) << name;
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#')
            continue;
        std::vector<std::string>& row = rows.emplace_back();
        for (std::size_t begin = 0; begin <= line.size();) {
            const std::size_t end = std::min(line.find('\t', begin), line.size());
            row.push_back(line.substr(begin, end - begin));
            begin = end + 1;
        }
    }
    return rows;
}

} // namespace vxtest
