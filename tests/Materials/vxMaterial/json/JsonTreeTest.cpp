#include "vxMaterial/json/JsonTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <utility>

namespace {

using vxjson::JsonDialect;
using vxjson::JsonTree;

JsonTree read(const std::string& text)
{
    JsonTree tree = JsonTree::read(text, JsonDialect::Strict);
    EXPECT_FALSE(tree.error()) << describe(*tree.error());
    return tree;
}

TEST(JsonTree, TellsTheKindsOfValuesApart)
{
    const JsonTree tree = read(R"([null, true, 7, 0.5, "x", [], {}])");
    const auto kindsOf = [&](std::size_t index) {
        const auto node = tree.root().element(index);
        return std::string(node.isNull() ? "null " : "") + (node.isBoolean() ? "boolean " : "") +
               (node.isNumber() ? "number " : "") + (node.isText() ? "text " : "") + (node.isArray() ? "array " : "") +
               (node.isObject() ? "object " : "");
    };
    const char* const kinds[] = {"null ", "boolean ", "number ", "number ", "text ", "array ", "object "};
    ASSERT_EQ(tree.root().size(), std::size(kinds));
    for (std::size_t i = 0; i < std::size(kinds); ++i)
        EXPECT_EQ(kindsOf(i), kinds[i]);
}

TEST(JsonTree, GivesValuesOfOtherKindsAsNothing)
{
    const JsonTree tree = read(R"(["x", 7, {"a": 1}])");
    const auto text = tree.root().element(0);
    EXPECT_EQ(text.number(), 0.0);
    EXPECT_FALSE(text.whole());
    EXPECT_FALSE(text.boolean());
    EXPECT_EQ(text.size(), 0U);
    EXPECT_TRUE(text["a"].isNull());
    EXPECT_EQ(tree.root().element(1).text(), "");
    EXPECT_TRUE(tree.root()["a"].isNull());
    EXPECT_TRUE(tree.root().element(2)["b"].isNull());
}

TEST(JsonTree, KeepsTheOrderOfMembers)
{
    const JsonTree tree = read(R"({"b": 1, "a": 2, "c\n": 3})");
    ASSERT_EQ(tree.root().size(), 3U);
    EXPECT_EQ(tree.root().memberName(0), "b");
    EXPECT_EQ(tree.root().memberName(1), "a");
    EXPECT_EQ(tree.root().memberName(2), "c\n");
    EXPECT_EQ(tree.root().member(1).number(), 2.0);
    EXPECT_EQ(tree.root()["c\n"].number(), 3.0);
}

TEST(JsonTree, ReadsTextsWithTheirEscapes)
{
    const JsonTree tree = read(R"(["\"\\\/\b\f\n\r\t\u00e4\ud83d\udd29", "a\u0000b", ""])");
    EXPECT_EQ(tree.root().element(0).text(), "\"\\/\b\f\n\r\t\xC3\xA4\xF0\x9F\x94\xA9");
    EXPECT_EQ(tree.root().element(1).text(), std::string("a\0b", 3));
    EXPECT_EQ(tree.root().element(2).text(), "");
}

TEST(JsonTree, OutlivesTheTextAndAMove)
{
    auto text = std::make_unique<std::string>(R"({"name": "a name that is longer than a short one"})");
    JsonTree first = read(*text);
    text.reset();
    const JsonTree second = std::move(first);
    EXPECT_EQ(second.root()["name"].text(), "a name that is longer than a short one");
}

TEST(JsonTree, TellsWholeNumbersThatFitHoweverTheyAreWritten)
{
    const JsonTree tree = read("[0, -0, 7.0, 7e2, 1.5, 9223372036854775807, -9223372036854775808, "
                               "9223372036854775808, 18446744073709551615, 18446744073709551616, -1e300, 1e15]");
    const auto whole = [&](std::size_t index) { return tree.root().element(index).whole(); };
    EXPECT_EQ(whole(0), 0);
    EXPECT_EQ(whole(1), 0);
    EXPECT_EQ(whole(2), 7);
    EXPECT_EQ(whole(3), 700);
    EXPECT_FALSE(whole(4));
    EXPECT_EQ(whole(5), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(whole(6), std::numeric_limits<std::int64_t>::min());
    for (std::size_t i = 7; i < 11; ++i)
        EXPECT_FALSE(whole(i)) << i;
    EXPECT_EQ(whole(11), 1000000000000000);
}

TEST(JsonTree, ReadsTheNearestDouble)
{
    // Readers that take a short cut are known to round these numbers wrongly.
    const std::pair<const char*, double> numbers[] = {
        {"9007199254740993", 9007199254740992.0},
        {"9007199254740993.0", 9007199254740992.0},
        {"9007199254740995.0", 9007199254740996.0},
        {"2.2250738585072012e-308", 2.2250738585072014e-308},
        {"2.2250738585072011e-308", 0x0.fffffffffffffp-1022},
        {"5e-324", 0x1p-1074},
        {"2.4703282292062328e-324", 0x1p-1074},
        {"1.7976931348623157e308", 0x1.fffffffffffffp1023},
        {"1.7976931348623158e308", 0x1.fffffffffffffp1023},
        {"0.1", 0x1.999999999999ap-4},
        {"3.1415926535897932384626433832795028841971", 0x1.921fb54442d18p1},
        {"1e23", 0x1.52d02c7e14af6p76},
        {"8.5e22", 0x1.1ffdbf6b2b2ebp76},
        {"6.631236846766476e-316", 0x0.0000008000000p-1022},
        {"18446744073709551616", 0x1p64},
        {"-9223372036854775809", -0x1p63},
    };
    for (const auto& [text, expected] : numbers)
        EXPECT_EQ(read("[" + std::string(text) + "]").root().element(0).number(), expected) << text;
    EXPECT_TRUE(std::signbit(read("[-0.0]").root().element(0).number()));
    EXPECT_FALSE(std::signbit(read("[-0]").root().element(0).number()));
}

TEST(JsonTree, ReadsEveryDoubleFromItsShortestText)
{
    std::mt19937_64 engine(20240229);
    std::array<char, 32> buffer{};
    for (int i = 0; i < 100000; ++i) {
        const std::uint64_t bits = engine();
        double number = 0.0;
        std::memcpy(&number, &bits, sizeof number);
        if (!std::isfinite(number))
            continue;
        const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
        const std::string text = "[" + std::string(buffer.data(), written.ptr) + "]";
        ASSERT_EQ(read(text).root().element(0).number(), number) << text;
    }
}

TEST(JsonTree, ReadsADigitAfterAHundredThousandOthers)
{
    // The middle between 1 and the next double, and a little more.
    const std::string half = "1.00000000000000011102230246251565404236316680908203125";
    EXPECT_EQ(read("[" + half + "]").root().element(0).number(), 1.0);
    EXPECT_EQ(read("[" + half + std::string(100000, '0') + "1]").root().element(0).number(), 1.0000000000000002);
}

TEST(JsonTree, BecomesAValueOfJsoncpp)
{
    const JsonTree tree = read(R"({"b": [null, true, -1, 18446744073709551615, 0.5, "x\u0000"], "a": {}, "": [[]]})");
    const Json::Value value = tree.root().toJsonValue();
    EXPECT_EQ(value["b"][0], Json::Value());
    EXPECT_EQ(value["b"][1], true);
    EXPECT_EQ(value["b"][2].type(), Json::intValue);
    EXPECT_EQ(value["b"][3].type(), Json::uintValue);
    EXPECT_EQ(value["b"][3].asUInt64(), 18446744073709551615U);
    EXPECT_EQ(value["b"][4], 0.5);
    EXPECT_EQ(value["b"][5].asString(), std::string("x\0", 2));
    EXPECT_EQ(value["a"].type(), Json::objectValue);
    EXPECT_EQ(value[""][0].type(), Json::arrayValue);
}

TEST(JsonTree, NeedsAnObjectOrArrayInTheStrictDialectAlone)
{
    for (const char* const text : {"7", " \"text\"", "null", "true", "\xEF\xBB\xBF 7"}) {
        const JsonTree strict = JsonTree::read(text, JsonDialect::Strict);
        ASSERT_TRUE(strict.error()) << text;
        EXPECT_THAT(describe(*strict.error()), testing::HasSubstr("an object or an array is needed"));
        EXPECT_TRUE(strict.root().isNull());
        EXPECT_FALSE(JsonTree::read(text, JsonDialect::WithComments).error()) << text;
    }
}

TEST(JsonTree, IsNullIfThereIsAnError)
{
    const JsonTree tree = JsonTree::read("[1, 2, 3", JsonDialect::Strict);
    EXPECT_TRUE(tree.error());
    EXPECT_TRUE(tree.root().isNull());
}

TEST(JsonTree, OfAnyBytesIsATreeOrAnError)
{
    const std::string pieces[] = {"{",    "}",     "[",    "]",    ",",   ":",    "\"",   "\\", "\\u",
                                  "d83d", "\"a\"", "/",    "*",    "/*",  "*/",   "//",   "\n", "-",
                                  "1",    "0.5e",  "e999", "null", "tru", "\xC3", "\xA4", " "};
    std::mt19937 engine(7);
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (int length = static_cast<int>(engine() % 12); length >= 0; --length)
            text += pieces[engine() % std::size(pieces)];
        for (const JsonDialect dialect : {JsonDialect::Strict, JsonDialect::WithComments}) {
            const JsonTree tree = JsonTree::read(text, dialect);
            if (tree.error()) {
                ASSERT_TRUE(tree.root().isNull()) << text;
                ASSERT_GE(tree.error()->line, 1) << text;
                ASSERT_LE(tree.error()->column, static_cast<int>(text.size()) + 1) << text;
            }
        }
    }
}

} // namespace
