#include "vxMaterial/json/JsonPath.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using vxjson::JsonPath;

TEST(JsonPath, NamesMembersAndElements)
{
    JsonPath path;
    EXPECT_EQ(path.toText(), "");
    path.enter();
    path.setName("materials");
    path.enter();
    path.setIndex(3);
    path.enter();
    path.setName("name");
    EXPECT_EQ(path.toText(), "materials[3].name");
    path.leave();
    path.setIndex(4);
    EXPECT_EQ(path.toText(), "materials[4]");
    EXPECT_EQ(path.depth(), 2U);
}

TEST(JsonPath, IsShortHoweverDeepThePlaceIs)
{
    JsonPath path;
    for (std::size_t level = 0; level < 1000; ++level) {
        path.enter();
        path.setIndex(level);
    }
    const std::string text = path.toText();
    EXPECT_LE(text.size(), 200U);
    EXPECT_EQ(text.substr(0, 9), "[0][1][2]");
    EXPECT_EQ(text.substr(text.size() - 10), "[998][999]");
}

} // namespace
