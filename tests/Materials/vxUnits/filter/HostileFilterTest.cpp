#include "LongText.h"
#include "Repetitions.h"

#include "vxUnits/Filter.h"
#include "vxUnits/FilterCompletion.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

/// Expressions that nobody types. None takes more than linear time, which the time limit of the tests would show.
namespace {

using vxtest::longLength;
using vxtest::repeated;
using vxUnits::completionsFor;
using vxUnits::readFilter;

TEST(HostileFilters, OfAHundredThousandCharactersAreReadOrRefused)
{
    for (const char* const part :
         {"(",       ")",        "not ", "and ",       "E > 1 and ", "E>",       "x",
          "x ",      "1 ",       "1..",  "1.. ",       "\"",         "\"a\" ",   "has ",
          "has E ",  "has x ",   "=",    "E = 1 or (", "\xFF",       "\xE2\x89", "wave speed in a ",
          "E 1..2 ", "(E > 1) ", "..",   "'",          "- ",         "E > 5 (",  "G > 1 furlong and ",
          "E > 5 x "})
    {
        const std::string tail = repeated(part);
        for (const std::string& text : {tail, "E > " + tail, "has " + tail, tail + " > 5"}) {
            const auto reading = readFilter(text);
            EXPECT_TRUE(reading || !reading.failure.message.text().empty()) << part;
            EXPECT_LE(reading.position + reading.length, text.size()) << part;
            EXPECT_LT(reading.failure.text().size(), 500U) << part;
            EXPECT_LT(completionsFor(text, text.size()).size(), 1000U) << part;
            if (vxtest::repetitions(false, true))
                break;
        }
    }
}

TEST(HostileFilters, WithManyConditionsAreEvaluatedWithoutDepth)
{
    std::string text;
    while (text.size() < longLength)
        text += "zinc or tin and ";
    const auto reading = readFilter(text + "lead");
    ASSERT_TRUE(reading);
    EXPECT_FALSE(reading.filter->matches(vxUnits::FilterSubject("copper")));
    EXPECT_TRUE(reading.filter->matches(vxUnits::FilterSubject("zinc")));
    EXPECT_TRUE(reading.filter->matches(vxUnits::FilterSubject("tin and lead")));
}

TEST(HostileFilters, OfAnyTokensAreReadOrRefusedWithAMessage)
{
    const char* const parts[] = {
        "E", "rho", " ", " ", " ",  "(",   ")",          "\"",    "and", "or",           "not",  "has",
        ">", "<=",  "=", "5", "..", "GPa", "Yield type", "Mises", "x",   "\xE2\x89\xA5", "\xFF", "furlong^-3/(m"};
    std::mt19937 random(20); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts in each run
    std::uniform_int_distribution<std::size_t> pick(0, std::size(parts) - 1);
    for (int i = 0; i < vxtest::repetitions(20000, 2000); ++i) {
        std::string text;
        for (std::size_t count = pick(random); count > 0; --count)
            text += parts[pick(random)];
        const auto reading = readFilter(text);
        EXPECT_TRUE(reading || !reading.failure.message.text().empty()) << text;
        EXPECT_LE(reading.position + reading.length, text.size()) << text;
        EXPECT_TRUE(!reading.remark || readFilter(reading.remark->arguments.front())) << text;
        for (const auto& completion : completionsFor(text, text.size() / 2))
            EXPECT_EQ(completion.begin + completion.length, text.size() / 2) << text;
    }
}

} // namespace
