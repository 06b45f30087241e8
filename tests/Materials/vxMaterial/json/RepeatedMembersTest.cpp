#include "vxMaterial/json/JsonText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using vxjson::JsonDialect;
using vxjson::readJsonText;

std::vector<std::string> pathsOf(const std::string& text)
{
    const auto reading = readJsonText(text);
    EXPECT_FALSE(reading.error) << text.substr(0, 80);
    return reading.repeatedMembers;
}

TEST(RepeatedMembers, AreFoundWhereverTheyAreEachOnce)
{
    EXPECT_THAT(pathsOf(R"({"a": 1, "b": [{"c": 1}, {"c": 1, "d": {"e": 1, "e": 2}, "c": 2}], "a": 2, "a": 3})"),
                ElementsAre("$.b[1].d.e", "$.b[1].c", "$.a"));
    EXPECT_THAT(pathsOf(R"([7, [], {}, [0, {"a": 1, "a": 2}]])"), ElementsAre("$[3][1].a"));
}

TEST(RepeatedMembers, AreNotMembersOfDifferentObjectsNorValuesNorComments)
{
    EXPECT_THAT(pathsOf(R"({"a": "a", "b": ["a", "a", {"a": "b"}], /* "a": 1, */ "c": {"a": 1}, "d": "b"})"),
                IsEmpty());
    EXPECT_THAT(pathsOf(R"([{"a": 1}, {"a": 1}])"), IsEmpty());
    EXPECT_THAT(pathsOf("7"), IsEmpty());
}

TEST(RepeatedMembers, AreFoundHoweverTheirNamesAreWritten)
{
    EXPECT_THAT(pathsOf(R"({"prop_value": 1, "prop_v\u0061lue": 2})"), ElementsAre("$.prop_value"));
    EXPECT_THAT(pathsOf("{\"\xC3\xA4\": 1, \"\\u00e4\": 2, \"\\/\": 1, \"/\": 2}"), ElementsAre("$.\xC3\xA4", "$./"));
    EXPECT_THAT(pathsOf(R"({"a\u0000b": 1, "a\u0000c": 2})"), IsEmpty());
    const auto strict = readJsonText("{\"prop_value\": 1,\n \"prop_v\\u0061lue\": 2}", JsonDialect::Strict);
    ASSERT_TRUE(strict.error);
    EXPECT_EQ(describe(*strict.error), "line 2, column 2: the member \"prop_value\" occurs more than once");
}

TEST(RepeatedMembers, OfTheTextAreReadFromTheLast)
{
    EXPECT_EQ(readJsonText(R"({"a": 1, "b": 2, "a": 3})").document["a"], 3);
    EXPECT_EQ(vxjson::JsonTree::read(R"({"a": 1, "b": 2, "a": 3})", JsonDialect::WithComments).root()["a"].number(),
              3.0);
}

TEST(RepeatedMembers, AreFoundAmongManyMembers)
{
    std::string text = "{";
    for (int i = 0; i < 1000; ++i)
        text += "\"m" + std::to_string(i) + "\": 0, ";
    EXPECT_THAT(pathsOf(text + "\"last\": 0}"), IsEmpty());
    EXPECT_THAT(pathsOf(text + R"("m999": 0, "m0": 0, "m0": 0})"), ElementsAre("$.m999", "$.m0"));
}

TEST(RepeatedMembers, AreNamedByShortPathsAndNotWithoutEnd)
{
    // The full path of each of these members would be longer than all of them.
    std::string text = std::string(900, '[') + "{\"x\": 0";
    for (int i = 0; i < 5000; ++i)
        text += ", \"m" + std::to_string(i) + "\": 0, \"m" + std::to_string(i) + "\": 0";
    const auto paths = pathsOf(text + "}" + std::string(900, ']'));
    ASSERT_THAT(paths, SizeIs(vxjson::mostRepeatedMembers));
    for (const std::string& path : paths)
        ASSERT_LE(path.size(), 200U);
    EXPECT_THAT(paths[0], testing::EndsWith("[0][0].m0"));
}

} // namespace
