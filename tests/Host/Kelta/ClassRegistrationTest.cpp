#include "Kelta/ClassRegistration.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace workshop {

class Tool : public Kelta::RootClass
{
    KELTA_ABSTRACT_CLASS;

public:
    virtual int teeth() const = 0;
};

class Saw : public Tool
{
    KELTA_CLASS;

public:
    Saw()
    {
        if (isBroken)
            throw std::runtime_error("the blade is broken");
    }
    int teeth() const override { return 40; }
    static inline bool isBroken = false;
};

KELTA_REGISTER_ABSTRACT_CLASS(workshop::Tool, Kelta::RootClass)
KELTA_REGISTER_CLASS(workshop::Saw, workshop::Tool)

} // namespace workshop

namespace {

using workshop::Saw;
using workshop::Tool;

TEST(ClassRegistration, MakesAClassKnownUnderItsFullNameWithItsParent)
{
    Tool::init();
    Saw::init();
    EXPECT_EQ(Kelta::TypeInfo::find("workshop::Saw"), Saw::getClassTypeId());
    EXPECT_STREQ(Saw::getClassTypeId().get_name(), "workshop::Saw");
    EXPECT_EQ(Saw::getClassTypeId().getParent(), Tool::getClassTypeId());
    EXPECT_EQ(Tool::getClassTypeId().getParent(), Kelta::RootClass::getClassTypeId());
}

TEST(ClassRegistration, CreatesObjectsThatKnowTheirType)
{
    Tool::init();
    Saw::init();
    const auto created = Kelta::RootClass::createByName("workshop::Saw");
    ASSERT_NE(created, nullptr);
    EXPECT_EQ(created->getTypeId(), Saw::getClassTypeId());
    EXPECT_EQ(dynamic_cast<const Tool&>(*created).teeth(), 40);
}

TEST(ClassRegistration, CreatesNoObjectOfAnAbstractClass)
{
    Tool::init();
    EXPECT_EQ(Kelta::RootClass::createByName("workshop::Tool"), nullptr);
}

TEST(ClassRegistration, PassesOnWhatAConstructorThrows)
{
    Tool::init();
    Saw::init();
    Saw::isBroken = true;
    EXPECT_THROW(Kelta::RootClass::createByName("workshop::Saw"), std::runtime_error);
    Saw::isBroken = false;
}

} // namespace
