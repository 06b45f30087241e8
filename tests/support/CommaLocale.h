#pragma once

#include <locale>
#include <string>

namespace vxtest {

/// Sets a locale with decimal commas for the whole process, C and C++, and restores the one before in its destructor.
/// The test fails if the locale does not exist, because it would prove nothing in the C locale.
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
