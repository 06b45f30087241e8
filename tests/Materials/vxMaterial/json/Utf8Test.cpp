#include "vxMaterial/json/Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using vxjson::lengthOfUtf8;
using vxjson::shortened;

TEST(LengthOfUtf8, IsTheWholeTextIfItIsUtf8)
{
    for (const char* const text :
         {"", "a", "\xC3\xA4", "\xE9\x92\xA2", "\xF0\x9F\x94\xA9", "\xF4\x8F\xBF\xBF", "\xEF\xBF\xBF", "\xEE\x80\x80"})
        EXPECT_EQ(lengthOfUtf8(text), std::string(text).size());
}

TEST(LengthOfUtf8, EndsBeforeTheFirstByteThatIsNotUtf8)
{
    const char* const bad[] = {"\xff",
                               "\xc3",
                               "\xc3(",
                               "\x80",
                               "\xc0\x80",
                               "\xc1\xbf",
                               "\xe2\x82",
                               "\xe0\x9f\xbf",
                               "\xed\xa0\x80",
                               "\xf0\x8f\xbf\xbf",
                               "\xf4\x90\x80\x80",
                               "\xf5\x80\x80\x80",
                               "\xf8\x88\x80\x80\x80"};
    for (const char* const bytes : bad)
        EXPECT_EQ(lengthOfUtf8("abc" + std::string(bytes)), 3U);
}

TEST(LengthOfUtf8, IsTheSameWhereverTheByteIs)
{
    for (std::size_t at = 0; at < 200; ++at) {
        std::string text(200, 'a');
        text[at] = '\xC3';
        EXPECT_EQ(lengthOfUtf8(text), at);
        if (at + 1 < text.size()) {
            text[at + 1] = '\xA4';
            EXPECT_EQ(lengthOfUtf8(text), text.size());
        }
    }
}

TEST(Shortened, KeepsATextOfUpTo200Bytes)
{
    const std::string text(200, 'a');
    EXPECT_EQ(shortened(text), text);
}

TEST(Shortened, LeavesOutTheMiddleOfALongerText)
{
    EXPECT_EQ(shortened(std::string(100, 'a') + std::string(101, 'b')),
              std::string(80, 'a') + "..." + std::string(80, 'b'));
}

TEST(Shortened, CutsNoCharacter)
{
    std::string steel;
    for (int i = 0; i < 100; ++i)
        steel += "\xE9\x92\xA2"; // 80 is not a multiple of 3
    for (const char* const before : {"", "a", "ab"}) {
        const std::string shown = shortened(before + steel);
        EXPECT_EQ(lengthOfUtf8(shown), shown.size());
        EXPECT_GE(shown.size(), 156U);
    }
}

} // namespace
