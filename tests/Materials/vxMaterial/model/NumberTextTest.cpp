#include "vxMaterial/model/NumberText.h"

#include "CommaLocale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <regex>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using vxMat::formatFixed;
using vxMat::formatGeneral;
using vxMat::formatNumber;
using vxMat::formatNumberList;
using vxMat::readNumber;
using vxMat::readNumberList;
using vxMat::readWholeNumber;

constexpr double infinity = std::numeric_limits<double>::infinity();

/// Returns the text of the exception that reading `text` throws, after its class.
std::string failureOf(const std::string& text)
{
    try {
        readNumber(text);
    } catch (const std::invalid_argument& error) {
        return std::string("invalid: ") + error.what();
    } catch (const std::out_of_range& error) {
        return std::string("range: ") + error.what();
    }
    return "none";
}

TEST(ReadNumber, TakesTheLongestNumberAndIgnoresTheRest)
{
    EXPECT_EQ(readNumber("7850 kg"), 7850.0);
    EXPECT_EQ(readNumber("1.5e3x"), 1500.0);
    EXPECT_EQ(readNumber("1e"), 1.0);
    EXPECT_EQ(readNumber("1e+"), 1.0);
    EXPECT_EQ(readNumber("2.5.1"), 2.5);
    EXPECT_EQ(readNumber("3,7"), 3.0);
}

TEST(ReadNumber, SkipsEveryKindOfBlankInFront)
{
    EXPECT_EQ(readNumber(" \t\n\v\f\r42"), 42.0);
}

TEST(ReadNumber, ReadsSignsAndBarePoints)
{
    EXPECT_EQ(readNumber("+5"), 5.0);
    EXPECT_EQ(readNumber("-.5"), -0.5);
    EXPECT_EQ(readNumber("5."), 5.0);
    EXPECT_TRUE(std::signbit(readNumber("-0")));
}

TEST(ReadNumber, ReadsHexadecimalInfinityAndNotANumber)
{
    EXPECT_EQ(readNumber("0x1p4"), 16.0);
    EXPECT_EQ(readNumber("-0X.8"), -0.5);
    EXPECT_EQ(readNumber("0x"), 0.0);
    EXPECT_EQ(readNumber("0xg"), 0.0);
    EXPECT_EQ(readNumber("0x1p+-3"), 1.0);
    EXPECT_EQ(readNumber("0x1p-3"), 0.125);
    EXPECT_EQ(readNumber("inf"), infinity);
    EXPECT_EQ(readNumber("-Infinity"), -infinity);
    EXPECT_TRUE(std::isnan(readNumber("NaN")));
}

TEST(ReadNumber, RefusesWhatDoesNotBeginWithANumber)
{
    for (const char* const text : {"", " ", "on", "kg 7", "-", "+", ".", "-.", "e5", "+-5", "--5", ",5"})
        EXPECT_EQ(failureOf(text), "invalid: invalid stod argument") << '"' << text << '"';
}

TEST(ReadNumber, RefusesWhatADoubleCannotHold)
{
    for (const char* const text : {"1e999", "-1e999", "1e-999", "0x1p99999", "1e99999999999999999999", "0x1p-99999",
                                   "0x1p9223372036854775807", "0x.0001p+2000", "0x1000p-2000"})
        EXPECT_EQ(failureOf(text), "range: stod argument out of range") << text;
    EXPECT_EQ(failureOf(std::string(400, '9')), "range: stod argument out of range");
}

TEST(ReadNumber, ReadsTheLargestAndTheSmallestDouble)
{
    EXPECT_EQ(readNumber("1.7976931348623157e308"), DBL_MAX);
    EXPECT_EQ(readNumber("2.2250738585072014e-308"), DBL_MIN);
    EXPECT_EQ(readNumber("5e-324"), 5e-324);
}

TEST(ReadNumberList, ReadsNumbersWithAnySeparators)
{
    EXPECT_THAT(readNumberList("450, 608,679"), ElementsAre(450.0, 608.0, 679.0));
    EXPECT_THAT(readNumberList("1;2 3"), ElementsAre(1.0, 2.0, 3.0));
    EXPECT_THAT(readNumberList("a1b2c"), ElementsAre(1.0, 2.0));
}

TEST(ReadNumberList, FindsNothingInTextWithoutDigits)
{
    EXPECT_THAT(readNumberList("abc"), IsEmpty());
    EXPECT_THAT(readNumberList(""), IsEmpty());
    EXPECT_THAT(readNumberList("- . -. e"), IsEmpty());
}

TEST(ReadNumberList, SignBelongsToTheNumberThatFollowsIt)
{
    EXPECT_THAT(readNumberList("1-2+3"), ElementsAre(1.0, -2.0, 3.0));
    EXPECT_THAT(readNumberList("- 4"), ElementsAre(4.0));
    EXPECT_THAT(readNumberList("--5"), ElementsAre(-5.0));
}

TEST(ReadNumberList, ExponentCountsOnlyWithDigits)
{
    EXPECT_THAT(readNumberList("1.5e3"), ElementsAre(1500.0));
    EXPECT_THAT(readNumberList("1e"), ElementsAre(1.0));
    EXPECT_THAT(readNumberList("1e+ 2E-1"), ElementsAre(1.0, 0.2));
}

TEST(ReadNumberList, ReadsBarePointsOnEitherSide)
{
    EXPECT_THAT(readNumberList(".5"), ElementsAre(0.5));
    EXPECT_THAT(readNumberList("5."), ElementsAre(5.0));
    EXPECT_THAT(readNumberList("1..2"), ElementsAre(1.0, 0.2));
    EXPECT_THAT(readNumberList("..5"), ElementsAre(0.5));
}

TEST(ReadNumberList, DoesNotKnowHexadecimal)
{
    EXPECT_THAT(readNumberList("0x10"), ElementsAre(0.0, 10.0));
}

TEST(ReadNumberList, RefusesANumberThatADoubleCannotHold)
{
    EXPECT_THROW(readNumberList("1, 1e999"), std::out_of_range);
}

TEST(ReadNumberList, GivesWhatTheExpressionOfItsDefinitionGives)
{
    const std::regex expression("[+-]?(?=[.]?[0-9])[0-9]*(?:[.][0-9]*)?(?:[Ee][+-]?[0-9]+)?");
    const std::string letters = "0123456789.+-eE,; x";
    std::mt19937 random(20261121);
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t length = random() % 14; text.size() < length;)
            text += letters[random() % letters.size()];

        std::vector<double> expected;
        bool inRange = true;
        for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match) {
            const double number = std::strtod(match->str().c_str(), nullptr);
            const std::string mantissa = match->str().substr(0, match->str().find_first_of("eE"));
            const bool writtenAsZero = mantissa.find_first_of("123456789") == std::string::npos;
            inRange = inRange && std::isfinite(number) && (number != 0.0 || writtenAsZero);
            expected.push_back(number);
        }
        SCOPED_TRACE('"' + text + '"');
        if (inRange) {
            EXPECT_EQ(readNumberList(text), expected);
        } else {
            EXPECT_THROW(readNumberList(text), std::out_of_range);
        }
    }
}

TEST(ReadNumberList, SurvivesAMegabyteOfDigits)
{
    const std::string digits(1 << 20, '7');
    EXPECT_THROW(readNumberList(digits), std::out_of_range);
    EXPECT_THAT(readNumberList("0." + digits), ElementsAre(testing::DoubleNear(7.0 / 9.0, 1e-15)));
    EXPECT_THAT(readNumberList(std::string(1 << 20, '.') + "5"), ElementsAre(0.5));
    EXPECT_THAT(readNumberList(std::string(1 << 20, '-')), IsEmpty());
}

TEST(ReadWholeNumber, TakesOneNumberWithBlanksAround)
{
    EXPECT_EQ(readWholeNumber(" 0.3\t"), 0.3);
    EXPECT_EQ(readWholeNumber("-1e3"), -1000.0);
}

TEST(ReadWholeNumber, IsAbsentIfAnythingElseIsInTheText)
{
    for (const char* const text : {"", " ", "7850 kg", "1 2", "abc", "0.3.", "1,5", "0x10", "0x.4", "infinity", "+nan",
                                   "nan(1)", "1e", "e5", "+", "--1"})
        EXPECT_EQ(readWholeNumber(text), std::nullopt) << '"' << text << '"';
}

TEST(ReadWholeNumber, IsInfiniteBeyondTheRangeAndZeroBelowIt)
{
    EXPECT_EQ(readWholeNumber("1e999"), infinity);
    EXPECT_EQ(readWholeNumber("-1e999"), -infinity);
    EXPECT_EQ(readWholeNumber("1e-999"), 0.0);
    EXPECT_EQ(readWholeNumber("1e-99999999999999999999"), 0.0);
    EXPECT_EQ(readWholeNumber("0." + std::string(500, '0') + "1"), 0.0);
    EXPECT_EQ(readWholeNumber(std::string(500, '1')), infinity);
    EXPECT_EQ(readWholeNumber("0.0001e+999"), infinity);
    EXPECT_EQ(readWholeNumber("1000e-999"), 0.0);
}

TEST(ReadWholeNumber, ReadsTheLargestExponentsAsInfinityOrZero)
{
    EXPECT_EQ(readWholeNumber("1e9223372036854775807"), infinity);
    EXPECT_EQ(readWholeNumber("1e+9223372036854775808"), infinity);
    EXPECT_EQ(readWholeNumber("0.01e-9223372036854775808"), 0.0);
    EXPECT_EQ(readWholeNumber("1e-9223372036854775809"), 0.0);
}

TEST(ReadWholeNumber, KnowsInfinityAndNotANumberByTheirShortNames)
{
    EXPECT_EQ(readWholeNumber("inf"), infinity);
    EXPECT_EQ(readWholeNumber("+INF"), infinity);
    EXPECT_EQ(readWholeNumber(" -Inf "), -infinity);
    EXPECT_TRUE(std::isnan(readWholeNumber("NaN").value_or(0.0)));
}

TEST(FormatNumber, GivesTheShortestTextThatReadsBack)
{
    EXPECT_EQ(formatNumber(7850.0), "7850");
    EXPECT_EQ(formatNumber(0.3), "0.3");
    EXPECT_EQ(formatNumber(2e11), "2e+11");
    EXPECT_EQ(formatNumber(DBL_MAX), "1.7976931348623157e+308");
    EXPECT_EQ(formatNumber(1.44e-07), "1.44e-07");
    EXPECT_EQ(formatNumber(-0.0), "-0");
}

TEST(FormatNumber, ReadsBackToTheSameBitsForAnyDouble)
{
    std::mt19937_64 random(7);
    for (int round = 0; round < 20000; ++round) {
        const std::uint64_t bits = random();
        double number = 0.0;
        static_assert(sizeof number == sizeof bits);
        std::memcpy(&number, &bits, sizeof number);
        if (!std::isfinite(number))
            continue;
        ASSERT_EQ(readNumber(formatNumber(number)), number);
    }
}

TEST(FormatNumberList, JoinsByCommaAndBlank)
{
    EXPECT_EQ(formatNumberList({0.0, 0.05, 780.0}), "0, 0.05, 780");
    EXPECT_EQ(formatNumberList({}), "");
}

TEST(FormatFixed, HasSixDecimalsAndNoExponent)
{
    EXPECT_EQ(formatFixed(2e11), "200000000000.000000");
    EXPECT_EQ(formatFixed(-0.3), "-0.300000");
    EXPECT_EQ(formatFixed(1e-9), "0.000000");
    EXPECT_EQ(formatFixed(DBL_MAX).size(), 309U + 7U);
}

TEST(FormatGeneral, HasSixSignificantDigits)
{
    EXPECT_EQ(formatGeneral(0.0), "0");
    EXPECT_EQ(formatGeneral(1000000.0), "1e+06");
    EXPECT_EQ(formatGeneral(2e11), "2e+11");
    EXPECT_EQ(formatGeneral(123456.7), "123457");
    EXPECT_EQ(formatGeneral(0.0001), "0.0001");
    EXPECT_EQ(formatGeneral(0.00001), "1e-05");
}

TEST(NumberText, KeepsThePointUnderACommaLocale)
{
    const vxtest::CommaLocale comma;
    EXPECT_EQ(readNumber("0.5"), 0.5);
    EXPECT_EQ(readNumber("0,5"), 0.0);
    EXPECT_THAT(readNumberList("0.5, 1.5"), ElementsAre(0.5, 1.5));
    EXPECT_EQ(readWholeNumber("0.5"), 0.5);
    EXPECT_EQ(readWholeNumber("0,5"), std::nullopt);
    EXPECT_EQ(formatNumber(1234.5), "1234.5");
    EXPECT_EQ(formatFixed(1234.5), "1234.500000");
    EXPECT_EQ(formatGeneral(1234.5), "1234.5");
}

TEST(AsciiCase, TouchesNothingButTheLettersAToZ)
{
    EXPECT_EQ(vxMat::toUpperAscii("Mises-1 \xc3\xa4z"), "MISES-1 \xc3\xa4Z");
    EXPECT_TRUE(vxMat::equalIgnoringAsciiCase("Drucker-Prager", "DRUCKER-PRAGER"));
    EXPECT_FALSE(vxMat::equalIgnoringAsciiCase("Mises", "Mises "));
    EXPECT_FALSE(vxMat::equalIgnoringAsciiCase("[", "{"));
}

TEST(ReadLeadingNumber, ReturnsTheTextAfterTheNumber)
{
    const auto read = [](std::string_view text) {
        const vxMat::LeadingNumber leading = vxMat::readLeadingNumber(text);
        return std::pair(leading.number, std::string(leading.rest));
    };
    EXPECT_EQ(read("  7850 kg "), std::pair(7850.0, std::string(" kg ")));
    EXPECT_EQ(read("2,1e11"), std::pair(2.0, std::string(",1e11")));
    EXPECT_EQ(read("-1e"), std::pair(-1.0, std::string("e")));
    EXPECT_EQ(read("0x1g"), std::pair(1.0, std::string("g")));
    EXPECT_EQ(read("5"), std::pair(5.0, std::string()));
    EXPECT_THROW(read("kg"), std::invalid_argument);
    EXPECT_THROW(read("1e999 kg"), std::out_of_range);
}

} // namespace
