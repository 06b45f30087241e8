#include "vxUnits/FilterCompletion.h"

#include "vxUnits/Filter.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using vxUnits::Completion;
using vxUnits::completionsFor;

std::vector<Completion> completions(const std::string& text)
{
    return completionsFor(text, text.size());
}

/// Returns the texts that can follow at the end of a text.
std::vector<std::string> offered(const std::string& text)
{
    std::vector<std::string> texts;
    for (const Completion& one : completions(text))
        texts.push_back(one.text);
    return texts;
}

/// Returns the text with its first completion.
std::string completed(const std::string& text)
{
    const Completion first = completions(text).at(0);
    std::string result = text;
    return result.replace(first.begin, first.length, first.text);
}

TEST(FilterCompletions, OfAWordAreQuantitiesThatBeginWithIt)
{
    EXPECT_THAT(offered("Dens"), ElementsAre("Density"));
    EXPECT_EQ(completed("steel and you"), "steel and Young's modulus");
    EXPECT_EQ(completed("yield t"), "Yield type");
    EXPECT_THAT(offered("Yield "), ElementsAre("Yield type", "Yield stress", "Initial yield stress"));
    // A symbol tells the name of its quantity.
    const auto symbols = completions("rh");
    ASSERT_FALSE(symbols.empty());
    EXPECT_EQ(symbols[0].text, "rho");
    EXPECT_EQ(symbols[0].meaning, "Density");
    // A later word of a name comes after names that begin with the text.
    EXPECT_THAT(offered("modulus"), IsSupersetOf({"Young's modulus", "Shear modulus", "Bulk modulus"}));
    EXPECT_THAT(offered("unobtainium"), IsEmpty());
    EXPECT_THAT(offered("structural "), IsEmpty());
}

TEST(FilterCompletions, AfterAQuantityAreTheComparisonsThatItTakes)
{
    EXPECT_THAT(offered("E "), ElementsAre("<", "<=", ">", ">=", "=", "!="));
    EXPECT_THAT(offered("Yield type "), ElementsAre("=", "!="));
    EXPECT_THAT(offered("has E "), ElementsAre("and", "or"));
}

TEST(FilterCompletions, AfterANumberAreUnitsOfTheQuantity)
{
    const auto units = offered("E > 100 ");
    EXPECT_THAT(units, IsSupersetOf({"GPa", "MPa", "psi", "ksi", "and", "or"}));
    EXPECT_THAT(units, Not(Contains("kg")));
    EXPECT_EQ(units.front(), "GPa");
    EXPECT_EQ(completed("E > 100 M"), "E > 100 MPa");
    EXPECT_EQ(completed("rho < 3 g"), "rho < 3 g/cm^3");
    EXPECT_EQ(completed("k > 3 W/("), "k > 3 W/(m K)");
    EXPECT_EQ(completed("E 100..200 g"), "E 100..200 GPa");
    EXPECT_EQ(completed("G > 1e3 kP"), "G > 1e3 kPa");
    EXPECT_THAT(offered("nu < 0.3 "), ElementsAre("and", "or"));
    EXPECT_THAT(offered("E > 10"), IsEmpty());
    EXPECT_THAT(offered("E >"), IsEmpty());
}

TEST(FilterCompletions, AfterAValueAreKeywords)
{
    EXPECT_THAT(offered("E > 100 GPa "), ElementsAre("and", "or"));
    EXPECT_EQ(completed("E > 100 GPa a"), "E > 100 GPa and");
    EXPECT_THAT(offered("(E > 100 GPa) "), ElementsAre("and", "or"));
    EXPECT_THAT(offered("E > 1 GPa and n"), AllOf(Contains("nu"), Contains("not")));
    EXPECT_THAT(offered("steel and has Cree"), Contains("Creep Modulus A"));
}

TEST(FilterCompletions, OfAWordValueAreTheWordsOfTheQuantity)
{
    EXPECT_THAT(offered("Yield type = "), ElementsAre("Mises", "Mohr-Coulomb", "Drucker-Prager"));
    EXPECT_EQ(completed("Yield type = mo"), "Yield type = Mohr-Coulomb");
    EXPECT_THAT(offered("Yield type = Mises "), ElementsAre("and", "or"));
}

TEST(FilterCompletions, InQuotesAreNone)
{
    EXPECT_THAT(offered("\"Dens"), IsEmpty());
    EXPECT_THAT(offered(""), IsEmpty());
}

TEST(FilterCompletions, LookOnlyAtTheTextBeforeTheCursor)
{
    const std::string text = "Den and E > 5 GPa";
    const auto all = completionsFor(text, 3);
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].begin, 0U);
    EXPECT_EQ(all[0].length, 3U);
    EXPECT_EQ(all[0].text, "Density");
}

TEST(FilterCompletions, OfferOnlyUnitsThatTheFilterReads)
{
    for (const char* const start : {"E > 1 ", "rho > 1 ", "k > 1 ", "dv > 1 ", "sigma > 1 ", "sspeed > 1 ",
                                    "HyperD1 > 1 ", "speHeat > 1 ", "RTime > 1 ", "PFAI > 1 ", "Z > 1 ", "a > 1 "})
    {
        int units = 0;
        for (const Completion& one : completions(start)) {
            if (one.kind != vxUnits::CompletionKind::Unit)
                continue;
            ++units;
            EXPECT_TRUE(vxUnits::readFilter(start + one.text)) << start << one.text;
        }
        EXPECT_GT(units, 1) << start;
    }
}

} // namespace
