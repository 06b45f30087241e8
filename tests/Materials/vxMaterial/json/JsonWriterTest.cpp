#include "vxMaterial/json/JsonWriter.h"

#include "CommaLocale.h"

#include "vxMaterial/json/JsonText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace {

using vxjson::JsonDialect;
using vxjson::JsonLayout;
using vxjson::JsonWriter;
using vxjson::readJsonText;

std::string textOf(const Json::Value& value)
{
    JsonWriter writer;
    writer.any(value);
    EXPECT_FALSE(writer.fault());
    return writer.take();
}

/// Returns the fault that the writer reports for a value that cannot be written.
std::string faultOf(const Json::Value& value)
{
    JsonWriter writer;
    writer.any(value);
    EXPECT_TRUE(writer.fault());
    return writer.fault() ? describe(*writer.fault()) : std::string();
}

TEST(JsonWriter, LaysOutBlocksAndLines)
{
    JsonWriter writer;
    writer.beginObject(JsonLayout::Block);
    writer.name("a");
    writer.beginArray(JsonLayout::Line);
    for (const double number : {1.0, 0.5}) {
        writer.element();
        writer.number(number);
    }
    writer.element();
    writer.beginObject(JsonLayout::Block); // inside a line, and therefore in the same line
    writer.name("b");
    writer.boolean(true);
    writer.endObject();
    writer.endArray();
    writer.name("c");
    writer.beginArray(JsonLayout::Block);
    writer.endArray();
    writer.name("d");
    writer.null();
    writer.endObject();
    EXPECT_EQ(writer.take(), "{\n  \"a\": [1, 0.5, {\"b\": true}],\n  \"c\": [],\n  \"d\": null\n}");
    EXPECT_FALSE(writer.fault());
}

TEST(JsonWriter, WritesTheShortestTextsOfNumbersInAnyLocale)
{
    const vxtest::CommaLocale comma;
    Json::Value numbers;
    for (const double number : {0.1, 1e23, 5e-324, 1.7976931348623157e308, -0.0, 2.0, 1e22})
        numbers.append(number);
    numbers.append(7);
    numbers.append(Json::Value::maxUInt64);
    numbers.append(Json::Value::minInt64);
    EXPECT_EQ(textOf(numbers), "[\n  0.1,\n  1e+23,\n  5e-324,\n  1.7976931348623157e+308,\n  -0.0,\n  2.0,\n  1e+22,\n"
                               "  7,\n  18446744073709551615,\n  -9223372036854775808\n]");
}

TEST(JsonWriter, WritesFloatsSoThatTheyAreReadBackAsTheSame)
{
    for (const float number : {0.1F, 1.0F / 3.0F, 1e-45F, 3.4028235e38F, 16777217.0F, 7.038531e-26F}) {
        JsonWriter writer;
        writer.number(number);
        const std::string text = writer.take();
        EXPECT_EQ(static_cast<float>(readJsonText(text).document.asDouble()), number) << text;
        EXPECT_LE(text.size(), 24U);
    }
    JsonWriter writer;
    writer.number(0.1F);
    EXPECT_EQ(writer.take(), "0.1");
}

TEST(JsonWriter, EscapesWhatJsonAndPeopleCannotRead)
{
    EXPECT_EQ(textOf(Json::Value("\"\\/\b\f\n\r\t\x01\x1F\x7F \xC3\xA4")),
              "\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0001\\u001f\\u007f \xC3\xA4\"");
    const std::string zero("a\0b", 3);
    EXPECT_EQ(textOf(Json::Value(zero)), "\"a\\u0000b\"");
}

TEST(JsonWriter, NamesTheFirstValueThatCannotBeWritten)
{
    Json::Value value;
    value["a"][0] = 1.0;
    value["a"][1] = std::numeric_limits<double>::infinity();
    value["b"] = "\xFF";
    EXPECT_EQ(faultOf(value), "\"a[1]\" is not a finite number");
    value["a"][1] = std::nan("");
    EXPECT_EQ(faultOf(value), "\"a[1]\" is not a finite number");
    value.removeMember("a");
    EXPECT_EQ(faultOf(value), "\"b\" is not UTF-8");
    Json::Value name;
    name["x"]["\xC0\x80"] = 1;
    EXPECT_THAT(faultOf(name), testing::HasSubstr("is not UTF-8"));
}

Json::Value nested(int levels)
{
    Json::Value value(Json::arrayValue);
    for (int level = 1; level < levels; ++level) {
        Json::Value outer(Json::arrayValue);
        outer.append(std::move(value));
        value = std::move(outer);
    }
    return value;
}

TEST(JsonWriter, WritesNoDeeperThanReadersRead)
{
    const std::string text = textOf(nested(1000));
    EXPECT_FALSE(readJsonText(text, JsonDialect::Strict).error);
    EXPECT_THAT(faultOf(nested(1001)), testing::HasSubstr("nested more than 1000 levels deep"));
    EXPECT_THAT(faultOf(nested(5000)), testing::HasSubstr("nested more than 1000 levels deep"));
}

TEST(JsonWriter, DoesNotIndentWithoutEnd)
{
    // With two blanks of indentation for each level, this would be a million blanks.
    EXPECT_LT(textOf(nested(1000)).size(), 10000U);
}

TEST(JsonWriter, WritesWhatReadsBackAsTheSame)
{
    const std::string text = R"({"a": [null, false, {"b": {}}, [], "\u0000\ud83d\udd29"], "": 0.1, "z": {"\n": -5}})";
    const Json::Value value = readJsonText(text).document;
    EXPECT_EQ(readJsonText(textOf(value), JsonDialect::Strict).document, value);
}

} // namespace
