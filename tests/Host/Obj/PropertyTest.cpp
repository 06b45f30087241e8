#include "Obj/Property.h"

#include "CommaLocale.h"
#include "ObjTesting.h"

#include <json/writer.h>

#include <limits>
#include <stdexcept>

namespace {

using Obj::Color;
using Obj::PropertyColor;
using Obj::PropertyCoupleArray;
using Obj::PropertyInteger;
using Obj::PropertyString;
using testing::ElementsAre;
using testing::IsEmpty;

using Couples = PropertyCoupleArray::Couples;

/// Returns whether a text is refused and leaves the value unchanged.
template <typename SomeProperty>
bool refuses(SomeProperty& property, const std::string& text)
{
    const auto before = property.getValue();
    const bool refused = !property.fromText(text);
    return refused && property.getValue() == before;
}

using PropertyTest = vxtest::ObjTest;

TEST_F(PropertyTest, TellsItsOwnerBeforeAndAfterWithTheNewValueInPlace)
{
    vxtest::Part part;
    vxtest::Part::hooks().calls.clear();
    EXPECT_EQ(part.width.getOwner(), &part);
    part.width.setValue(8);
    EXPECT_THAT(vxtest::Part::hooks().calls, ElementsAre("before 7", "changed 8"));
}

TEST_F(PropertyTest, TellsItsOwnerAlsoWhenTheValueIsTheSame)
{
    vxtest::Part part;
    vxtest::Part::hooks().calls.clear();
    part.width.setValue(7);
    EXPECT_THAT(vxtest::Part::hooks().calls, ElementsAre("before 7", "changed 7"));
}

TEST_F(PropertyTest, IsSetInSilenceBeforeItIsRegistered)
{
    PropertyInteger property;
    EXPECT_EQ(property.getOwner(), nullptr);
    property.setValue(5);
    EXPECT_EQ(property.getValue(), 5);
    EXPECT_THAT(vxtest::Part::hooks().calls, IsEmpty());
}

TEST_F(PropertyTest, DoesNotTellItsOwnerOfATextThatIsRefused)
{
    vxtest::Part part;
    vxtest::Part::hooks().calls.clear();
    EXPECT_TRUE(refuses(part.width, "seven"));
    EXPECT_THAT(vxtest::Part::hooks().calls, IsEmpty());
    EXPECT_TRUE(part.width.fromText("9"));
    EXPECT_THAT(vxtest::Part::hooks().calls, ElementsAre("before 7", "changed 9"));
}

TEST(PropertyString, TakesEveryText)
{
    PropertyString property;
    EXPECT_EQ(property.toText(), "");
    for (const std::string& text : {std::string(), std::string(10000, 'x'), std::string("钢"), std::string("%1 %2"),
                                    std::string("\n"), std::string("a\0b", 3)})
    {
        EXPECT_TRUE(property.fromText(text));
        EXPECT_EQ(property.getValue(), text);
        EXPECT_EQ(property.toText(), text);
    }
}

TEST(PropertyInteger, HasTheTextOfAWholeNumber)
{
    PropertyInteger property(4294967296);
    EXPECT_EQ(property.toText(), "4294967296");
    EXPECT_TRUE(property.fromText(" -12 "));
    EXPECT_EQ(property.getValue(), -12);
    EXPECT_TRUE(property.fromText("9223372036854775807"));
    EXPECT_EQ(property.getValue(), std::numeric_limits<std::int64_t>::max());
}

TEST(PropertyInteger, RefusesWhatIsNoWholeNumber)
{
    PropertyInteger property(3);
    for (const char* const text : {"", " ", "x", "1.5", "1,5", "1 2", "0x10", "9223372036854775808", "5x", "1e3", "钢"})
        EXPECT_TRUE(refuses(property, text)) << text;
}

TEST(PropertyColor, HasTheShortestTextThatReadsBack)
{
    PropertyColor property({0.5F, 0.25F, 1.0F, 0.0F});
    EXPECT_EQ(property.toText(), "0.5, 0.25, 1, 0");
    property.setValue({0.1F, 0.2F, 0.3F, 1.0F / 3.0F});
    EXPECT_EQ(property.toText(), "0.1, 0.2, 0.3, 0.33333334");
    const Color before = property.getValue();
    EXPECT_TRUE(property.fromText(property.toText()));
    EXPECT_EQ(property.getValue(), before);
}

TEST(PropertyColor, ReadsFourComponentsBetween0And1)
{
    PropertyColor property;
    EXPECT_TRUE(property.fromText("1,0.5 , 0,0.125"));
    EXPECT_EQ(property.getValue(), (Color{1.0F, 0.5F, 0.0F, 0.125F}));
    for (const char* const text : {"", "1, 1, 1", "1, 1, 1, 1, 1", "1, 1, 1, 1.01", "1, 1, 1, -0.1", "1, 1, 1, nan",
                                   "1, 1, 1, inf", "1, 1, 1, x", "1, 1, , 1", "1; 1; 1; 1", "1, 1, 1, 1,"})
        EXPECT_TRUE(refuses(property, text)) << text;
}

TEST(PropertyColor, DiffersInEachComponent)
{
    const Color color{0.1F, 0.2F, 0.3F, 0.4F};
    EXPECT_NE(color, (Color{0.0F, 0.2F, 0.3F, 0.4F}));
    EXPECT_NE(color, (Color{0.1F, 0.0F, 0.3F, 0.4F}));
    EXPECT_NE(color, (Color{0.1F, 0.2F, 0.0F, 0.4F}));
    EXPECT_NE(color, (Color{0.1F, 0.2F, 0.3F, 0.0F}));
}

TEST(PropertyCoupleArray, HasTheTextOfACurve)
{
    PropertyCoupleArray property;
    EXPECT_EQ(property.toText(), "");
    property.setValue({{0.0, 1.0}, {0.5, 2e10}, {0.1, -1e-300}});
    EXPECT_EQ(property.toText(), "0, 1; 0.5, 2e+10; 0.1, -1e-300");
    const Couples before = property.getValue();
    EXPECT_TRUE(property.fromText(property.toText()));
    EXPECT_EQ(property.getValue(), before);
}

TEST(PropertyCoupleArray, ReadsPairsAndNothingElse)
{
    PropertyCoupleArray property;
    property.setValue({{1.0, 2.0}});
    for (const char* const text : {"1", "1, 2, 3", "1, 2;", ";1, 2", ";", "1, 2;; 3, 4", "1, x", "1, nan", "1, 1e999"})
        EXPECT_TRUE(refuses(property, text)) << text;
    EXPECT_TRUE(property.fromText("  "));
    EXPECT_THAT(property.getValue(), IsEmpty());
    EXPECT_TRUE(property.fromText(" 1,2 ;3 , 4 "));
    EXPECT_EQ(property.getValue(), (Couples{{1.0, 2.0}, {3.0, 4.0}}));
}

TEST(Property, HasItsTextInTheCLocaleInEveryLocaleOfTheUser)
{
    const vxtest::CommaLocale locale;
    PropertyInteger integer(1234567);
    EXPECT_EQ(integer.toText(), "1234567");
    PropertyColor color;
    EXPECT_TRUE(color.fromText("0.5, 0.25, 1, 0"));
    EXPECT_EQ(color.getValue(), (Color{0.5F, 0.25F, 1.0F, 0.0F}));
    EXPECT_EQ(color.toText(), "0.5, 0.25, 1, 0");
    PropertyCoupleArray couples;
    EXPECT_TRUE(couples.fromText("0.5, 1234.25"));
    EXPECT_EQ(couples.getValue(), (Couples{{0.5, 1234.25}}));
    EXPECT_EQ(couples.toText(), "0.5, 1234.25");
}

// --- Real numbers, booleans, choices ---

TEST_F(PropertyTest, OfARealNumberReadsBackTheVeryNumber)
{
    Obj::PropertyReal property;
    EXPECT_EQ(property.getValue(), 0.0);
    for (const double number : {0.1, -0.5, 1.0 / 3.0, 1e-300, 5e-324, 1.7976931348623157e308, 210000.0}) {
        property.setValue(number);
        Obj::PropertyReal other(1.0);
        ASSERT_TRUE(other.fromText(property.toText())) << property.toText();
        EXPECT_EQ(other.getValue(), number);
        other.setValue(1.0);
        ASSERT_TRUE(other.fromJson(property.toJson()));
        EXPECT_EQ(other.getValue(), number);
    }
    property.setValue(0.1);
    EXPECT_EQ(property.toText(), "0.1");
    EXPECT_TRUE(property.fromText("  2.5e3 "));
    EXPECT_EQ(property.getValue(), 2500.0);
}

TEST_F(PropertyTest, OfARealNumberHasItsTextInTheCLocale)
{
    const vxtest::CommaLocale locale;
    Obj::PropertyReal property(1234.5);
    EXPECT_EQ(property.toText(), "1234.5");
    EXPECT_TRUE(property.fromText("0.25"));
    EXPECT_EQ(property.getValue(), 0.25);
    EXPECT_TRUE(refuses(property, "0,25"));
}

TEST_F(PropertyTest, OfARealNumberIsAlwaysFinite)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    Obj::PropertyReal property(3.0);
    for (const char* const text : {"inf", "-inf", "nan", "NaN", "Infinity", "1e999", "", "three", "1 2"})
        EXPECT_TRUE(refuses(property, text)) << text;
    for (const Json::Value& json : {Json::Value("3"), Json::Value(), Json::Value(true), Json::Value(infinity)})
        EXPECT_FALSE(property.fromJson(json)) << json;
    EXPECT_THROW(property.setValue(infinity), std::invalid_argument);
    EXPECT_THROW(property.setValue(std::numeric_limits<double>::quiet_NaN()), std::invalid_argument);
    EXPECT_THROW(Obj::PropertyReal{infinity}, std::invalid_argument);
    EXPECT_EQ(property.getValue(), 3.0);
    EXPECT_TRUE(property.fromJson(Json::Value(4)));
    EXPECT_EQ(property.getValue(), 4.0) << "a whole number is a real number too";
}

TEST_F(PropertyTest, OfYesOrNoIsTrueOrFalse)
{
    Obj::PropertyBool property;
    EXPECT_FALSE(property.getValue());
    EXPECT_TRUE(property.fromText("true"));
    EXPECT_TRUE(property.getValue());
    EXPECT_EQ(property.toText(), "true");
    EXPECT_EQ(property.toJson(), Json::Value(true));
    for (const char* const text : {"", "yes", "True", "1", "falsetrue"})
        EXPECT_TRUE(refuses(property, text)) << text;
    EXPECT_FALSE(property.fromJson(Json::Value(0)));
    EXPECT_FALSE(property.fromJson(Json::Value("false")));
    EXPECT_TRUE(property.fromJson(Json::Value(false)));
    EXPECT_EQ(property.toText(), "false");
}

TEST_F(PropertyTest, OfAChoiceIsOneOfItsWords)
{
    Obj::PropertyChoice property({"coarse", "fine", "钢"}, 1);
    EXPECT_EQ(property.getValue(), 1U);
    EXPECT_EQ(property.getWord(), "fine");
    EXPECT_THAT(property.getWords(), ElementsAre("coarse", "fine", "钢"));
    EXPECT_TRUE(property.fromText("钢"));
    EXPECT_EQ(property.getValue(), 2U);
    EXPECT_EQ(property.toJson(), Json::Value("钢"));
    EXPECT_TRUE(property.fromJson(Json::Value("coarse")));
    EXPECT_EQ(property.toText(), "coarse");
    for (const char* const text : {"", "Fine", "fine ", "1"})
        EXPECT_TRUE(refuses(property, text)) << text;
    EXPECT_FALSE(property.fromJson(Json::Value(1)));
    EXPECT_THROW(property.setValue(3), std::out_of_range);
    EXPECT_EQ(property.getValue(), 0U);
}

TEST_F(PropertyTest, OfAChoiceNeedsWordsThatDiffer)
{
    EXPECT_THROW(Obj::PropertyChoice({}), std::invalid_argument);
    EXPECT_THROW(Obj::PropertyChoice({"a", "b", "a"}), std::invalid_argument);
    EXPECT_THROW(Obj::PropertyChoice({"a", "b"}, 2), std::out_of_range);
}

// --- JSON of the other types ---

TEST_F(PropertyTest, KeepsWholeNumbersOfEverySizeInJson)
{
    PropertyInteger property;
    for (const std::int64_t number : {std::int64_t{0}, std::numeric_limits<std::int64_t>::max(),
                                      std::numeric_limits<std::int64_t>::min(), std::int64_t{4294967295}})
    {
        property.setValue(number);
        const Json::Value json = property.toJson();
        property.setValue(1);
        EXPECT_TRUE(property.fromJson(json));
        EXPECT_EQ(property.getValue(), number);
    }
    for (const Json::Value& json : {Json::Value(1.5), Json::Value("1"), Json::Value(1e30), Json::Value()})
        EXPECT_FALSE(property.fromJson(json)) << json;
}

TEST_F(PropertyTest, WritesAColourInJsonWithTheDigitsThatItNeeds)
{
    PropertyColor property({0.5058824F, 0.1F, 1.0F, 0.0F});
    EXPECT_EQ(property.toJson()[0].asDouble(), 0.5058824);
    EXPECT_EQ(property.toJson()[1].asDouble(), 0.1);
    PropertyColor other;
    EXPECT_TRUE(other.fromJson(property.toJson()));
    EXPECT_TRUE(other.getValue() == property.getValue());
    Json::Value wrong(Json::arrayValue);
    EXPECT_FALSE(other.fromJson(wrong));
    for (int i = 0; i < 4; ++i)
        wrong.append(i == 3 ? Json::Value("0") : Json::Value(0));
    EXPECT_FALSE(other.fromJson(wrong));
    EXPECT_FALSE(other.fromJson(Json::Value(1)));
}

TEST_F(PropertyTest, WritesCouplesInJson)
{
    PropertyCoupleArray property;
    EXPECT_EQ(property.toJson(), Json::Value(Json::arrayValue));
    property.setValue({{0.0, 0.1}, {1.0, -2.0}});
    PropertyCoupleArray other;
    EXPECT_TRUE(other.fromJson(property.toJson()));
    EXPECT_EQ(other.getValue(), property.getValue());
    Json::Value wrong(Json::arrayValue);
    wrong.append(1.0);
    EXPECT_FALSE(other.fromJson(wrong));
    EXPECT_FALSE(other.fromJson(Json::Value("0, 1")));
    EXPECT_EQ(other.getValue(), property.getValue());
}

TEST_F(PropertyTest, ReturnsTheMemoryOfItsValue)
{
    EXPECT_EQ(PropertyString("short").get_memory_usage(), 0U) << "a short text is kept in the property itself";
    EXPECT_GT(PropertyString(std::string(1000, 'x')).get_memory_usage(), 1000U);
    EXPECT_EQ(PropertyInteger(7).get_memory_usage(), 0U);
    PropertyCoupleArray couples;
    couples.setValue(Couples(100));
    EXPECT_GE(couples.get_memory_usage(), 100 * 2 * sizeof(double));
    EXPECT_GT(Obj::PropertyChoice({"a", "b"}).get_memory_usage(), 0U);
}

} // namespace
