#include "ObjTesting.h"

#include "Obj/Project.h"

#include <map>
#include <random>

namespace {

using vxtest::Assembly;
using vxtest::Part;

// The index is no part of the library's interface, so it is tested through a project.
using NameIndexTest = vxtest::ObjTest;

TEST_F(NameIndexTest, FindsEveryNameHoweverNamesComeAndGo)
{
    Assembly& assembly = addAssembly();
    std::mt19937 random(5);
    std::uniform_int_distribution<int> someNumber(0, 400);
    const std::vector<std::string> stems{"Part", "Part1", "", "钢", "x9", "Teil "};
    std::map<std::string, Obj::ProjectObject*> expected;
    for (int i = 0; i < 20000; ++i) {
        const std::string name = stems[random() % stems.size()] + std::to_string(someNumber(random));
        const auto known = expected.find(name);
        if (known == expected.end()) {
            expected[name] = &assembly.addPart(name);
            ASSERT_EQ(expected[name]->get_name_in_project(), name);
        } else if (random() % 2 == 0) {
            ASSERT_TRUE(assembly.remove_object(known->second->getObjectId()));
            expected.erase(known);
        }
        ASSERT_EQ(assembly.get_object(name), expected.count(name) > 0 ? expected[name] : nullptr);
    }
    for (const std::string& stem : stems)
        for (int number = 0; number <= 400; ++number) {
            const std::string name = stem + std::to_string(number);
            const auto known = expected.find(name);
            EXPECT_EQ(assembly.get_object(name), known != expected.end() ? known->second : nullptr) << name;
        }
    EXPECT_EQ(assembly.get_object_count(), expected.size());
}

TEST_F(NameIndexTest, TellsNamesApartThatDifferInADigitOrItsPlace)
{
    Assembly& assembly = addAssembly();
    for (const char* const name : {"a", "a0", "a1", "a9", "a10", "1", "0", "a00", "a01"})
        EXPECT_EQ(assembly.addPart(name).get_name_in_project(), std::string(name));
    EXPECT_EQ(assembly.get_object("a2"), nullptr);
    EXPECT_EQ(assembly.get_object("a11"), nullptr);
    EXPECT_EQ(assembly.get_object(std::string_view("a0\0", 3)), nullptr);
}

} // namespace
