#pragma once

#include <locale>
#include <string>

namespace vxtest {

/// Puts the whole process, C and C++, under a locale with decimal commas while it lives. The test fails when the
/// locale is not there: a test that runs under the C locale instead would show nothing.
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
