#include "Obj/UniqueNames.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using Obj::UniqueNames;

const auto nobody = [](const std::string&) { return false; };

TEST(UniqueNames, NumbersNamesOfTheSameStem)
{
    UniqueNames names;
    EXPECT_EQ(names.make("Material", nobody), "Material");
    EXPECT_EQ(names.make("Material", nobody), "Material1");
    EXPECT_EQ(names.make("Material", nobody), "Material2");
    EXPECT_EQ(names.make("Steel", nobody), "Steel");
}

TEST(UniqueNames, PassesOverNamesThatSomebodyHas)
{
    UniqueNames names;
    const std::set<std::string> taken{"Part", "Part1", "Part3"};
    const auto isTaken = [&taken](const std::string& name) { return taken.count(name) > 0; };
    EXPECT_EQ(names.make("Part", isTaken), "Part2");
    EXPECT_EQ(names.make("Part", isTaken), "Part4");
}

TEST(UniqueNames, AreMadeOnceEvenFromDifferentStems)
{
    UniqueNames names;
    std::set<std::string> made;
    for (int round = 0; round < 30; ++round)
        for (const char* const stem : {"Part", "Part1", "Part12", "Part1", "Part0", "Part01", "Part 1", "1", "12", "0"})
            EXPECT_TRUE(made.insert(names.make(stem, nobody)).second) << *made.rbegin();
    EXPECT_EQ(made.size(), 300U);
}

TEST(UniqueNames, AreNotTakenForMadeWhenTheNumberOnlyLooksAlike)
{
    UniqueNames names;
    EXPECT_EQ(names.make("Part", nobody), "Part");
    EXPECT_EQ(names.make("Part", nobody), "Part1");
    EXPECT_EQ(names.make("Part01", nobody), "Part01");
    EXPECT_EQ(names.make("Part2", nobody), "Part2");
    EXPECT_EQ(names.make("Part", nobody), "Part3");
    EXPECT_EQ(names.make("Part99999999999999999999999", nobody), "Part99999999999999999999999");
}

TEST(UniqueNames, OfNothingAreObjects)
{
    UniqueNames names;
    EXPECT_EQ(names.make("", nobody), "Object");
    EXPECT_EQ(names.make("", nobody), "Object1");
    EXPECT_EQ(names.make("Object", nobody), "Object2");
}

TEST(UniqueNames, TakeAnyText)
{
    UniqueNames names;
    const std::string longStem(10000, 'x');
    EXPECT_EQ(names.make(longStem, nobody), longStem);
    EXPECT_EQ(names.make(longStem, nobody), longStem + "1");
    EXPECT_EQ(names.make("钢 %1", nobody), "钢 %1");
    EXPECT_EQ(names.make("钢 %1", nobody), "钢 %11");
    EXPECT_EQ(names.make("钢 %", nobody), "钢 %");
    EXPECT_EQ(names.make("钢 %", nobody), "钢 %2");
}

} // namespace
