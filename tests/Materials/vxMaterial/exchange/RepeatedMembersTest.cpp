#include "vxMaterial/exchange/DocumentCheck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> pathsOf(const std::string& text)
{
    std::vector<std::string> paths;
    for (const auto& finding : vxCAE::findRepeatedMembers(text)) {
        EXPECT_EQ(finding.message, "stands twice or more; readers take the last");
        paths.push_back(finding.path);
    }
    return paths;
}

TEST(RepeatedMembers, AreFoundWhereverTheyStand)
{
    EXPECT_THAT(pathsOf(R"({"a": 1, "b": [{"c": 1}, {"c": 1, "d": {"e": 1, "e": 2}, "c": 2}], "a": 2, "a": 3})"),
                ElementsAre("$.b[1].d.e", "$.b[1].c", "$.a", "$.a"));
}

TEST(RepeatedMembers, AreNotMembersOfDifferentObjectsNorValuesNorComments)
{
    EXPECT_THAT(pathsOf(R"({"a": "a", "b": ["a", "a", {"a": "b"}], /* "a": 1, */ "c": {"a": 1}, "d": "b"})"),
                IsEmpty());
    EXPECT_THAT(pathsOf(R"([{"a": 1}, {"a": 1}])"), IsEmpty());
    EXPECT_THAT(pathsOf("7"), IsEmpty());
}

TEST(RepeatedMembers, AreSoughtInAnyTextWithoutHarm)
{
    for (const char* const text : {"", "]]}}", "{,,", "{\"", "\"", "{\"a\"\"a\"", "/", "/*", ","})
        pathsOf(text);
}

} // namespace
