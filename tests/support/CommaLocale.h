#pragma once

#include <locale>
#include <string>

namespace vxtest {

/// Sets a C and C++ locale with decimal commas for the whole process. The destructor restores the previous locale. The
/// constructor throws if the locale does not exist, and the test fails if the locale has no decimal commas.
class CommaLocale
{
public:
    CommaLocale();
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    ~CommaLocale();

private:
    std::locale m_before;
};

} // namespace vxtest
