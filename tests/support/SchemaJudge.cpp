#include "SchemaJudge.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <sys/wait.h>

namespace vxtest {

namespace {

/// An argument as the shell takes it, whatever it holds.
std::string quoted(const std::string& argument)
{
    std::string text = " '";
    for (const char c : argument)
        text += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return text + "'";
}

} // namespace

std::string faultsBySchema(const std::string& schema, const std::vector<std::string>& files)
{
    std::string command = quoted(VX_PYTHON) + quoted(VX_VALIDATE_JSON) + quoted(std::string(VX_DOCS) + "/" + schema);
    for (const std::string& file : files)
        command += quoted(file);
    FILE* const output = popen((command + " 2>&1").c_str(), "r");
    if (output == nullptr) {
        ADD_FAILURE() << "the validator does not start";
        return {};
    }
    std::string text;
    std::array<char, 4096> block{};
    for (std::size_t count = 0; (count = std::fread(block.data(), 1, block.size(), output)) > 0;)
        text.append(block.data(), count);
    const int status = pclose(output);
    const bool judged = WIFEXITED(status) && WEXITSTATUS(status) == (text.empty() ? 0 : 1);
    EXPECT_TRUE(judged) << text;
    return text;
}

} // namespace vxtest
