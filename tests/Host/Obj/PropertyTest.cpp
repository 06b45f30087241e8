#include "Obj/Property.h"

#include "CommaLocale.h"
#include "ObjTesting.h"

#include <limits>

namespace {

using Obj::Color;
using Obj::PropertyColor;
using Obj::PropertyCoupleArray;
using Obj::PropertyInteger;
using Obj::PropertyString;
using testing::ElementsAre;
using testing::IsEmpty;

using Couples = PropertyCoupleArray::Couples;

/// Whether a text is refused, and leaves the value alone.
template <typename SomeProperty>
bool refuses(SomeProperty& property, const std::string& text)
{
    const auto before = property.getValue();
    const bool refused = !property.from_text(text);
    return refused && property.getValue() == before;
}

using PropertyTest = vxtest::ObjTest;

TEST_F(PropertyTest, TellsItsOwnerBeforeAndAfterWithTheNewValueInPlace)
{
    vxtest::Part part;
    vxtest::Part::hooks().calls.clear();
    EXPECT_EQ(part.width.get_owner(), &part);
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
    EXPECT_EQ(property.get_owner(), nullptr);
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
    EXPECT_TRUE(part.width.from_text("9"));
    EXPECT_THAT(vxtest::Part::hooks().calls, ElementsAre("before 7", "changed 9"));
}

TEST(PropertyString, TakesEveryText)
{
    PropertyString property;
    EXPECT_EQ(property.to_text(), "");
    for (const std::string& text : {std::string(), std::string(10000, 'x'), std::string("钢"), std::string("%1 %2"),
                                    std::string("\n"), std::string("a\0b", 3)})
    {
        EXPECT_TRUE(property.from_text(text));
        EXPECT_EQ(property.getValue(), text);
        EXPECT_EQ(property.to_text(), text);
    }
}

TEST(PropertyInteger, HasTheTextOfAWholeNumber)
{
    PropertyInteger property(4294967296);
    EXPECT_EQ(property.to_text(), "4294967296");
    EXPECT_TRUE(property.from_text(" -12 "));
    EXPECT_EQ(property.getValue(), -12);
    EXPECT_TRUE(property.from_text("9223372036854775807"));
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
    EXPECT_EQ(property.to_text(), "0.5, 0.25, 1, 0");
    property.setValue({0.1F, 0.2F, 0.3F, 1.0F / 3.0F});
    EXPECT_EQ(property.to_text(), "0.1, 0.2, 0.3, 0.33333334");
    const Color before = property.getValue();
    EXPECT_TRUE(property.from_text(property.to_text()));
    EXPECT_EQ(property.getValue(), before);
}

TEST(PropertyColor, ReadsFourComponentsBetween0And1)
{
    PropertyColor property;
    EXPECT_TRUE(property.from_text("1,0.5 , 0,0.125"));
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
    EXPECT_EQ(property.to_text(), "");
    property.setValue({{0.0, 1.0}, {0.5, 2e10}, {0.1, -1e-300}});
    EXPECT_EQ(property.to_text(), "0, 1; 0.5, 2e+10; 0.1, -1e-300");
    const Couples before = property.getValue();
    EXPECT_TRUE(property.from_text(property.to_text()));
    EXPECT_EQ(property.getValue(), before);
}

TEST(PropertyCoupleArray, ReadsPairsAndNothingElse)
{
    PropertyCoupleArray property;
    property.setValue({{1.0, 2.0}});
    for (const char* const text : {"1", "1, 2, 3", "1, 2;", ";1, 2", ";", "1, 2;; 3, 4", "1, x", "1, nan", "1, 1e999"})
        EXPECT_TRUE(refuses(property, text)) << text;
    EXPECT_TRUE(property.from_text("  "));
    EXPECT_THAT(property.getValue(), IsEmpty());
    EXPECT_TRUE(property.from_text(" 1,2 ;3 , 4 "));
    EXPECT_EQ(property.getValue(), (Couples{{1.0, 2.0}, {3.0, 4.0}}));
}

TEST(Property, HasItsTextInTheCLocaleWhateverTheLocaleOfTheUser)
{
    const vxtest::CommaLocale locale;
    PropertyInteger integer(1234567);
    EXPECT_EQ(integer.to_text(), "1234567");
    PropertyColor color;
    EXPECT_TRUE(color.from_text("0.5, 0.25, 1, 0"));
    EXPECT_EQ(color.getValue(), (Color{0.5F, 0.25F, 1.0F, 0.0F}));
    EXPECT_EQ(color.to_text(), "0.5, 0.25, 1, 0");
    PropertyCoupleArray couples;
    EXPECT_TRUE(couples.from_text("0.5, 1234.25"));
    EXPECT_EQ(couples.getValue(), (Couples{{0.5, 1234.25}}));
    EXPECT_EQ(couples.to_text(), "0.5, 1234.25");
}

} // namespace
