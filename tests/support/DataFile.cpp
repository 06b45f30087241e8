#include "DataFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>

namespace vxtest {

std::string dataPath(const std::string& name)
{
    return std::string(VX_TEST_DATA) + "/" + name;
}

std::vector<std::vector<std::string>> readTable(const std::string& name)
{
    std::vector<std::vector<std::string>> rows;
    std::istringstream lines(readText(dataPath(name)));
    for (std::string line; std::getline(lines, line);) {
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

std::string readText(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

} // namespace vxtest
