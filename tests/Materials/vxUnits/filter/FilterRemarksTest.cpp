#include "vxMaterial/model/MaterialLibrary.h"
#include "vxUnits/Filter.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

using vxUnits::readFilter;

/// Returns the expression that a remark suggests; empty if there is no remark.
std::string meantBy(const std::string& expression)
{
    const auto reading = readFilter(expression);
    EXPECT_TRUE(reading) << expression << ": " << reading.failure.text();
    return reading.remark ? reading.remark->arguments.front() : std::string();
}

TEST(FilterRemarks, SuggestTheConditionThatWordsForLabelsLookLike)
{
    const std::pair<const char*, const char*> cases[] = {
        {"E 200 GPa", "E = 200 GPa"},
        {"rho 7850", "rho = 7850"},
        {"k 45 W/(m K)", "k = 45 W/(m K)"},
        {"E ~ 200 GPa", "E = 200 GPa"},
        {"Densty 1..2", "Density 1..2"},
        {"densty 5 g/cm3", "Density = 5 g/cm3"},
        {"Yield type Mises", "Yield type = Mises"},
        {"Yield type is mises", "Yield type = mises"},
        {"E .. 100 GPa", "E <= 100 GPa"},
        {"E: 200 GPa", "E = 200 GPa"},
        {"E : 200 GPa", "E = 200 GPa"},
        {"E between 1 and 2 GPa", "E 1..2 GPa"},
        {"E from 1 to 2 GPa", "E 1..2 GPa"},
        {"E above 100 GPa", "E > 100 GPa"},
        {"steel & E > 5", "steel and E > 5"},
        {"steel | iron", "steel or iron"},
        {"!steel", "not steel"},
        {"! steel", "not steel"},
        {"rho rho > 1", "rho > 1"},
        {"steel und E > 5", "steel and E > 5"},
        {"steel Oder E > 5", "steel or E > 5"},
        {"nicht E > 5", "not E > 5"},
        {"钢 且 E > 5", "钢 and E > 5"},
        // Labels and other conditions beside the words
        {"steel E 200 GPa", "steel E = 200 GPa"},
        {"E 200 GPa steel", "E = 200 GPa and steel"},
        {"rho 7850 nu 0.3", "rho = 7850 and nu = 0.3"},
        {"E 200 GPa rho > 1", "E = 200 GPa and rho > 1"},
        {"(E 200 GPa) or iron", "(E = 200 GPa) or iron"},
        {"E 200 GPa & rho 7850", "E = 200 GPa and rho = 7850"},
    };
    for (const auto& [expression, meant] : cases) {
        EXPECT_EQ(meantBy(expression), meant) << expression;
        EXPECT_EQ(meantBy(meant), "") << meant;
    }
    EXPECT_EQ(readFilter("rho 7850").remark->text(), R"(Searched in labels; did you mean "rho = 7850"?)");
}

TEST(FilterRemarks, AreNotMadeAboutLabels)
{
    for (const char* const expression : {"steel",
                                         "structural steel",
                                         "Steel 42",
                                         "A 36",
                                         "C 45 steel",
                                         "E 335",
                                         "2024-T3",
                                         "nylon 6/6",
                                         "rho",
                                         "E",
                                         "steel and rho",
                                         "\"rho 7850\"",
                                         "\"E 200 GPa\"",
                                         "100..200",
                                         "5",
                                         "5 200",
                                         "&",
                                         "!",
                                         "and-or",
                                         "rho nu",
                                         "E > 5 and steel",
                                         "has E and m"})
    {
        const auto reading = readFilter(expression);
        EXPECT_FALSE(reading.remark) << expression << ": " << reading.remark->text();
    }
    for (const auto& entry : vxMat::libraryEntries()) {
        const std::string name = entry.create()->name;
        const auto reading = readFilter(name);
        EXPECT_FALSE(reading && reading.remark) << name;
    }
}

TEST(FilterRemarks, AreNotMadeAboutLongTexts)
{
    EXPECT_FALSE(readFilter(std::string(1000, 'x') + " rho 7850").remark);
    std::string many;
    for (int i = 0; i < 30; ++i)
        many += "rho 1 ";
    EXPECT_TRUE(readFilter(many).remark);
}

} // namespace
