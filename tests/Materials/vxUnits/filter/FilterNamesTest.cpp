#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Filter.h"
#include "vxUnits/FilterCompletion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using Id = vxMat::PropertyId;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using vxUnits::FilterNames;
using vxUnits::FilterQuantity;
using vxUnits::readFilter;

const vxUnits::DerivedQuantity& derived(const std::string& symbol)
{
    const auto& all = vxUnits::derivedQuantities();
    return *std::find_if(all.begin(), all.end(), [&symbol](const auto& one) { return symbol == one.symbol; });
}

const FilterNames& german()
{
    static const FilterNames names{
        {{Id::Density, nullptr}, "Dichte"},
        {{Id::YoungsModulus, nullptr}, "Elastizit\xC3\xA4tsmodul"},
        {{Id::PlasticYieldType, nullptr},
         "Flie\xC3\x9F"
         "bedingung"},
        {{Id::SpecificHeat, nullptr}, "Spezifische W\xC3\xA4rmekapazit\xC3\xA4t"},
        {{Id::PlasticViscosity, nullptr}, ""},
        {{0, &derived("G")}, "Schubmodul"},
    };
    return names;
}

const FilterNames& chinese()
{
    static const FilterNames names{{{Id::Density, nullptr}, "\xE5\xAF\x86\xE5\xBA\xA6"}};
    return names;
}

std::vector<FilterQuantity> quantitiesIn(const std::string& expression, const FilterNames& names = german())
{
    const auto reading = readFilter(expression, {}, names);
    EXPECT_TRUE(reading) << expression << ": " << reading.failure.text();
    return reading ? reading.filter->quantities() : std::vector<FilterQuantity>();
}

std::string refusalOf(const std::string& expression)
{
    return readFilter(expression, {}, german()).failure.text();
}

std::vector<std::string> completions(const std::string& text, const FilterNames& names = german())
{
    std::vector<std::string> texts;
    for (const auto& one : vxUnits::completionsFor(text, text.size(), names))
        texts.push_back(one.meaning.empty() ? one.text : one.text + " " + one.meaning);
    return texts;
}

TEST(FilterNames, AreTakenBesidesTheEnglishOnesAndKeys)
{
    const FilterQuantity density{Id::Density, nullptr};
    for (const char* const expression : {"Dichte > 5", "dichte>5", "stahl DICHTE 1..2 g/cm3", "has Dichte",
                                         "\"Dichte\" > 5", "Density > 5", "rho > 5", "4 > 5"})
        EXPECT_THAT(quantitiesIn(expression), ElementsAre(density)) << expression;
    EXPECT_THAT(quantitiesIn("spezifische w\xC3\x84rmekapazit\xC3\xA4t > 5"),
                ElementsAre(FilterQuantity{Id::SpecificHeat, nullptr}));
    EXPECT_THAT(quantitiesIn("Schubmodul > 5 GPa"), ElementsAre(FilterQuantity{0, &derived("G")}));
    EXPECT_THAT(quantitiesIn("\xE5\xAF\x86\xE5\xBA\xA6>5", chinese()), ElementsAre(density));
    EXPECT_FALSE(readFilter("Dichte > 5")) << "only where they are given";
}

TEST(FilterNames, AreInMessagesAndSuggestions)
{
    EXPECT_EQ(refusalOf("Dihcte > 5"), R"(No quantity is called "Dihcte". Did you mean "Dichte"?)");
    EXPECT_EQ(refusalOf("densty > 5"), R"(No quantity is called "densty". Did you mean "Density"?)");
    EXPECT_EQ(refusalOf("5 g/l < rho"), R"(Write the quantity before the value. Did you mean "Dichte > 5 g/l"?)");
    EXPECT_EQ(readFilter("Dichte 7850", {}, german()).remark->arguments.front(), "Dichte = 7850");
}

TEST(QuantityNames, AreFoundByNameKeySymbolAndId)
{
    const std::pair<const char*, std::int32_t> names[] = {
        {"Young's modulus", Id::YoungsModulus},
        {"youngs MODULUS", Id::YoungsModulus},
        {"E", Id::YoungsModulus},
        {"5", Id::YoungsModulus},
        {"HyperD1", Id::IncompressibilityParameterD1},
        {"D1", Id::IncompressibilityParameterD1},
        {"d1", Id::IncompressibilityParameterD1},
        {"Mu", Id::InitialShearModulusMu},
        {"C10", Id::MaterialConstantC10},
        {"C01", Id::MaterialConstantC01},
        {"C11", Id::MaterialConstantC11},
        {"lm", Id::LimitingNetworkStretch},
        {"cp", Id::SpecificHeat},
        {"H", Id::PlasticHardeningFactor},
        {"\xCE\xBD", Id::PoissonsRatio},
    };
    for (const auto& [name, id] : names) {
        const auto found = vxUnits::findQuantityNamed(name);
        ASSERT_TRUE(found) << name;
        EXPECT_EQ(found->id, id) << name;
    }
    EXPECT_EQ(vxUnits::findQuantityNamed("G"), (FilterQuantity{0, &derived("G")}));
    EXPECT_FALSE(vxUnits::findQuantityNamed("C12"));
    EXPECT_FALSE(vxUnits::findQuantityNamed(""));
    EXPECT_FALSE(vxUnits::findQuantityNamed(std::string(100000, 'E')));
}

TEST(QuantityNames, AreSuggestedForNearOnes)
{
    EXPECT_THAT(vxUnits::nearestQuantityNames("densty"), ElementsAre("Density"));
    EXPECT_THAT(vxUnits::nearestQuantityNames("C12"), ElementsAre("C10", "C11"));
    EXPECT_THAT(vxUnits::nearestQuantityNames("weight"), testing::IsEmpty());
    EXPECT_THAT(vxUnits::nearestQuantityNames("G"), testing::IsEmpty());
}

TEST(FilterNames, YieldToEnglishOnes)
{
    const FilterNames names{{{Id::YoungsModulus, nullptr}, "Density"}};
    EXPECT_THAT(quantitiesIn("Density > 5", names), ElementsAre(FilterQuantity{Id::Density, nullptr}));
}

TEST(FilterNames, AreCompleted)
{
    EXPECT_THAT(completions("Dich"), ElementsAre("Dichte"));
    EXPECT_THAT(completions("Den"), Contains("Density"));
    EXPECT_THAT(completions("rh"), Contains("rho Dichte")) << "as the meaning of a symbol";
    EXPECT_THAT(completions("w\xC3\xA4r"), Contains("Spezifische W\xC3\xA4rmekapazit\xC3\xA4t"));
    EXPECT_THAT(completions("has "), Contains("Dichte"));
    EXPECT_THAT(completions("has "), Not(Contains("Density"))) << "each quantity once";
    EXPECT_THAT(completions("Dichte "), Contains(">"));
    EXPECT_THAT(completions("Dichte > 5 g/"), Contains("g/cm^3"));
    EXPECT_THAT(completions("\xE5\xAF\x86", chinese()), ElementsAre("\xE5\xAF\x86\xE5\xBA\xA6"));
}

} // namespace
