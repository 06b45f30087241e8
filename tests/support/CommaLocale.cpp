#include "CommaLocale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>

namespace vxtest {

CommaLocale::CommaLocale() : m_before(std::locale())
{
    std::locale::global(std::locale("de_DE.UTF-8")); // sets the C locale too
    char text[8] = {};
    EXPECT_GT(std::snprintf(text, sizeof text, "%.1f", 0.5), 0);
    EXPECT_STREQ(text, "0,5") << "the locale does not write decimal commas";
}

CommaLocale::~CommaLocale()
{
    std::locale::global(m_before);
    std::setlocale(LC_ALL, "C");
}

} // namespace vxtest
