#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <string>
#include <utility>

namespace vxtest {

/// Returns a ratio in percent for a table. Ratios below the resolution of the output of a solver are not told apart.
inline std::string percentText(double ratio)
{
    char text[32] = "less than 0.0001";
    if (ratio >= 1e-6)
        std::snprintf(text, sizeof text, "%.2g", ratio * 100.0);
    return text;
}

/// Returns the document that an environment variable names, to which the test program writes its table; null if it only
/// compares.
inline const char* documentToWrite(const char* variable)
{
    return std::getenv(variable); // NOLINT(concurrency-mt-unsafe): one thread
}

/// Prints a table after the last test, and writes it if an environment variable names a document. Does nothing if the table
/// is empty.
class TableAtEnd : public ::testing::Environment
{
public:
    using Text = std::function<std::string()>;
    using Write = std::function<void(const std::string& path)>;

    /// `text` returns an empty text for an empty table.
    TableAtEnd(const char* variable, Text text, Write write)
        : m_variable(variable), m_text(std::move(text)), m_write(std::move(write))
    {}

    void TearDown() override
    {
        const std::string text = m_text();
        if (text.empty())
            return;
        std::cout << text;
        if (const char* const path = documentToWrite(m_variable))
            m_write(path);
    }

private:
    const char* m_variable;
    Text m_text;
    Write m_write;
};

} // namespace vxtest
