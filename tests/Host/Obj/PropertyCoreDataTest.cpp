#include "Obj/PropertyCoreData.h"

#include <gtest/gtest.h>

namespace {

using Obj::PropertyCoreData;

TEST(PropertyCoreData, KeepsDescriptionsInTheOrderOfTheirRegistration)
{
    PropertyCoreData data;
    data.registerProperty("Width", "Size", 0, "in mm");
    data.registerProperty("Age", "Info", 9, "in years");
    data.registerProperty("Height", "Size", 1, "in m");
    ASSERT_EQ(data.descriptions().size(), 3U);
    EXPECT_EQ(data.descriptions()[0].name, "Width");
    EXPECT_EQ(data.descriptions()[1].name, "Age");
    EXPECT_EQ(data.descriptions()[1].group, "Info");
    EXPECT_EQ(data.descriptions()[1].attributes, 9);
    EXPECT_EQ(data.descriptions()[1].description, "in years");
    EXPECT_EQ(data.descriptions()[2].name, "Height");
}

TEST(PropertyCoreData, LeavesADescriptionThatIsRegisteredAgainAsItIs)
{
    PropertyCoreData data;
    const auto& first = data.registerProperty("Width", "Size", 0, "in mm");
    const auto& again = data.registerProperty("Width", "Other", 8, "in feet");
    EXPECT_EQ(&first, &again);
    EXPECT_EQ(data.descriptions().size(), 1U);
    EXPECT_EQ(first.group, "Size");
}

TEST(PropertyCoreData, DoesNotMoveDescriptions)
{
    PropertyCoreData data;
    const auto* const first = &data.registerProperty("0", "", 0, "");
    for (int i = 1; i < 1000; ++i)
        data.registerProperty(std::to_string(i).c_str(), "", 0, "");
    EXPECT_EQ(data.find("0"), first);
    EXPECT_EQ(first->name, "0");
}

TEST(PropertyCoreData, FindsOnlyWhatTheClassItselfRegistered)
{
    PropertyCoreData parent;
    parent.registerProperty("Label", "Info", 0, "");
    PropertyCoreData data;
    EXPECT_EQ(data.parent(), nullptr);
    data.setParent(&parent);
    EXPECT_EQ(data.parent(), &parent);
    EXPECT_EQ(data.find("Label"), nullptr);
    EXPECT_NE(data.parent()->find("Label"), nullptr);
    EXPECT_EQ(data.find(""), nullptr);
}

} // namespace
