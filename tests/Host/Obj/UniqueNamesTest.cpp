#include "Obj/UniqueNames.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using Obj::UniqueNames;

const auto nobody = [](const std::string&) { return false; };

TEST(UniqueNames, NumbersNamesOfTheSameStem)
{
    UniqueNames names;
    EXPECT_EQ(names.make("Part", nobody), "Part");
    EXPECT_EQ(names.make("Part", nobody), "Part1");
    EXPECT_EQ(names.make("Part", nobody), "Part2");
    EXPECT_EQ(names.make("Bolt", nobody), "Bolt");
}

TEST(UniqueNames, PassesOverNamesThatAreTaken)
{
    UniqueNames names;
    const std::set<std::string> taken{"Part", "Part1", "Part3"};
    const auto isTaken = [&taken](const std::string& name) { return taken.count(name) > 0; };
    EXPECT_EQ(names.make("Part", isTaken), "Part2");
    EXPECT_EQ(names.make("Part", isTaken), "Part4");
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
}

} // namespace
