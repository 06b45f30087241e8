#include "vxMaterial/json/JsonText.h"

#include "CommaLocale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <string>

namespace {

using testing::HasSubstr;
using vxjson::JsonDialect;
using vxjson::JsonError;
using vxjson::readJsonText;

JsonError errorOf(const std::string& text)
{
    const auto reading = readJsonText(text);
    EXPECT_TRUE(reading.error) << text.substr(0, 80);
    EXPECT_TRUE(reading.document.isNull());
    return reading.error.value_or(JsonError());
}

TEST(ReadJsonText, GivesTheDocument)
{
    const auto reading = readJsonText(R"({"a": [1, 2.5, "x"]} // a comment)");
    EXPECT_FALSE(reading.error);
    EXPECT_EQ(reading.document["a"][1], 2.5);
}

TEST(ReadJsonText, NamesLineAndColumnOfAnError)
{
    const JsonError error = errorOf("{\n  \"a\": 1,\n  \"b\": }");
    EXPECT_EQ(error.line, 3);
    EXPECT_EQ(error.column, 8);
    EXPECT_EQ(describe(error), "line 3, column 8: a value is needed here");
}

TEST(ReadJsonText, CountsColumnsInCharacters)
{
    EXPECT_EQ(errorOf("[\"\xE9\x92\xA2\xC3\xA4\", x]").column, 8);
    EXPECT_EQ(errorOf("\xEF\xBB\xBF[x]").column, 2);
}

/// An invalid text and its error message.
struct Wrong
{
    const char* text;
    const char* message;
};

TEST(ReadJsonText, SaysWhatIsWrongAndWhatIsNeeded)
{
    const Wrong wrongs[] = {
        {"{\"a\" 1}", "line 1, column 6: a colon is needed after the name of a member"},
        {"{\"a\": 1 \"b\": 2}", "line 1, column 9: a comma or } is needed here"},
        {"[1 2]", "line 1, column 4: a comma or ] is needed here"},
        {"{a: 1}", "line 1, column 2: the name of a member, in double quotes, is needed here"},
        {"{'a': 1}", "line 1, column 2: the name of a member, in double quotes, is needed here"},
        {"[steel]", "line 1, column 2: 'steel' is not a JSON value"},
        {"[True]", "line 1, column 2: 'True' is not a JSON value"},
        {"[nul]", "line 1, column 2: 'nul' is not a JSON value"},
        {"[1, 07850]", "line 1, column 5: '07850' is not a number"},
        {"{\"a\": [1, 2", "line 1, column 12: the text ends too early"},
        {"{\"a\":\n", "line 2, column 1: the text ends too early"},
        {"[\"open", "line 1, column 7: the closing quote of a text is missing"},
        {"{} x", "line 1, column 4: there is more text after the end of the document"},
        {"[]]", "line 1, column 3: there is more text after the end of the document"},
        {"/* open", "line 1, column 8: a comment that does not end"},
        {R"(["\x41"])", R"(line 1, column 3: '\x' is not an escape of JSON)"},
        {R"(["\u12"])", R"(line 1, column 3: the escape \u needs four hexadecimal digits)"},
        {"[\"a\tb\"]", "line 1, column 4: a control character in a text, which must be written as an escape"},
        {" \n", "line 2, column 1: there is no value in the text"},
    };
    for (const Wrong& wrong : wrongs)
        EXPECT_EQ(describe(errorOf(wrong.text)), wrong.message) << wrong.text;
}

TEST(ReadJsonText, RefusesControlCharactersAsTheyAre)
{
    for (char c = 1; c < 0x20; ++c) {
        EXPECT_EQ(errorOf(std::string("[\"") + c + "\"]").column, 3) << static_cast<int>(c);
        if (c != '\t' && c != '\n' && c != '\r') {
            EXPECT_EQ(errorOf(std::string("[") + c + "]").column, 2) << static_cast<int>(c);
        }
    }
    // Long enough for a reader that checks many characters at once.
    for (std::size_t at = 0; at < 64; ++at) {
        std::string text(64, 'a');
        text[at] = '\x1F';
        EXPECT_EQ(errorOf("[\"" + text + "\"]").column, static_cast<int>(at) + 3);
    }
    EXPECT_FALSE(readJsonText("[\"\x7F\"]").error);
}

TEST(ReadJsonText, RefusesCommentsInTheStrictDialect)
{
    for (const char* const text : {"// a\n{}", "{/* a */}", "{\"a\": 1, // a\n\"b\": 2}", "{\"a\": /**/ 1}",
                                   "[1, /* a */ 2]", "{} // a", "[] /", "[1 / 2]"})
    {
        const auto reading = readJsonText(text, JsonDialect::Strict);
        ASSERT_TRUE(reading.error) << text;
        EXPECT_EQ(reading.error->column, static_cast<int>(std::string(text).find('/')) + 1) << text;
    }
    EXPECT_FALSE(readJsonText(R"({"a": "// no comment", "/*": "*/"})", JsonDialect::Strict).error);
}

TEST(ReadJsonText, RefusesMembersThatAreThereTwiceInTheStrictDialect)
{
    const std::string text = R"({"a": 1, "b": {"a": 1, "a": 2}})";
    EXPECT_TRUE(readJsonText(text, JsonDialect::Strict).error);
    EXPECT_EQ(readJsonText(text).document["b"]["a"], 2);
}

TEST(ReadJsonText, RefusesHalvesOfCharacters)
{
    for (const JsonDialect dialect : {JsonDialect::Strict, JsonDialect::WithComments}) {
        for (const char* const text :
             {R"("\uD800")", R"("\uDC00")", R"("\udfff\ud800")", R"("\uD800\uD800")", R"("\uD800\u0041")",
              R"("\uD83Dx\uDE00")", R"("\\\uD800")", R"("\uD83D\uDE00\uDE00")"})
        {
            const auto reading = readJsonText("[7,\n " + std::string(text) + "]", dialect);
            ASSERT_TRUE(reading.error) << text;
            EXPECT_EQ(reading.error->line, 2);
            EXPECT_THAT(describe(*reading.error), HasSubstr("half of a surrogate pair"));
        }
        EXPECT_TRUE(readJsonText(R"({"\udc00": 1})", dialect).error);
        const auto reading = readJsonText(R"(["\uD83D\uDE00", "\\uD800", "\"\\\\uDC00", "\uD7FF\uE000"])", dialect);
        ASSERT_FALSE(reading.error);
        EXPECT_EQ(reading.document[0], "\xF0\x9F\x98\x80");
        EXPECT_EQ(reading.document[1], "\\uD800");
        EXPECT_EQ(reading.document[3], "\xED\x9F\xBF\xEE\x80\x80");
    }
}

TEST(ReadJsonText, RefusesWhatIsNotUtf8WhereverItIs)
{
    for (std::size_t at = 0; at < 200; ++at) {
        std::string text(200, 'a');
        text[at] = '\xC3';
        EXPECT_EQ(errorOf("[\"" + text + "\"]").column, static_cast<int>(at) + 3);
    }
    EXPECT_EQ(describe(errorOf("[1, \xFF]")), "line 1, column 5: the text is not UTF-8");
    EXPECT_EQ(describe(errorOf("[1] // \xFF")), "line 1, column 8: the text is not UTF-8");
}

TEST(ReadJsonText, RefusesTruncatedEmptyAndForeignTexts)
{
    for (const char* const text : {"", " ", "{", "{\"a\": [1, 2", "{\"a\"", "\"open", "steel", "<xml/>", "{} x"})
        EXPECT_NE(errorOf(text).line, 0) << text;
}

TEST(ReadJsonText, RefusesANumberBeyondADouble)
{
    for (const char* const number : {"1e999", "-1e999", "1e-999", "0.1e-400"}) {
        const JsonError error = errorOf("{\"a\": " + std::string(number) + "}");
        EXPECT_EQ(error.line, 1);
        EXPECT_EQ(error.column, 7);
        EXPECT_THAT(describe(error),
                    testing::EndsWith("'" + std::string(number) + "' is beyond the range of a double"));
    }
    EXPECT_FALSE(readJsonText("[0.0e-999, -0, 5e-324, 1.7976931348623157e308, 12345678901234567890123]").error);
    EXPECT_FALSE(readJsonText("[0.001e310, 0.0000000001e318]").error);
    // The exponent or the digits before the point exceed the range, although the number does not.
    for (const std::string& number : {std::string("0e999"), std::string(400, '1') + "e-200"})
        EXPECT_EQ(errorOf("[" + number + "]").column, 2) << number;
}

TEST(ReadJsonText, RefusesWhatIsNoNumberInJson)
{
    for (const char* const number : {"-", "+1", "01", "1.", ".5", "1e", "1e+", "0x10", "1.5.2", "--1", "1a"}) {
        const JsonError error = errorOf("[1,\n " + std::string(number) + "]");
        EXPECT_EQ(error.line, 2) << number;
        EXPECT_EQ(error.column, 2) << number;
        EXPECT_THAT(describe(error), testing::EndsWith("'" + std::string(number) + "' is not a number"));
    }
    for (const char* const word : {"nan", "NaN", "Infinity", "-Infinity", "nul", "True"})
        EXPECT_EQ(errorOf("[" + std::string(word) + "]").column, 2) << word;
}

TEST(ReadJsonText, RefusesTrailingCommas)
{
    EXPECT_NE(errorOf("[1,]").line, 0);
    EXPECT_NE(errorOf("{\"a\": 1,}").line, 0);
}

TEST(ReadJsonText, RefusesBytesThatAreNotUtf8)
{
    const char* const bad[] = {"\xff",
                               "\xc3",
                               "\xc3(",
                               "\xc0\x80",
                               "\xe2\x82",
                               "\xe0\x80\x80",
                               "\xed\xa0\x80",
                               "\xf0\x80\x80\x80",
                               "\xf4\x90\x80\x80",
                               "\xf8\x88\x80\x80\x80"};
    for (const char* const bytes : bad) {
        const JsonError error = errorOf("{\n\"a\": \"" + std::string(bytes) + "\"}");
        EXPECT_EQ(error.line, 2);
        EXPECT_EQ(error.column, 7);
        EXPECT_THAT(describe(error), HasSubstr("the text is not UTF-8"));
    }
    const auto reading = readJsonText("{\"a\": \"\xc3\xa4\xe6\x9d\x90\xf0\x9f\x94\xa9\"}");
    ASSERT_FALSE(reading.error);
    EXPECT_EQ(reading.document["a"].asString(), "\xc3\xa4\xe6\x9d\x90\xf0\x9f\x94\xa9");
}

TEST(ReadJsonText, RefusesAZeroByteAndWhatFollowsIt)
{
    const JsonError error = errorOf(std::string("{}\0garbage", 10));
    EXPECT_EQ(error.column, 3);
    EXPECT_THAT(describe(error), HasSubstr("a zero byte"));
}

TEST(ReadJsonText, RefusesATextOfMoreThanTwoGibibytes)
{
    // Its length is sufficient to refuse it; no byte of it is read.
    const char first = '[';
    const auto reading = readJsonText({&first, vxjson::longestText + 1});
    ASSERT_TRUE(reading.error);
    EXPECT_EQ(describe(*reading.error), "the text is longer than 2 GiB");
}

TEST(ReadJsonText, SkipsAByteOrderMark)
{
    EXPECT_FALSE(readJsonText("\xef\xbb\xbf{\"a\": 1}").error);
}

TEST(ReadJsonText, ShortensTheMessageAboutAVeryLongNumber)
{
    const JsonError error = errorOf("{\"a\": " + std::string(200000, '9') + "}");
    EXPECT_LT(describe(error).size(), 300U);
    EXPECT_THAT(describe(error), HasSubstr("9...9"));
    EXPECT_THAT(describe(error), HasSubstr("beyond the range"));
}

TEST(ReadJsonText, TakesATextOfAnyLengthInAValue)
{
    const std::string digits(200000, '7');
    const auto reading = readJsonText("{\"a\": \"" + digits + "\"}");
    EXPECT_FALSE(reading.error);
    EXPECT_EQ(reading.document["a"].asString(), digits);
}

TEST(ReadJsonText, TellsWhereADocumentIsNestedTooDeep)
{
    // Brackets in texts and comments do not count.
    const std::string start = "/* [[ */ {\"]\\\"[\": 0, // [\n\"a\": ";
    const JsonError arrays = errorOf(start + std::string(100000, '['));
    EXPECT_EQ(arrays.line, 2);
    EXPECT_EQ(arrays.column, 5 + 1000) << "the 1000th array, in the object, is the 1001st level";
    EXPECT_THAT(describe(arrays), HasSubstr("nested more than 1000 levels deep"));

    std::string objects = start;
    for (int level = 0; level < 100000; ++level)
        objects += "{\"b\":";
    EXPECT_EQ(errorOf(objects).line, 2);
    EXPECT_THAT(describe(errorOf(objects)), HasSubstr("nested more than 1000 levels deep"));
}

TEST(ReadJsonText, TakesAThousandLevels)
{
    EXPECT_FALSE(readJsonText(std::string(1000, '[') + "5" + std::string(1000, ']')).error);
    EXPECT_EQ(errorOf(std::string(1001, '[') + std::string(1001, ']')).column, 1001);
}

TEST(ReadJsonText, ReadsPointsUnderACommaLocale)
{
    const vxtest::CommaLocale comma;
    const auto reading = readJsonText(R"({"a": 0.3, "b": 1234567.25})");
    ASSERT_FALSE(reading.error);
    EXPECT_EQ(reading.document["a"].asDouble(), 0.3);
    EXPECT_EQ(reading.document["b"].asDouble(), 1234567.25);
}

TEST(ReadJsonText, LeavesBothLocalesOfTheProcessAsTheyWere)
{
    const vxtest::CommaLocale comma;
    // A program may have commas in C++ and points in C, or the reverse.
    std::setlocale(LC_NUMERIC, "C");
    const std::string before = std::setlocale(LC_ALL, nullptr);
    EXPECT_FALSE(readJsonText("{}").error);
    EXPECT_EQ(std::locale().name(), "de_DE.UTF-8");
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
}

TEST(StyledText, CannotExpressWhatIsNotFinite)
{
    Json::Value document;
    document["a"] = std::numeric_limits<double>::infinity();
    document["b"] = std::nan("");
    EXPECT_EQ(vxjson::toStyledText(document), "{\n   \"a\" : 1e+9999,\n   \"b\" : null\n}\n");
}

TEST(StyledText, IndentsByThreeBlanksAndSortsMembers)
{
    Json::Value document;
    document["b"] = 0.5;
    document["a"] = Json::arrayValue;
    EXPECT_EQ(vxjson::toStyledText(document), "{\n   \"a\" : [],\n   \"b\" : 0.5\n}\n");
}

TEST(StyledText, KeepsThePointUnderACommaLocale)
{
    const vxtest::CommaLocale comma;
    Json::Value document;
    document["b"] = 1234.5;
    EXPECT_EQ(vxjson::toStyledText(document), "{\n   \"b\" : 1234.5\n}\n");
}

} // namespace
